// SPDX-License-Identifier: MIT
#include "wizard/PageSequence.h"
#include "definitions/DefinitionRecords.h"
#include "wizard/WizardState.h"

namespace {

int inputsOrEnd(const WizardState& state)
{
    return state.projectCreator && !state.projectCreator->inputData.empty() ? XmlPageId : NoPageId;
}

bool asksForPersonalities(const WizardState& state)
{
    const ProjectCreatorData* creator = state.projectCreator;
    return !state.personalitiesGiven && creator &&
           (creator->hasMessagePersonality || creator->hasAnalyserPersonality || creator->hasCompilerPersonality);
}

} // namespace

int nextPage(int pageId, const WizardState& state)
{
    switch (pageId) {
    case StartPageId:
        return state.analyserFixed ? inputsOrEnd(state) : SetProductPageId;
    case SetProductPageId:
        return inputsOrEnd(state);
    case XmlPageId:
        return asksForPersonalities(state) ? ConfPageId : ActionPageId;
    case ConfPageId:
        return ActionPageId;
    case ActionPageId:
        return state.conversionDone ? DisplayOptionsPageId : NoPageId;
    default:
        return NoPageId;
    }
}

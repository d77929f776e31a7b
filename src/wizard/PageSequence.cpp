// SPDX-License-Identifier: MIT
#include "wizard/PageSequence.h"
#include "definitions/ConfigurationKind.h"
#include "definitions/DefinitionRecords.h"
#include "process/WizardState.h"

#include <algorithm>

namespace {

int inputsOrEnd(const WizardState& state)
{
    return state.projectCreator && !state.projectCreator->inputData.empty() ? XmlPageId : NoPageId;
}

bool asksForPersonalities(const WizardState& state)
{
    const ProjectCreatorData* creator = state.projectCreator;
    return !state.personalitiesGiven && creator &&
           std::ranges::any_of(configurationKinds(),
                               [&](const ConfigurationFacts& kind) { return creator->*kind.asked; });
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

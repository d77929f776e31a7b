// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "definitions/PageData.h"
#include "process/RunAppData.h"

#include <algorithm>

using namespace Qt::StringLiterals;

PageData::PageData(QObject* parent)
    : QObject(parent)
{
}

PageData::~PageData() = default;

bool PageData::ApplicationsRunning() const
{
    return !applications.empty() &&
           (!appRegistry->openDialogs.isEmpty() ||
            std::ranges::any_of(applications, [](const auto& launcher) { return launcher->isRunning(); }));
}

void PageData::StopApplications()
{
    for (const auto& launcher : applications) {
        launcher->Terminate();
    }
}

void PageData::ResetApplications()
{
    for (const auto& launcher : applications) {
        launcher->Terminate();
        if (!launcher->button) {
            continue;
        }
        if (launcher->startsDisabled) {
            launcher->button->setEnabled(false);
        } else if (launcher->ExecutablesFound()) {
            launcher->button->setEnabled(true);
        }
    }
}

void PageData::applyGroups(RunAppData* launcher, const QString& trigger)
{
    for (const auto& group : std::as_const(conditions)) {
        if (group.value(launcher) != trigger) {
            continue;
        }
        for (auto member = group.cbegin(); member != group.cend(); ++member) {
            RunAppData* target = member.key();
            if (!target->button) {
                continue;
            }
            if (member.value() == "disable"_L1) {
                target->button->setEnabled(false);
            } else if (member.value() == "enable"_L1 && target->ExecutablesFound()) {
                target->button->setEnabled(true);
            }
        }
    }
}

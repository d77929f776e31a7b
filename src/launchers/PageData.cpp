// SPDX-License-Identifier: MIT
#include "launchers/PageData.h"
#include "app/AppRegistry.h"
#include "launchers/ApplicationReader.h"
#include "launchers/LauncherGrid.h"
#include "launchers/RunAppData.h"
#include "process/ExecutableLookup.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

PageData::PageData(QObject* parent)
    : QObject(parent)
{
}

PageData::~PageData() = default;

void PageData::ReadApplication(QXmlStreamReader& xml, const TextExpander& expand)
{
    RunAppData& launcher = *applications.emplace_back(std::make_unique<RunAppData>(this));
    readApplication(xml, launcher, *this, expand);
}

void PageData::BuildButtons(QGridLayout* grid)
{
    buildButtons(*this, *grid);
}

bool PageData::ApplicationsRunning() const
{
    return !applications.empty() && (!appRegistry->openDialogs.isEmpty() || ProgramsRunning());
}

bool PageData::ProgramsRunning() const
{
    return std::ranges::any_of(applications, [](const auto& launcher) { return launcher->isAlive(); });
}

QStringList PageData::runningNames() const
{
    QStringList names;
    for (const auto& launcher : applications) {
        if (launcher->isRunning()) {
            names += launcher->title();
        } else if (launcher->isAlive()) {
            names += tr("%1 (what it started)").arg(launcher->title());
        }
    }
    return names;
}

void PageData::StopApplications()
{
    for (const auto& launcher : applications) {
        launcher->Terminate();
    }
}

void PageData::ResetApplications()
{
    ExecutableLookup lookup(appRegistry->executableFolders());
    for (const auto& launcher : applications) {
        launcher->Terminate();
        if (!launcher->button) {
            continue;
        }
        if (launcher->startsDisabled) {
            launcher->enableButton(false);
        } else if (launcher->ExecutablesFound(lookup)) {
            launcher->enableButton(true);
        }
    }
}

void PageData::applyGroups(RunAppData* launcher, const QString& trigger)
{
    ExecutableLookup lookup(appRegistry->executableFolders());
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
                target->enableButton(false);
            } else if (member.value() == "enable"_L1 && target->ExecutablesFound(lookup)) {
                target->enableButton(true);
            }
        }
    }
}

QStringList PageData::StartersOf(RunAppData* launcher) const
{
    QStringList names;
    for (const auto& group : conditions) {
        if (group.value(launcher) != "enable"_L1) {
            continue;
        }
        for (auto member = group.cbegin(); member != group.cend(); ++member) {
            if (member.value() == "start"_L1) {
                names += member.key()->title();
            }
        }
    }
    names.removeDuplicates();
    return names;
}

// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/TextExpander.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QGridLayout;
class QXmlStreamReader;
class RunAppData;

/// One page of launcher buttons, as the definitions file lays it out. Sizes and spacings are in pixels.
class PageData : public QObject
{
    Q_OBJECT

public:
    explicit PageData(QObject* parent = nullptr);
    ~PageData() override;

    /// Reads one application element into a new launcher; expand turns its program into a path.
    void ReadApplication(QXmlStreamReader& xml, const TextExpander& expand);
    /// Makes a button for every launcher, with its arrows.
    void BuildButtons(QGridLayout* grid);
    /// True while a launched program runs or an output window is open.
    bool ApplicationsRunning() const;
    /// The same without the windows.
    bool ProgramsRunning() const;
    /// The names of what still runs: launchers, and those that left something running.
    QStringList runningNames() const;
    /// The launchers after whose success this one is enabled, by name.
    QStringList StartersOf(RunAppData* launcher) const;
    void StopApplications();
    /// Stops what runs and gives every button its first state.
    void ResetApplications();
    void SetProjectFile(const QString& file) { projectFile = file; }
    void SetIsORVC(bool isC) { isORVC = isC; }
    /// Applies the condition groups that the launcher ends when it is pressed, or starts when it has succeeded.
    void ConditionsOnActivate(RunAppData* launcher) { applyGroups(launcher, QStringLiteral("finish")); }
    void ConditionsOnComplete(RunAppData* launcher) { applyGroups(launcher, QStringLiteral("start")); }

    static constexpr int usualButtonWidth = 180;
    static constexpr int usualButtonHeight = 50;

    QString titleAttribute;
    QString title;
    QString subtitle;
    QString helpPage;
    int columns = 3;
    int buttonWidth = usualButtonWidth;
    int buttonHeight = usualButtonHeight;
    int horizontalSpacing = 2;
    int verticalSpacing = 2;
    std::vector<std::unique_ptr<RunAppData>> applications;
    /// Of each condition, what its launchers do with it.
    QMap<QString, QMap<RunAppData*, QString>> conditions;
    /// The project the page's tools act on, and whether the C analyser's programs are meant.
    QString projectFile;
    bool isORVC = false;

private:
    void applyGroups(RunAppData* launcher, const QString& trigger);
};

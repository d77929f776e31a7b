// SPDX-License-Identifier: MIT
#include "launchers/LauncherGrid.h"
#include "app/AppRegistry.h"
#include "launchers/ButtonStyle.h"
#include "launchers/PageData.h"
#include "launchers/RunAppData.h"
#include "process/ExecutableLookup.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>

#include <algorithm>

namespace {

constexpr int largestSpan = 100;
constexpr int largestSize = 1000;
constexpr int largestSpacing = 500;

// The layout does not check its cells.
int usableSpan(int span)
{
    return std::clamp(span, 1, largestSpan);
}

// What is no size gives the usual one; what no screen shows is bounded.
int usableSize(int size, int usual)
{
    return size <= 0 ? usual : std::min(size, largestSize);
}

int usableSpacing(int spacing)
{
    return std::clamp(spacing, 0, largestSpacing);
}

int pageButtonWidth(const PageData& page)
{
    return usableSize(page.buttonWidth, PageData::usualButtonWidth);
}

int pageButtonHeight(const PageData& page)
{
    return usableSize(page.buttonHeight, PageData::usualButtonHeight);
}

QSize buttonSize(const PageData& page, const RunAppData& launcher)
{
    const int columns = usableSpan(launcher.columnspan);
    const int rows = usableSpan(launcher.rowspan);
    const int width = usableSize(launcher.buttonwidth, pageButtonWidth(page));
    // An arrow column lies between two button columns, so the gap there counts twice.
    return {width * columns + 2 * (columns - 1) * usableSpacing(page.horizontalSpacing),
            pageButtonHeight(page) * rows + (rows - 1) * usableSpacing(page.verticalSpacing)};
}

QPushButton* createButton(const PageData& page, RunAppData& launcher, ExecutableLookup& lookup)
{
    auto* button = new QPushButton(launcher.name);
    button->setFixedSize(buttonSize(page, launcher));
    if (!launcher.image.isEmpty()) {
        button->setIcon(QIcon(launcher.image));
        if (launcher.name.isEmpty()) {
            button->setIconSize({pageButtonWidth(page) - 2, pageButtonHeight(page) - 2});
            button->setAccessibleName(launcher.description.isEmpty() ? QFileInfo(launcher.CurrentExe()).baseName()
                                                                     : launcher.description);
        }
    }
    SetButtonStyle(button, launcher.colour);
    if (launcher.ExecutablesFound(lookup)) {
        QObject::connect(button, &QPushButton::clicked, &launcher, &RunAppData::Activate);
    } else {
        button->setEnabled(false);
    }
    button->setAttribute(Qt::WA_AlwaysShowToolTips);
    if (launcher.startsDisabled) {
        button->setEnabled(false);
    }
    launcher.attachButton(button);
    return button;
}

void addArrow(QGridLayout& grid, const QString& image, int row, int column)
{
    if (!image.isEmpty()) {
        auto* label = new QLabel;
        SetArrowImage(label, image);
        grid.addWidget(label, row, column);
    }
}

} // namespace

QList<LauncherCell> placeLaunchers(const QList<LauncherSpan>& spans, int columns)
{
    QList<LauncherCell> cells;
    int row = 0;
    int column = 0;
    for (const LauncherSpan& span : spans) {
        const int width = usableSpan(span.columns);
        if (column + width > columns) {
            column = 0;
        }
        cells += {2 * row + 1, 2 * column + 1, 2 * usableSpan(span.rows) - 1, 2 * width - 1};
        column += width;
        if (column >= columns) {
            ++row;
            column = 0;
        }
    }
    return cells;
}

void buildButtons(PageData& page, QGridLayout& grid)
{
    ExecutableLookup lookup(appRegistry->executableFolders());
    grid.setHorizontalSpacing(usableSpacing(page.horizontalSpacing));
    grid.setVerticalSpacing(usableSpacing(page.verticalSpacing));
    grid.setSizeConstraint(QLayout::SetNoConstraint);
    QList<RunAppData*> shown;
    QList<LauncherSpan> spans;
    for (const auto& launcher : page.applications) {
        page.columns = std::max(page.columns, usableSpan(launcher->columnspan));
        if (!launcher->name.isEmpty() || !launcher->CurrentExe().isEmpty()) {
            shown += launcher.get();
            spans += {launcher->columnspan, launcher->rowspan};
        }
    }
    const QList<LauncherCell> cells = placeLaunchers(spans, page.columns);
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const auto& [row, column, rowSpan, columnSpan] = cells[i];
        RunAppData& launcher = *shown[i];
        grid.addWidget(createButton(page, launcher, lookup), row, column, rowSpan, columnSpan);
        addArrow(grid, launcher.aboveImage, row - 1, column);
        addArrow(grid, launcher.belowImage, row + 1, column);
        addArrow(grid, launcher.leftImage, row, column - 1);
        addArrow(grid, launcher.rightImage, row, column + 1);
    }
}

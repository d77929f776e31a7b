// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class PageData;
class QGridLayout;

/// Where a launcher's button goes. Odd rows and columns hold buttons, even ones the arrows between them.
struct LauncherCell
{
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
};

/// What the placement needs to know of a launcher; a span counts as 1 at least and 100 at most.
struct LauncherSpan
{
    int columns = 1;
    int rows = 1;
};

/// Places launchers row by row. One that does not fit into the rest of its row goes back to the row's beginning.
QList<LauncherCell> placeLaunchers(const QList<LauncherSpan>& spans, int columns);

/// Makes a button for every launcher of the page, with its arrows. A launcher that is wider than the page widens it.
void buildButtons(PageData& page, QGridLayout& grid);

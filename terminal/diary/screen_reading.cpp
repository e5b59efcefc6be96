// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/diary/screen_reading.h"

#include "host/controls/super_sheet_wnd.h"
#include "terminal/frame/workspace.h"

#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

std::vector<int> shownColumns(const CSuperSheetWnd& sheet) {
    std::vector<int> columns;
    for (int column = 0; column < sheet.model()->columnCount(); ++column) {
        if (!sheet.isColumnHidden(column))
            columns.push_back(column);
    }
    return columns;
}

int listOf(const CSuperSheetWnd& sheet, const NewsViewAccess& access) {
    int list = 0;
    while (list < NewsViewAccess::lists && access.sheetOf(list) != &sheet)
        ++list;
    return list;
}

void readRows(const CSuperSheetWnd& sheet, const NewsViewAccess& access, SeenScreen& screen) {
    const std::vector<int> columns = shownColumns(sheet);
    for (const int column : columns)
        screen.columns.append(sheet.model()->headerData(column, Qt::Horizontal).toString());
    const int list = listOf(sheet, access);
    for (const int row : sheet.rowsOnScreen()) {
        const std::vector<HeadlineKey> key = access.keysOf(list, row, 1);
        SeenRow seen;
        if (!key.empty())
            seen.key = key.front();
        for (const int column : columns)
            seen.cells.append(sheet.model()->index(row, column).data().toString());
        if (row == sheet.cptGetFocusNdx().y())
            screen.focus = static_cast<int>(screen.rows.size());
        screen.rows.push_back(std::move(seen));
    }
}

void readStory(const QVariantMap& state, SeenScreen& screen) {
    // Both part their lines as a console does.
    const auto linesOf = [&state](const QString& name) { return state.value(name).toString().remove(u'\r'); };
    SeenStory story{linesOf(u"title"_s), linesOf(u"story"_s)};
    if (state.value(u"visible"_s).toBool() && story != SeenStory())
        screen.stories.push_back(std::move(story));
}

}  // namespace

SeenScreen screenOf(const OpenView& view) {
    SeenScreen screen;
    screen.title = view.shownTitle();
    const bool isShown = view.view->isVisible() && !view.view->window()->isMinimized() &&
                         !view.view->visibleRegion().isEmpty();
    const CSuperSheetWnd* sheet = view.shownGrid();
    if (isShown && sheet != nullptr)
        readRows(*sheet, *view.access, screen);
    if (isShown)
        readStory(view.access->storyState(false), screen);
    // The window of a story stands by itself.
    readStory(view.access->storyState(true), screen);
    return screen;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/cell_state.h"
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "headline_list/list_owner.h"
#include "host/contract/view_kinds.h"

#include <QColor>
#include <QLatin1StringView>
#include <QString>

#include <array>

namespace wirepane {

// The columns of headline grids, from left to right: one table that creating, filling, colouring and copying
// read, and by their keys whoever looks at a grid from outside.
enum class HeadlineColumn { Time, Category, Title };

// What the text of a cell is made of.
struct CellSource {
    const CHeadline& headline;
    bool showDate;
    BKQuoteInterface& backEnd;
    ListOwner& owner;
};

struct HeadlineColumnKind {
    HeadlineColumn column;
    QLatin1StringView key;  // by which it is found in a grid, whatever stands before it
    QLatin1StringView headerKey;
    QLatin1StringView toolTipKey = {};  // of the header; empty: none
    QLatin1StringView menuKey = {};     // of the command that shows and hides it; empty: it always shows
    int width;                          // while it is shown, in pixels
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool (*isOf)(NewsType newsType) = [](NewsType) { return true; };
    // True: service, time and number of a row say it. False: only its headline does, and until that is at
    // hand a placeholder stands there.
    bool ofEntry = false;
    QString (*text)(const CellSource& source);
    // Of the text; invalid, and without a function: the grid's own. `written` is null for a row that was not.
    QColor (*colour)(const ListOwner& owner, std::int64_t time, const WrittenCells* written) = nullptr;
};

namespace column_cells {

inline QString time(const CellSource& source) {
    return timeText(source.headline.time, source.showDate);
}

inline QColor timeColour(const ListOwner& owner, std::int64_t time, const WrittenCells*) {
    return owner.timeColour(time);
}

inline QString category(const CellSource& source) {
    const CHeadline& headline = source.headline;
    return shownText(source.backEnd, headline.service,
                     source.owner.categoryNameOf(headline.service, headline.categoryId));
}

inline QColor categoryColour(const ListOwner&, std::int64_t, const WrittenCells* written) {
    return written != nullptr ? written->categoryColour : QColor();
}

inline QString title(const CellSource& source) {
    return shownText(source.backEnd, source.headline.service, source.headline.title);
}

inline bool ofThreeColumns(NewsType newsType) {
    return newsType != NewsType::TwoColumns;
}

}  // namespace column_cells

inline constexpr std::array headlineColumns{
    HeadlineColumnKind{.column = HeadlineColumn::Time,
                       .key = QLatin1StringView("time"),
                       .headerKey = keys::time,
                       .width = 100,
                       .ofEntry = true,
                       .text = column_cells::time,
                       .colour = column_cells::timeColour},
    HeadlineColumnKind{.column = HeadlineColumn::Category,
                       .key = QLatin1StringView("category"),
                       .headerKey = keys::category,
                       .toolTipKey = keys::category,  // wider than its column in some languages
                       .menuKey = keys::showCategory,
                       .width = 50,
                       .isOf = column_cells::ofThreeColumns,
                       .text = column_cells::category,
                       .colour = column_cells::categoryColour},
    HeadlineColumnKind{.column = HeadlineColumn::Title,
                       .key = QLatin1StringView("title"),
                       .headerKey = keys::title,
                       .width = 300,
                       .text = column_cells::title},
};

constexpr const HeadlineColumnKind& kindOf(HeadlineColumn column) {
    return headlineColumns[static_cast<std::size_t>(column)];
}

// The column at a place, counted from 0 at the left, in the grids of a news type; null: there are not so
// many.
const HeadlineColumnKind* headlineColumnAt(NewsType newsType, int place);
// Where a column stands in the grids of a news type; -1: they do not have it.
int placeOf(HeadlineColumn column, NewsType newsType);

}  // namespace wirepane

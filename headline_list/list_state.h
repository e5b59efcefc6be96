// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/arrivals.h"
#include "headline_list/burst_folds.h"
#include "headline_list/cell_state.h"
#include "headline_list/column_widths.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/price_columns.h"
#include "headline_list/reading_place.h"
#include "host/contract/view_options.h"

#include <QElapsedTimer>
#include <QHash>

#include <memory>
#include <optional>

namespace wirepane {
class HeadlineLooks;
class HitFinder;
class NewsRecord;
class ReadingMarks;

// What a headline list is made of. For its own files alone.
struct HeadlineList::State {
    explicit State(BKQuoteInterface& backEnd) : prices(backEnd) {}

    HeadlineTable table;
    CellState cells;
    std::optional<ReadingPlace> heldPlace;
    ViewOptions options;
    ColumnWidths widths;
    PriceColumns prices;
    bool categoryShown = true;
    Arrivals arrivals;
    BurstFolds folds;
    QElapsedTimer clock;  // of the arrivals and the folds
    QTimer fading;
    QHash<unsigned char, QString> serviceNames;  // that were asked for
    std::shared_ptr<const HitFinder> hits;       // what is marked in titles
    HeadlineLooks* looks = nullptr;              // of the back end; null: it has none
    NewsRecord* record = nullptr;                // of the back end; null: it has none
    ReadingMarks* marks = nullptr;               // of the back end; null: it has none
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/headline_lists.h"
#include "headline_list/table_reading.h"
#include "host/views/news_explanation.h"

#include <array>
#include <optional>

namespace wirepane {

// What an explanation must know of a view.
struct ExplainedView {
    BKQuoteInterface& backEnd;
    const HeadlineLists& lists;
    const std::vector<ServiceEntry>& services;  // with the user's ticks
    RelationFilter keySets;                     // the ticked ones
    QString day;                                // of the lists of a day, yyyymmdd
    std::optional<QString> categoryId;          // of the category list; nothing: none is chosen
    std::array<bool, listCount> wasRead{};
    std::array<bool, listCount> wasSearched{};
};

// Why a headline stands in each list that has a grid, or why not. The answer is made by reading the tables of
// its service in the way in which the lists are read, once for each condition.
std::vector<HeadlineStanding> explainHeadline(const ExplainedView& view, const HeadlineKey& key);

}  // namespace wirepane

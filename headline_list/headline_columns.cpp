// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_columns.h"

namespace wirepane {

namespace {

constexpr bool standsInOrder() {
    for (std::size_t place = 0; place < headlineColumns.size(); ++place) {
        if (headlineColumns[place].column != static_cast<HeadlineColumn>(place))
            return false;
    }
    return true;
}
static_assert(standsInOrder(), "the rows of the table stand in the order of HeadlineColumn");

}  // namespace

const HeadlineColumnKind* headlineColumnAt(NewsType newsType, int place) {
    for (const HeadlineColumnKind& kind : headlineColumns) {
        if (kind.isOf(newsType) && place-- == 0)
            return &kind;
    }
    return nullptr;
}

int placeOf(HeadlineColumn column, NewsType newsType) {
    int place = 0;
    while (const HeadlineColumnKind* kind = headlineColumnAt(newsType, place)) {
        if (kind->column == column)
            return place;
        ++place;
    }
    return -1;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/hit_marks.h"

#include "host/contract/query/search_hits.h"

namespace wirepane {

std::shared_ptr<const HitFinder> HitMarks::finderOf(ListIndex list, const CSearch& condition) {
    Prepared& marks = prepared[list];
    if (!(marks.condition == condition))
        marks = {condition, preparedHits(backEnd, condition)};
    return marks.finder;
}

}  // namespace wirepane

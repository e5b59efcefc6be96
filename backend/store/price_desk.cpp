// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/price_desk.h"

namespace wirepane {

namespace {

// Far more than rows are on screen.
constexpr qsizetype mostAnswers = 4096;

}  // namespace

const std::optional<PriceSince>& PriceDesk::since(const HeadlineKey& key) {
    if (known.size() >= mostAnswers && !known.contains({key}))
        known.clear();
    const bool isNew = !known.contains({key});
    Answer& answer = known[{key}];
    if (isNew)
        answer.symbol = symbolOf(key);
    if (answer.symbol && (isNew || changed.value(*answer.symbol) > answer.asOf)) {
        answer.since = book.since(*answer.symbol, key.time);
        answer.asOf = changeCount;
    }
    return answer.since;
}

}  // namespace wirepane

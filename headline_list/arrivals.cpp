// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/arrivals.h"

#include "host/controls/sheet_cells.h"

#include <algorithm>

namespace wirepane {

void Arrivals::note(const HeadlineKey& key, std::int64_t now) {
    constexpr int most = 512;
    if (times.size() >= most)
        times.clear();
    times.insert(key, now);
}

int Arrivals::stepOf(const HeadlineKey& key, std::int64_t now) const {
    const auto come = times.constFind(key);
    if (come == times.cend())
        return 0;
    const auto steps =
        static_cast<int>(std::min<std::int64_t>((now - *come) / stepMs, SheetCells::fullArrival));
    return SheetCells::fullArrival - steps;
}

void Arrivals::forgetFaded(std::int64_t now) {
    times.removeIf([this, now](const auto& come) { return stepOf(come.key(), now) == 0; });
}

}  // namespace wirepane

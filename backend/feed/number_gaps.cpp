// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/number_gaps.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace wirepane {

void NumberGaps::take(std::int64_t number) {
    if (highest && number <= *highest) {
        fill(number);
        return;
    }
    if (highest && number > *highest + 1)
        add(*highest + 1, number - 1);
    highest = number;
}

void NumberGaps::add(std::int64_t first, std::int64_t last) {
    if (last < first)
        return;
    gaps[first] = last;
    count += last - first + 1;
    if (gaps.size() <= mostGaps)
        return;
    count -= gaps.begin()->second - gaps.begin()->first + 1;
    gaps.erase(gaps.begin());
}

void NumberGaps::fill(std::int64_t number) {
    auto gap = gaps.upper_bound(number);
    if (gap == gaps.begin() || (--gap)->second < number)
        return;
    const auto [first, last] = *gap;
    gaps.erase(gap);
    count -= last - first + 1;
    add(first, number - 1);
    add(number + 1, last);
}

QString NumberGaps::text() const {
    QStringList shown;
    for (auto gap = gaps.begin(); gap != gaps.end() && std::size_t(shown.size()) < mostShown; ++gap) {
        const auto [first, last] = *gap;
        shown << (first == last ? QString::number(first) : u"%1-%2"_s.arg(first).arg(last));
    }
    if (gaps.size() > mostShown)
        shown << u"…"_s;
    return shown.join(u", "_s);
}

}  // namespace wirepane

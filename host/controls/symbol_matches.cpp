// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/symbol_matches.h"

#include <algorithm>

namespace wirepane {

namespace {

enum Fit { ExactCode, CodePrefix, NameOrText, NoFit };

Fit fitOf(QStringView item, QStringView typed) {
    const qsizetype blank = item.indexOf(u' ');
    const QStringView code = blank < 0 ? item : item.left(blank);
    if (code.startsWith(typed, Qt::CaseInsensitive))
        return code.size() == typed.size() ? ExactCode : CodePrefix;
    const bool whole = item.startsWith(typed, Qt::CaseInsensitive);
    const bool name = blank >= 0 && item.mid(blank + 1).contains(typed, Qt::CaseInsensitive);
    return whole || name ? NameOrText : NoFit;
}

}  // namespace

std::vector<int> symbolMatches(const QString& typed, int count, const std::function<QString(int)>& text,
                               int most) {
    const QString wanted = typed.trimmed();
    if (wanted.isEmpty())
        return {};
    std::vector<int> groups[NoFit];
    for (int index = 0; index < count; ++index) {
        const Fit fit = fitOf(text(index), wanted);
        if (fit != NoFit)
            groups[fit].push_back(index);
    }
    std::vector<int> matches;
    for (const std::vector<int>& group : groups) {
        const auto room = std::min(group.size(), static_cast<size_t>(std::max(0, most)) - matches.size());
        matches.insert(matches.end(), group.begin(), group.begin() + static_cast<std::ptrdiff_t>(room));
    }
    return matches;
}

}  // namespace wirepane

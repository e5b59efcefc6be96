// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/keyword_match.h"

#include <QStringMatcher>

#include <algorithm>

namespace wirepane {

namespace {

// Turned round, so that the first match is the last one, and folded once for all keywords.
QString foldedBackwards(const QString& text) {
    QString folded(text.size(), Qt::Uninitialized);
    std::transform(text.crbegin(), text.crend(), folded.begin(), [](QChar c) { return c.toCaseFolded(); });
    return folded;
}

}  // namespace

std::optional<TextRange> lastKeywordMatch(const QString& text, const std::vector<QString>& keywords) {
    const QString backwards = keywords.empty() ? QString() : foldedBackwards(text);
    for (auto keyword = keywords.rbegin(); keyword != keywords.rend(); ++keyword) {
        if (keyword->isEmpty())
            continue;
        const qsizetype found = QStringMatcher(foldedBackwards(*keyword)).indexIn(backwards);
        if (found >= 0) {
            const qsizetype end = text.size() - found;
            return TextRange{static_cast<int>(end - keyword->size()), static_cast<int>(end)};
        }
    }
    return {};
}

}  // namespace wirepane

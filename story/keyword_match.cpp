// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/keyword_match.h"

#include <QStringMatcher>

#include <algorithm>

namespace wirepane {

namespace {

// Asking the tables of all characters for each would take most of the time.
QChar folded(QChar c) {
    constexpr char16_t asciiEnd = 0x80;
    constexpr char16_t caselessFrom = 0x2E80;  // the scripts of East Asia
    constexpr char16_t caselessEnd = 0xA640;
    if (c.unicode() < asciiEnd)
        return c >= u'A' && c <= u'Z' ? QChar(c.unicode() + (u'a' - u'A')) : c;
    return c.unicode() >= caselessFrom && c.unicode() < caselessEnd ? c : c.toCaseFolded();
}

// Turned round, so that the first match is the last one, and folded once for all keywords.
QString foldedBackwards(const QString& text) {
    QString backwards(text.size(), Qt::Uninitialized);
    std::transform(text.crbegin(), text.crend(), backwards.begin(), folded);
    return backwards;
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

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/search/plain_scan.h"

#include "tests/support/keyword_rule.h"

#include <QByteArrayMatcher>

#include <algorithm>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostKeywordWords = 256;

QByteArray joined(const QStringList& words) {
    return words.isEmpty() ? QByteArray() : ' ' + words.join(u' ').toUtf8() + ' ';
}

}  // namespace

void PlainScan::add(const NewsItem& item) {
    const QString story = item.story.value_or(QString()).replace(u"@@@@"_s, u"\n"_s);
    entries.push_back(
        {item.service, item.identity, joined(words.of(item.title)), joined(words.of(story)), item.related});
}

QStringList PlainScan::find(unsigned char service, const CSearch& condition) const {
    std::vector<QByteArrayMatcher> phrases;
    for (const QString& keyword : condition.keywords) {
        QStringList wanted = words.of(keyword);
        wanted.removeAll(u"\n"_s);
        if (!wanted.isEmpty())
            phrases.emplace_back(joined(wanted.first(std::min(wanted.size(), mostKeywordWords))));
    }
    QStringList found;
    for (const Entry& entry : entries) {
        if (entry.service != service || phrases.empty())
            continue;
        const auto holds = [&](const QByteArrayMatcher& phrase) {
            return (condition.scope != 1 && phrase.indexIn(entry.title) >= 0) ||
                   (condition.scope != 0 && phrase.indexIn(entry.story) >= 0);
        };
        const auto named = [&](const CSymbolInfo& symbol) {
            return std::any_of(entry.related.begin(), entry.related.end(), [&](const CSymbolInfo& ref) {
                return ref.code == symbol.code && (ref.market == symbol.market || ref.market == 0);
            });
        };
        const auto& symbols = condition.symbols;
        const auto held = std::count_if(phrases.begin(), phrases.end(), holds);
        const bool fits = fitsKeywords(static_cast<SearchMethod>(condition.method),
                                       static_cast<std::size_t>(held), phrases.size());
        if (fits && (symbols.empty() || std::any_of(symbols.begin(), symbols.end(), named)))
            found += entry.identity;
    }
    found.sort();
    return found;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/search/plain_scan.h"

#include "backend/search/search_words.h"

#include <QByteArrayMatcher>

#include <algorithm>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

enum class LineEnds { Words, Blanks };

QByteArray joined(const QString& text, LineEnds lineEnds) {
    const QByteArray utf8 = text.toUtf8();
    QByteArray words = " ";
    WordReader reader(utf8);
    while (reader.next()) {
        if (lineEnds == LineEnds::Words || !reader.isLineEnd())
            words.append(reader.word().data(), qsizetype(reader.word().size())).append(' ');
    }
    return words;
}

}  // namespace

void PlainScan::add(const NewsItem& item) {
    const QString story = item.story.value_or(QString()).replace(u"@@@@"_s, u"\n"_s);
    entries.push_back({item.service, item.identity, joined(item.title, LineEnds::Words),
                       joined(story, LineEnds::Words), item.related});
}

QStringList PlainScan::find(unsigned char service, const CSearch& condition) const {
    std::vector<QByteArrayMatcher> phrases;
    for (const QString& keyword : condition.keywords) {
        const QString text = keywordText(keyword);
        if (!text.isEmpty())
            phrases.emplace_back(joined(text, LineEnds::Blanks));
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
            return std::any_of(entry.related.begin(), entry.related.end(), [&](const SymbolRef& ref) {
                return ref.code == symbol.code && (ref.market == symbol.market || ref.market == 0);
            });
        };
        const auto& symbols = condition.symbols;
        const bool all = condition.method == 2 ? std::any_of(phrases.begin(), phrases.end(), holds)
                                               : std::all_of(phrases.begin(), phrases.end(), holds);
        if (all && (symbols.empty() || std::any_of(symbols.begin(), symbols.end(), named)))
            found += entry.identity;
    }
    found.sort();
    return found;
}

}  // namespace wirepane

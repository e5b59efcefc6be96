// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/news_search.h"

#include "backend/database/read_transaction.h"
#include "backend/words/search_words.h"
#include "host/contract/search_choices.h"

#include <QStringList>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr int stopAskedEvery = 256;  // matches

// What is quoted is never read as operators. The text is split into words there, once: a word that is split
// again may fall apart ("1,234" is one, but "1,2345" is not, with which "1,234" and a full-width "5" go on).
QString phraseOf(QString text) {
    return u'"' + text.replace(u'\0', u' ').replace(u'"', u"\"\""_s) + u'"';
}

QString withinScope(const QString& phrases, SearchScope scope) {
    if (scope == SearchScope::Both)
        return phrases;
    return (scope == SearchScope::Headlines ? u"title : ("_s : u"story : ("_s) + phrases + u')';
}

// The queries whose matches together are those of the condition. What must all be there is asked for at once:
// the index passes over the many matches of one word that those of a rare one leave behind. What may be there
// is cheaper to put together here.
QStringList queriesOf(const CSearch& condition) {
    QStringList phrases;
    for (const QString& keyword : condition.keywords) {
        if (const QString text = keywordText(keyword); !text.isEmpty())
            phrases += phraseOf(text);
    }
    if (condition.method != numberOf(SearchMethod::Any) && !phrases.isEmpty())
        phrases = {phrases.join(u" AND "_s)};
    for (QString& query : phrases)
        query = withinScope(query, scopeOf(condition.scope));
    return phrases;
}

}  // namespace

NewsSearch::NewsSearch(Database& database)
    : store(database),
      keys(database),
      version(database),
      matching(database, "SELECT rowid FROM news_search WHERE news_search MATCH ?"),
      naming(database,
             "SELECT headline FROM related_symbols WHERE service = ? AND market IN (?, 0) AND code = ?") {}

std::optional<std::vector<CHeadlineTable>> NewsSearch::find(unsigned char service, const CSearch& condition,
                                                            const std::atomic<bool>* stop) {
    stopping = stop;
    const ReadTransaction moment(store);
    const int damagesBefore = store.damages();
    std::optional<std::vector<CHeadlineTable>> found = findNow(service, condition);
    if (store.damages() != damagesBefore)
        found.reset();
    return found;
}

void NewsSearch::prepare() {
    keys.catchUp();
}

std::optional<std::vector<CHeadlineTable>> NewsSearch::findNow(unsigned char service,
                                                               const CSearch& condition) {
    const std::optional<std::int64_t> present = version.read();
    if (!last || !(last->condition == condition) || last->version != present) {
        last.reset();
        std::optional<IdSet> ids = matches(condition);
        if (!ids)
            return std::nullopt;
        last = {condition, present, *std::move(ids)};
    }
    IdSet named;
    for (const CSymbolInfo& symbol : condition.symbols) {
        if (!addNamed(named, service, symbol))
            return std::nullopt;
    }
    if (!condition.symbols.empty())
        named.keepCommon(last->ids);
    const IdSet& ids = condition.symbols.empty() ? last->ids : named;
    return keys.entries(service, ids);
}

std::optional<IdSet> NewsSearch::matches(const CSearch& condition) {
    IdSet found;
    for (const QString& query : queriesOf(condition)) {
        if (!addMatches(found, query))
            return std::nullopt;
    }
    return found;
}

bool NewsSearch::addMatches(IdSet& ids, const QString& text) {
    Query query(matching, text);
    for (int count = 0; query.next(); ++count) {
        if (count % stopAskedEvery == 0 && isStopped())
            return false;
        ids.add(query.number(0));
    }
    return !query.failed();
}

bool NewsSearch::addNamed(IdSet& ids, unsigned char service, const CSymbolInfo& symbol) {
    Query query(naming, service, symbol.market, symbol.code);
    while (query.next())
        ids.add(query.number(0));
    return !query.failed();
}

}  // namespace wirepane

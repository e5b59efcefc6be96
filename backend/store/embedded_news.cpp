// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The look-ups of the back end into its news: tables, headlines, stories; and how far its index is.
#include "backend/store/embedded_back_end.h"
#include "backend/store/import_upkeep.h"
#include "backend/store/index_renewal.h"
#include "host/contract/clock.h"

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

// What is dated ahead is in it, too.
DayBounds EmbeddedBackEnd::newsRange() {
    const QDate first = host_clock::today().addDays(-BKQbyGetNewsDateRange());
    return {boundsOf(first).begin, std::numeric_limits<std::int64_t>::max()};
}

void EmbeddedBackEnd::setQuietSources(std::vector<QuietSource> sources) {
    if (quiet == sources)
        return;
    quiet = std::move(sources);
    emit quietTells.changed();
}

int EmbeddedBackEnd::tableOf(unsigned char service, std::vector<CHeadlineTable>& table,
                             const CSymbolInfo& symbol) {
    const std::size_t before = table.size();
    if (!symbol.code.isEmpty())
        reader.appendSymbol(table, service, symbol, newsRange());
    laterNews.takeOut(table, before);
    return static_cast<int>(table.size() - before);
}

int EmbeddedBackEnd::tableOf(unsigned char service, std::vector<CHeadlineTable>& table, int kind,
                             const QString& key) {
    const std::size_t before = table.size();
    bool isNumber = false;
    const int category = key.toInt(&isNumber);
    if (kind == static_cast<int>(TableKind::ByDate)) {
        days.append(table, service, dayOfText(key));
    } else if (kind == static_cast<int>(TableKind::Search) ||
               kind == static_cast<int>(TableKind::SecondSearch)) {
        searches.table(service, kind).appendTo(table, service);
    } else if (kind == static_cast<int>(TableKind::ByCategory) && isNumber) {
        reader.appendCategory(table, service, category, newsRange());
    }
    laterNews.takeOut(table, before);
    return static_cast<int>(table.size() - before);
}

int EmbeddedBackEnd::BKQNEWS_iGetHeadlineTable(std::vector<CHeadlineTable>& table, unsigned char service,
                                               const CSymbolInfo& symbol) {
    requests.add(u"BKQNEWS_iGetHeadlineTable"_s, {service, symbol.market, symbol.code});
    if (answers.isHeld(Held::Tables))
        return 0;
    return tableOf(service, table, symbol);
}

int EmbeddedBackEnd::BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table,
                                               int kind, const QString& key) {
    requests.add(u"BKQNEWS_iGetHeadlineTable"_s, {service, kind, key});
    if (answers.isHeld(Held::Tables))
        return 0;
    return tableOf(service, table, kind, key);
}

int EmbeddedBackEnd::BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                          const std::vector<CHeadlineTable>& entries) {
    if (answers.isHeld(Held::Headlines)) {
        awaited.insert(entries.begin(), entries.end());
        return 0;
    }
    int count = 0;
    for (const CHeadlineTable& entry : entries) {
        const CHeadline* const headline =
            entry.service == service ? headlineCache.find(keyOf(entry)) : nullptr;
        if (headline == nullptr)
            continue;
        headlines.push_back(*headline);
        ++count;
    }
    return count;
}

bool EmbeddedBackEnd::BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) {
    const bool held = answers.isHeld(Held::Stories);
    std::optional<QString> text = held ? std::nullopt : reader.story(keyOf(entry));
    if (!text || (text->isEmpty() && tellingOf != keyOf(entry))) {
        if (held || text)
            announceStory(entry);
        return false;
    }
    story.time = entry.time;
    story.text = *std::move(text);
    story.entry = entry;
    return true;
}

bool EmbeddedBackEnd::BKNEWS_GetSymbolListBySeqNo(CNewsSymLst& symbols, const CHeadlineTable& entry) {
    std::optional<std::vector<CSymbolInfo>> found = reader.relatedSymbols(keyOf(entry));
    if (!found)
        return false;
    symbols.symbols = *std::move(found);
    return true;
}

void EmbeddedBackEnd::followIndex() {
    const std::int64_t before =
        std::exchange(unindexed, unindexedHeadlines(*connections.reading).value_or(0));
    const std::optional<int> renewalBefore = std::exchange(renewal, renewalPercent(*connections.reading));
    if ((before > 0 && unindexed == 0) || (renewalBefore && !renewal))
        searches.renew();
}

}  // namespace wirepane

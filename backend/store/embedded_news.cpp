// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The look-ups of the back end into its news: tables, headlines, stories.
#include "backend/store/embedded_back_end.h"
#include "host/contract/clock.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The days that a table without a date reaches over.
DayBounds newsRange(int daysBack) {
    const QDate today = host_clock::today();
    return {boundsOf(today.addDays(-daysBack)).begin, boundsOf(today).end};
}

}  // namespace

int EmbeddedBackEnd::tableOf(unsigned char service, std::vector<CHeadlineTable>& table,
                             const CSymbolInfo& symbol) {
    if (symbol.code.isEmpty())
        return 0;
    return reader.appendSymbol(table, service, symbol, newsRange(BKQbyGetNewsDateRange()));
}

int EmbeddedBackEnd::tableOf(unsigned char service, std::vector<CHeadlineTable>& table, int kind,
                             const QString& key) {
    if (kind == static_cast<int>(TableKind::ByDate)) {
        catchUp();
        return days.append(table, service, dayOfText(key));
    }
    if (kind == static_cast<int>(TableKind::Search) || kind == static_cast<int>(TableKind::SecondSearch)) {
        const std::vector<CHeadlineTable>& found = searches.table(service, kind);
        table.insert(table.end(), found.begin(), found.end());
        return static_cast<int>(found.size());
    }
    bool isNumber = false;
    const int category = key.toInt(&isNumber);
    if (kind != static_cast<int>(TableKind::ByCategory) || !isNumber)
        return 0;
    return reader.appendCategory(table, service, category, newsRange(BKQbyGetNewsDateRange()));
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
    catchUp();
    int count = 0;
    for (const CHeadlineTable& entry : entries) {
        const CHeadline* const headline =
            entry.service == service ? headlineCache.find(KeyOf(entry)) : nullptr;
        if (headline == nullptr)
            continue;
        headlines.push_back(*headline);
        ++count;
    }
    return count;
}

bool EmbeddedBackEnd::BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) {
    std::optional<QString> text = answers.isHeld(Held::Stories) ? std::nullopt : reader.story(KeyOf(entry));
    if (!text)
        return false;
    story.time = entry.time;
    story.text = *std::move(text);
    story.entry = entry;
    return true;
}

bool EmbeddedBackEnd::BKNEWS_GetSymbolListBySeqNo(CNewsSymLst& symbols, const CHeadlineTable& entry) {
    std::optional<std::vector<CSymbolInfo>> found = reader.relatedSymbols(KeyOf(entry));
    if (!found)
        return false;
    symbols.symbols = *std::move(found);
    return true;
}

}  // namespace wirepane

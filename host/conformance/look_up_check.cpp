// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/conformance/look_up_check.h"

#include <QDate>

#include <algorithm>
#include <limits>
#include <set>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int lastService = 255;
constexpr std::size_t mostEntries = 200;  // looked up one by one; a day may have a million
const QString sentinel = u"unchanged"_s;
const QString noSuchCode = u"no such symbol!"_s;

QString of(const char* operation, int service) {
    return u"%1, service %2: "_s.arg(QLatin1StringView(operation)).arg(service);
}

std::vector<unsigned char> checkServices(BKQuoteInterface& backEnd, Findings& findings) {
    std::vector<unsigned char> services{1, 1, 1};
    if (!backEnd.BKQNEWS_bGetAllNewsService(services)) {
        findings.expect(services.empty(), u"BKQNEWS_bGetAllNewsService answers false and leaves services."_s);
        return {};
    }
    const std::set<unsigned char> different(services.begin(), services.end());
    findings.expect(!services.empty(), u"BKQNEWS_bGetAllNewsService answers true and gives no service."_s);
    findings.expect(different.size() == services.size(),
                    u"BKQNEWS_bGetAllNewsService gives a service twice, or appends to what was there."_s);
    return services;
}

void checkNames(BKQuoteInterface& backEnd, const std::vector<unsigned char>& services, Findings& findings) {
    bool namesOthers = false;
    for (int service = 0; service <= lastService; ++service) {
        const auto id = static_cast<unsigned char>(service);
        const bool known = std::find(services.begin(), services.end(), id) != services.end();
        for (const bool full : {true, false}) {
            const char* operation = full ? "BKQNEWS_bGetFullNameByService" : "BKQNEWS_bGetShortNameByService";
            QString name = sentinel;
            const bool given = full ? backEnd.BKQNEWS_bGetFullNameByService(name, id)
                                    : backEnd.BKQNEWS_bGetShortNameByService(name, id);
            findings.expect(!known || given, of(operation, service) + u"there is no name."_s);
            findings.expect(given || name == sentinel,
                            of(operation, service) + u"answers false and changes the name."_s);
            // Once is enough: who names one, names all.
            if (given && !known && !namesOthers) {
                namesOthers = true;
                findings.expect(false, of(operation, service) + u"there is a name, and no such service."_s);
            }
        }
        if (!known)
            continue;
        const QString day = backEnd.BKQNEWS_cszGetCurrDateByService(id);
        findings.expect(QDate::fromString(day, u"yyyyMMdd"_s).isValid(),
                        of("BKQNEWS_cszGetCurrDateByService", service) +
                            u"\"%1\" is no day in the form yyyymmdd."_s.arg(day));
    }
}

void checkCategories(BKQuoteInterface& backEnd, unsigned char service, Findings& findings) {
    std::vector<QString> ids{sentinel};
    std::vector<QString> names;
    const bool given = backEnd.bNewsAPI_GetNewsCatId(service, ids, names);
    const QString where = of("bNewsAPI_GetNewsCatId", service);
    findings.expect(given || (ids.empty() && names.empty()), where + u"answers false and gives something."_s);
    findings.expect(ids.size() == names.size(),
                    where + u"there are %1 ids and %2 names."_s.arg(ids.size()).arg(names.size()));
    for (const QString& id : ids) {
        bool isNumber = false;
        id.toInt(&isNumber);
        findings.expect(isNumber, where + u"the id \"%1\" is no decimal number."_s.arg(id));
    }
}

void checkSymbols(BKQuoteInterface& backEnd, unsigned char service, Findings& findings) {
    std::vector<QString> codes{sentinel};
    std::vector<QString> names;
    const bool given = backEnd.bGetSymbolID(service, codes, names);
    const QString where = of("bGetSymbolID", service);
    findings.expect(given || (codes.empty() && names.empty()),
                    where + u"answers false and gives something."_s);
    findings.expect(codes.size() == names.size(),
                    where + u"there are %1 codes and %2 names."_s.arg(codes.size()).arg(names.size()));
    for (std::size_t i = 0; i < codes.size() && i < mostEntries; ++i) {
        findings.expect(backEnd.bIsSymbolIDExist(service, codes[i]) == 1,
                        of("bIsSymbolIDExist", service) + u"\"%1\" is listed and unknown."_s.arg(codes[i]));
    }
    findings.expect(backEnd.bIsSymbolIDExist(service, noSuchCode) != 1,
                    of("bIsSymbolIDExist", service) + u"\"%1\" is known."_s.arg(noSuchCode));
    constexpr int unchanged = -12345;
    int category = unchanged;
    findings.expect(backEnd.bGetCategorybySymbolID(category, service, noSuchCode) || category == unchanged,
                    of("bGetCategorybySymbolID", service) + u"answers false and changes the category."_s);
    QString value = sentinel;
    findings.expect(
        backEnd.bGetItemDataByItemNo(value, service, noSuchCode, symbol_items::name) || value == sentinel,
        of("bGetItemDataByItemNo", service) + u"answers false and changes the value."_s);
}

// One table: it is appended to what is there, counted, and the service's own.
std::vector<CHeadlineTable> checkTable(BKQuoteInterface& backEnd, unsigned char service, int kind,
                                       const QString& key, Findings& findings) {
    const CHeadlineTable before{-1, -1, service, -1, -1};
    std::vector<CHeadlineTable> table{before};
    const int count = backEnd.BKQNEWS_iGetHeadlineTable(service, table, kind, key);
    const QString where =
        of("BKQNEWS_iGetHeadlineTable", service) + u"kind %1, key \"%2\": "_s.arg(kind).arg(key.left(20));
    if (!findings.expect(!table.empty() && keyOf(table.front()) == keyOf(before),
                         where + u"what was in the table before is gone."_s))
        return {};
    table.erase(table.begin());
    findings.expect(count == static_cast<int>(table.size()),
                    where + u"says %1 and appends %2 entries."_s.arg(count).arg(table.size()));
    findings.expect(std::all_of(table.begin(), table.end(),
                                [&](const CHeadlineTable& entry) { return entry.service == service; }),
                    where + u"an entry belongs to another service."_s);
    std::set<std::pair<std::int64_t, std::int32_t>> keys;
    for (const CHeadlineTable& entry : table)
        keys.emplace(entry.time, entry.sequence);
    findings.expect(keys.size() == table.size(), where + u"two entries have one key."_s);
    return table;
}

// Entries that look like the service's own and stand for nothing: a number, and a time, that no headline has.
std::vector<CHeadlineTable> inventedEntries(unsigned char service,
                                            const std::vector<CHeadlineTable>& entries) {
    constexpr std::int64_t years = 100LL * 365 * 86400;
    CHeadlineTable number = entries.empty() ? CHeadlineTable{1, 1, service, 0, 0} : entries.front();
    CHeadlineTable time = number;
    number.sequence = std::numeric_limits<std::int32_t>::max();
    time.time -= years;
    return {number, time};
}

void checkHeadlines(BKQuoteInterface& backEnd, unsigned char service,
                    const std::vector<CHeadlineTable>& entries, Findings& findings) {
    const QString where = of("BKQNEWS_iGetHeadline", service);
    std::vector<CHeadlineTable> asked = entries;
    CHeadlineTable stranger = entries.empty() ? CHeadlineTable() : entries.front();
    stranger.service = static_cast<unsigned char>(service + 1);
    asked.push_back(stranger);
    std::vector<CHeadline> headlines(1);
    const int count = backEnd.BKQNEWS_iGetHeadline(service, headlines, asked);
    if (!findings.expect(!headlines.empty(), where + u"what was in the list before is gone."_s))
        return;
    headlines.erase(headlines.begin());
    findings.expect(count == static_cast<int>(headlines.size()),
                    where + u"says %1 and appends %2 headlines."_s.arg(count).arg(headlines.size()));
    auto place = entries.begin();
    for (const CHeadline& headline : headlines) {
        place = std::find_if(place, entries.end(),
                             [&](const CHeadlineTable& entry) { return keyOf(entry) == keyOf(headline); });
        if (!findings.expect(
                place != entries.end(),
                where + u"headline %1 was not asked for, or comes out of the order of the entries."_s.arg(
                            headline.sequence)))
            return;
        ++place;
    }
    std::vector<CHeadline> invented;
    findings.expect(backEnd.BKQNEWS_iGetHeadline(service, invented, inventedEntries(service, entries)) == 0 &&
                        invented.empty(),
                    where + u"there is a headline of an entry that stands for nothing."_s);
}

void checkStories(BKQuoteInterface& backEnd, unsigned char service,
                  const std::vector<CHeadlineTable>& entries, Findings& findings) {
    for (const CHeadlineTable& entry : inventedEntries(service, entries)) {
        CStory story;
        findings.expect(
            !backEnd.BKQNEWS_bGetStory(story, entry),
            of("BKQNEWS_bGetStory", service) + u"there is a story of an entry that stands for nothing."_s);
    }
    std::vector<CHeadlineTable> asked = entries;
    asked.push_back({-1, -1, 0, -1, -1});
    for (const CHeadlineTable& entry : asked) {
        CStory story;
        story.text = sentinel;
        const QString where = u"%1, number %2: "_s.arg(entry.service).arg(entry.sequence);
        if (backEnd.BKQNEWS_bGetStory(story, entry))
            findings.expect(
                keyOf(story.entry) == keyOf(entry),
                u"BKQNEWS_bGetStory, service "_s + where + u"gives the story of another headline."_s);
        else
            findings.expect(story.text == sentinel, u"BKQNEWS_bGetStory, service "_s + where +
                                                        u"answers false and changes the story."_s);
        CNewsSymLst related;
        related.symbols = {{1, sentinel}};
        findings.expect(
            backEnd.BKNEWS_GetSymbolListBySeqNo(related, entry) ||
                (related.symbols.size() == 1 && related.symbols.front().code == sentinel),
            u"BKNEWS_GetSymbolListBySeqNo, service "_s + where + u"answers false and changes the symbols."_s);
    }
}

}  // namespace

std::vector<unsigned char> checkCatalogues(BKQuoteInterface& backEnd, Findings& findings) {
    const std::vector<unsigned char> services = checkServices(backEnd, findings);
    checkNames(backEnd, services, findings);
    for (int service = 0; service <= lastService; ++service) {
        checkCategories(backEnd, static_cast<unsigned char>(service), findings);
        checkSymbols(backEnd, static_cast<unsigned char>(service), findings);
    }
    const QString unknown = u"NO_SUCH_TEXT"_s;
    findings.expect(backEnd.LangGetLangString(unknown) == unknown,
                    u"LangGetLangString: an unknown key is not given back as it is."_s);
    return services;
}

std::vector<CHeadlineTable> checkNews(BKQuoteInterface& backEnd, unsigned char service, Findings& findings) {
    constexpr int byDate = static_cast<int>(TableKind::ByDate);
    constexpr int longKey = 100000;
    for (const int kind : {byDate, static_cast<int>(TableKind::ByCategory), -1, 99}) {
        for (const QString& key :
             {QString(), u"99999999"_s, u"2026-03-02"_s, QString(longKey, u'7'), QString(QChar(0xd800))}) {
            findings.expect(
                checkTable(backEnd, service, kind, key, findings).empty(),
                of("BKQNEWS_iGetHeadlineTable", service) +
                    u"there is news of kind %1 under the key \"%2\"."_s.arg(kind).arg(key.left(20)));
        }
    }
    std::vector<CHeadlineTable> bySymbol;
    findings.expect(
        backEnd.BKQNEWS_iGetHeadlineTable(bySymbol, service, {service, noSuchCode}) == 0 && bySymbol.empty(),
        of("BKQNEWS_iGetHeadlineTable", service) + u"there is news of the symbol \"%1\"."_s.arg(noSuchCode));
    std::vector<CHeadlineTable> entries =
        checkTable(backEnd, service, byDate, backEnd.BKQNEWS_cszGetCurrDateByService(service), findings);
    entries.resize(std::min(entries.size(), mostEntries));
    checkHeadlines(backEnd, service, entries, findings);
    checkStories(backEnd, service, entries, findings);
    return entries;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"

#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

CHeadlineTable entryOf(const HeadlineKey& key) {
    return {key.time, key.sequence, key.service, 0, 0};
}

// The days that a table without a date reaches over.
DayBounds newsRange(int daysBack) {
    const QDate today = host_clock::today();
    return {boundsOf(today.addDays(-daysBack)).begin, boundsOf(today).end};
}

// How a table's answer says whether there was anything.
signed char statusOf(int entries) {
    return entries > 0 ? 0 : -1;
}

}  // namespace

Result<std::unique_ptr<EmbeddedBackEnd>> EmbeddedBackEnd::open(const QString& storePath) {
    Result<std::unique_ptr<Database>> store = openStore(storePath);
    if (!store)
        return Error{store.error()};
    return std::make_unique<EmbeddedBackEnd>(std::move(store.value()));
}

EmbeddedBackEnd::EmbeddedBackEnd(std::unique_ptr<Database> store)
    : database(std::move(store)),
      reader(*database),
      writer(*database),
      days(*database),
      headlineCache(reader) {}

void EmbeddedBackEnd::catchUp() {
    if (!reader.changedElsewhere())
        return;
    days.clear();
    headlineCache.clear();
    symbolsRead = false;
}

// --- Taking in ---

Result<TakeOutcome> EmbeddedBackEnd::takeIn(const StoreItem& item) {
    catchUp();
    if (Done begun = writer.begin(); !begun)
        return Error{begun.error()};
    if (const auto* news = std::get_if<NewsItem>(&item))
        return takeInNews(*news);
    const Result<TakeOutcome> outcome = writer.take(item);
    if (!outcome)
        return outcome;
    if (Done kept = writer.commit(); !kept)
        return Error{kept.error()};
    const auto* symbol = std::get_if<SymbolItem>(&item);
    if (symbol != nullptr && outcome.value().take == Take::TakenIn) {
        symbolTable.put(*symbol);
        const std::vector<CSymbolUpdateInfo> changes{{symbol->market, symbol->code}};
        ForEachReceiver([&](NewsReceiver& receiver) { receiver.vDoSymbolUpdate(changes); });
    }
    return outcome;
}

Result<TakeOutcome> EmbeddedBackEnd::takeInNews(const NewsItem& item) {
    const Result<StoredNews> stored = writer.takeNews(item);
    if (!stored)
        return Error{stored.error()};
    if (Done kept = writer.commit(); !kept)
        return Error{kept.error()};
    const StoredNews& news = stored.value();
    if (news.outcome.take != Take::TakenIn)
        return news.outcome;
    if (news.before) {
        days.remove(*news.before);
        headlineCache.forget(*news.before);
    }
    days.add(news.key);
    tell(news);
    return news.outcome;
}

void EmbeddedBackEnd::tell(const StoredNews& stored) {
    if (stored.onlyStory) {
        const CHeadlineTable entry = entryOf(stored.key);
        ForEachReceiver([&](NewsReceiver& receiver) { receiver.RespStory(entry); });
        return;
    }
    const CHeadline* const read = headlineCache.find(stored.key);
    if (read == nullptr)
        return;
    // A receiver may look other headlines up meanwhile.
    const CHeadline headline = *read;
    const auto symbols = reader.relatedSymbols(stored.key);
    const QString code = symbols && !symbols->empty() ? symbols->front().code : QString();
    const QString category = QString::number(headline.categoryId);
    ForEachReceiver([&](NewsReceiver& receiver) { receiver.RecvNewHeadLine(&headline, category, code); });
}

// --- Registration ---

void EmbeddedBackEnd::RegisterSymbols(NewsReceiver* view, const std::vector<CSymbolInfo>& added,
                                      const std::vector<CSymbolInfo>& removed) {
    std::set<unsigned char>& services = registrations[view];
    for (const CSymbolInfo& symbol : added) {
        if (symbol.code.isEmpty())
            services.insert(symbol.market);
    }
    for (const CSymbolInfo& symbol : removed) {
        if (symbol.code.isEmpty())
            services.erase(symbol.market);
    }
}

void EmbeddedBackEnd::UnregisterSymbols(NewsReceiver* view) {
    registrations.erase(view);
}

std::vector<unsigned char> EmbeddedBackEnd::registeredServices(NewsReceiver* receiver) const {
    const auto found = registrations.find(receiver);
    if (found == registrations.end())
        return {};
    return {found->second.begin(), found->second.end()};
}

// --- Symbols ---

SymbolTable& EmbeddedBackEnd::symbols() {
    if (!symbolsRead)
        symbolsRead = static_cast<bool>(symbolTable.load(*database));
    return symbolTable;
}

bool EmbeddedBackEnd::bGetAllServiceID(std::vector<unsigned char>& services) {
    services = symbols().markets();
    return !services.empty();
}

// The delayed Hong Kong market is a service of its own where a store has it.
bool EmbeddedBackEnd::bGetServiceID2Delay(unsigned char service, unsigned char& delayed) {
    if (service != hongKongService)
        return false;
    const std::vector<unsigned char> markets = symbols().markets();
    if (std::find(markets.begin(), markets.end(), delayedHongKongService) == markets.end())
        return false;
    delayed = delayedHongKongService;
    return true;
}

int EmbeddedBackEnd::bIsFromTheSameAuthServiceID(unsigned char service, unsigned char other) {
    const auto group = [](unsigned char id) { return id == delayedHongKongService ? hongKongService : id; };
    return group(service) == group(other) ? 1 : 0;
}

bool EmbeddedBackEnd::bGetSymbolID(unsigned char service, std::vector<QString>& codes,
                                   std::vector<QString>& names) {
    return symbols().GetSymbolsByService(service, codes, names, 0);
}

int EmbeddedBackEnd::bIsSymbolIDExist(unsigned char service, const QString& code) {
    return symbols().find(service, code) != nullptr ? 1 : 0;
}

bool EmbeddedBackEnd::bGetCategorybySymbolID(int& category, unsigned char service, const QString& code) {
    const SymbolItem* symbol = symbols().find(service, code);
    if (symbol == nullptr)
        return false;
    category = symbol->category;
    return true;
}

// --- Services ---

bool EmbeddedBackEnd::BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& services) {
    services = reader.serviceIds();
    return !services.empty();
}

bool EmbeddedBackEnd::BKQNEWS_bGetFullNameByService(QString& name, unsigned char service) {
    const std::optional<StoredService> found = reader.service(service);
    if (found)
        name = found->fullName;
    return found.has_value();
}

bool EmbeddedBackEnd::BKQNEWS_bGetShortNameByService(QString& name, unsigned char service) {
    const std::optional<StoredService> found = reader.service(service);
    if (found)
        name = found->shortName;
    return found.has_value();
}

QString EmbeddedBackEnd::BKQNEWS_cszGetCurrDateByService(unsigned char) {
    return host_clock::today().toString(u"yyyyMMdd"_s);
}

bool EmbeddedBackEnd::bNewsAPI_GetNewsCatId(unsigned char service, std::vector<QString>& ids,
                                            std::vector<QString>& names) {
    ids.clear();
    names.clear();
    for (const StoredCategory& category : reader.categories(service)) {
        ids.push_back(QString::number(category.id));
        names.push_back(category.name);
    }
    return !ids.empty();
}

int EmbeddedBackEnd::BKQCheckAuthSupport(unsigned char service) {
    const std::optional<StoredService> found = reader.service(service);
    return found && found->authorised ? 1 : 0;
}

QColor EmbeddedBackEnd::categoryColour(std::int32_t id, unsigned char service) {
    const QString colour = reader.categoryColour(service, id);
    return colour.isEmpty() ? QColor() : QColor(colour);
}

// --- Headlines and stories ---

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
    bool isNumber = false;
    const int category = key.toInt(&isNumber);
    if (kind != static_cast<int>(TableKind::ByCategory) || !isNumber)
        return 0;
    return reader.appendCategory(table, service, category, newsRange(BKQbyGetNewsDateRange()));
}

int EmbeddedBackEnd::BKQNEWS_iGetHeadlineTable(std::vector<CHeadlineTable>& table, unsigned char service,
                                               const CSymbolInfo& symbol) {
    requests.add(u"BKQNEWS_iGetHeadlineTable"_s, {service, symbol.market, symbol.code});
    return tableOf(service, table, symbol);
}

int EmbeddedBackEnd::BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table,
                                               int kind, const QString& key) {
    requests.add(u"BKQNEWS_iGetHeadlineTable"_s, {service, kind, key});
    return tableOf(service, table, kind, key);
}

int EmbeddedBackEnd::BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                          const std::vector<CHeadlineTable>& entries) {
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
    std::optional<QString> text = reader.story(KeyOf(entry));
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

// --- Requests ---

void EmbeddedBackEnd::tellLater(const std::function<void(NewsReceiver&)>& call) {
    QMetaObject::invokeMethod(
        &eventLoop, [this, call] { ForEachReceiver(call); }, Qt::QueuedConnection);
}

bool EmbeddedBackEnd::BKQNews_bReRequestHeadlineStory(const CHeadlineTable& entry) {
    requests.add(u"BKQNews_bReRequestHeadlineStory"_s,
                 {entry.service, qlonglong(entry.time), entry.sequence});
    if (!reader.story(KeyOf(entry)))
        return false;
    tellLater([entry](NewsReceiver& receiver) { receiver.RespStory(entry); });
    return true;
}

bool EmbeddedBackEnd::BKNEWS_bReRequestHeadlineTable(unsigned char service, const CSymbolInfo& symbol) {
    requests.add(u"BKNEWS_bReRequestHeadlineTable"_s, {service, symbol.market, symbol.code});
    std::vector<CHeadlineTable> table;
    const CHeadlineTableInfo info{service, statusOf(tableOf(service, table, symbol)), symbol.code};
    tellLater([info](NewsReceiver& receiver) { receiver.vRecvSymHeadlineTableRecovery(&info); });
    return true;
}

bool EmbeddedBackEnd::BKNEWS_bReRequestHeadlineTable(unsigned char service, int kind, const QString& key) {
    requests.add(u"BKNEWS_bReRequestHeadlineTable"_s, {service, kind, key});
    const bool byDate = kind == static_cast<int>(TableKind::ByDate);
    if (!byDate && kind != static_cast<int>(TableKind::ByCategory))
        return false;
    std::vector<CHeadlineTable> table;
    const CHeadlineTableInfo info{service, statusOf(tableOf(service, table, kind, key)), key};
    tellLater([info, byDate](NewsReceiver& receiver) {
        if (byDate)
            receiver.vRecvAllHeadlineTableRecovery(&info);
        else
            receiver.vRecvCatHeadlineTableRecovery(&info);
    });
    return true;
}

bool EmbeddedBackEnd::BKQNEWS_bReCoverHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                               const std::vector<CHeadlineTable>& entries) {
    requests.add(u"BKQNEWS_bReCoverHeadline"_s, {service, qlonglong(entries.size())});
    return BKQNEWS_iGetHeadline(service, headlines, entries) > 0;
}

bool EmbeddedBackEnd::BKQNEWS_bSearchNews(unsigned char service, int kind, const CSearch& condition) {
    const QStringList keywords(condition.keywords.begin(), condition.keywords.end());
    requests.add(u"BKQNEWS_bSearchNews"_s, {service, kind, keywords});
    return false;
}

// --- Texts ---

bool EmbeddedBackEnd::LangIsConvertToSimplified(const unsigned char&) {
    return simplified;
}

void EmbeddedBackEnd::LangConvertToSimplifiedChinese(const QString& in, QString& out) {
    out = chinese.convert(in);
}

QString EmbeddedBackEnd::PathGetSysPath() {
    return sysPath.isEmpty() ? BKQuoteInterface::PathGetSysPath() : sysPath;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/database.h"
#include "backend/store/day_index.h"
#include "backend/store/headline_cache.h"
#include "backend/store/request_log.h"
#include "backend/store/simplified_chinese.h"
#include "backend/store/store_reader.h"
#include "backend/store/store_writer.h"
#include "backend/store/symbol_table.h"
#include "host/contract/bk_quote_interface.h"

#include <QColor>
#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace wirepane {

// The back end over one news store. Every operation runs on the interface thread.
//
// Tables come newest first. Those of a category and of a symbol reach back BKQbyGetNewsDateRange() days from
// the present day (host_clock), and not beyond it; a symbol without a code has none.
//
// Requests are answered from the event loop; a search cannot be sent yet.
//
// Other programs may write to the store meanwhile: look-ups see it, but only takeIn() tells the receivers.
class EmbeddedBackEnd : public BKQuoteInterface {
public:
    // Opens the store, or makes it (see openStore).
    static Result<std::unique_ptr<EmbeddedBackEnd>> open(const QString& storePath);
    explicit EmbeddedBackEnd(std::unique_ptr<Database> store);

    // Stores one item now, in a transaction of its own, and tells every receiver: news that is new or
    // replaced as a new headline, a story that was missing as a story that can be had, a symbol as a change
    // of the catalogue. Nothing is told of what was there already. Returns when the item is on the disk;
    // waits up to five seconds for another program that is writing. An error leaves the store as it was.
    Result<TakeOutcome> takeIn(const StoreItem& item);

    // The services whose whole distribution the receiver has registered, ascending.
    std::vector<unsigned char> registeredServices(NewsReceiver* receiver) const;
    // What the views asked since the last call, oldest first, at most the newest 10,000: tables, requests and
    // searches, with their arguments in the contract's order but without what is to be filled. A symbol is
    // its market and its code, an entry its service, time and number, a search its keywords.
    std::vector<Request> takeRequests() { return requests.take(); }
    // The colour of a category by its id; invalid: none of its own. Warrants number their categories for
    // themselves: name their service for one of theirs.
    QColor categoryColour(std::int32_t id, unsigned char service = 0);

    // The symbols of the store, read at the first use; also the host's symbol search.
    SymbolTable& symbols();

    void setConnected(bool on) { connected = on; }              // at first: true
    void setConvertsToSimplified(bool on) { simplified = on; }  // at first: false
    void setSysPath(const QString& path) { sysPath = path; }    // at first: the contract's default
    const QString& storePath() const { return database->path(); }

    void RegisterSymbols(NewsReceiver* view, const std::vector<CSymbolInfo>& added,
                         const std::vector<CSymbolInfo>& removed) override;
    void UnregisterSymbols(NewsReceiver* view) override;
    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& services) override;
    bool BKQNEWS_bGetFullNameByService(QString& name, unsigned char service) override;
    bool BKQNEWS_bGetShortNameByService(QString& name, unsigned char service) override;
    QString BKQNEWS_cszGetCurrDateByService(unsigned char service) override;
    bool bNewsAPI_GetNewsCatId(unsigned char service, std::vector<QString>& ids,
                               std::vector<QString>& names) override;
    int BKQCheckAuthSupport(unsigned char service) override;
    bool bGetAllServiceID(std::vector<unsigned char>& services) override;
    bool bGetServiceID2Delay(unsigned char service, unsigned char& delayed) override;
    int bIsFromTheSameAuthServiceID(unsigned char service, unsigned char other) override;
    bool bGetSymbolID(unsigned char service, std::vector<QString>& codes,
                      std::vector<QString>& names) override;
    int bIsSymbolIDExist(unsigned char service, const QString& code) override;
    bool bGetCategorybySymbolID(int& category, unsigned char service, const QString& code) override;
    int bIsConnect() override { return connected ? 1 : 0; }
    int BKQNEWS_iGetHeadlineTable(std::vector<CHeadlineTable>& table, unsigned char service,
                                  const CSymbolInfo& symbol) override;
    int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int kind,
                                  const QString& key) override;
    int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                             const std::vector<CHeadlineTable>& entries) override;
    bool BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) override;
    bool BKNEWS_GetSymbolListBySeqNo(CNewsSymLst& symbols, const CHeadlineTable& entry) override;
    bool BKQNews_bReRequestHeadlineStory(const CHeadlineTable& entry) override;
    bool BKNEWS_bReRequestHeadlineTable(unsigned char service, const CSymbolInfo& symbol) override;
    bool BKNEWS_bReRequestHeadlineTable(unsigned char service, int kind, const QString& key) override;
    bool BKQNEWS_bReCoverHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                  const std::vector<CHeadlineTable>& entries) override;
    bool BKQNEWS_bSearchNews(unsigned char service, int kind, const CSearch& condition) override;
    bool LangIsConvertToSimplified(const unsigned char& service) override;
    void LangConvertToSimplifiedChinese(const QString& in, QString& out) override;
    QString PathGetSysPath() override;

private:
    // Forgets what is in memory when another program has written to the store.
    void catchUp();
    Result<TakeOutcome> takeInNews(const NewsItem& item);
    void tell(const StoredNews& stored);
    // Tells every receiver from the event loop.
    void tellLater(const std::function<void(NewsReceiver&)>& call);
    int tableOf(unsigned char service, std::vector<CHeadlineTable>& table, int kind, const QString& key);
    int tableOf(unsigned char service, std::vector<CHeadlineTable>& table, const CSymbolInfo& symbol);

    std::unique_ptr<Database> database;
    StoreReader reader;
    StoreWriter writer;
    DayIndex days;
    HeadlineCache headlineCache;
    RequestLog requests;
    SimplifiedChinese chinese;
    SymbolTable symbolTable;
    bool symbolsRead = false;
    std::map<NewsReceiver*, std::set<unsigned char>> registrations;
    bool connected = true;
    bool simplified = false;
    QString sysPath;
    QObject eventLoop;  // what waits in it is dropped with it
};

}  // namespace wirepane

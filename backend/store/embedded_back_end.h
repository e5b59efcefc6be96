// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/search_desk.h"
#include "backend/store/answer_desk.h"
#include "backend/store/arrival_log.h"
#include "backend/store/database.h"
#include "backend/store/day_index.h"
#include "backend/store/headline_cache.h"
#include "backend/store/news_delivery.h"
#include "backend/store/quote_book.h"
#include "backend/store/quote_desk.h"
#include "backend/store/request_log.h"
#include "backend/store/search_rules.h"
#include "backend/store/simplified_chinese.h"
#include "backend/store/store_reader.h"
#include "backend/store/store_sync.h"
#include "backend/store/store_writer.h"
#include "backend/store/symbol_table.h"
#include "host/contract/bk_quote_interface.h"

#include <QColor>

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

namespace wirepane {

// The back end over one news store. Every operation runs on the interface thread.
//
// Tables come newest first. Those of a category and of a symbol reach back BKQbyGetNewsDateRange() days from
// the present day (host_clock), and not beyond it; a symbol without a code has none.
//
// Requests are answered from the event loop. Searches look through all stories of a service, whether the
// source is connected or not, on a thread of their own (see NewsSearch and SearchDesk).
//
// As a sink it tells every receiver what came in, in the order of coming, once it is committed: news that is
// new or replaced as a new headline, a story that was missing as a story that can be had, a symbol as a
// change of the catalogue. Nothing is told of what was there already. Of a large batch the first 500 are
// told before commit() returns, the rest from the event loop.
//
// Quotes are told to the receivers that registered their symbol by its code: what is known of it from the
// event loop, then every change. With a story that is asked for again, or comes late, the related symbols of
// its headline are sent.
//
// Other programs may write to the store meanwhile: look-ups see it, and checkForNews() tells the receivers.
class EmbeddedBackEnd : public BKQuoteInterface, public FeedSink {
public:
    // Opens the store, or makes it (see openStore).
    static Result<std::unique_ptr<EmbeddedBackEnd>> open(const QString& storePath,
                                                         const IndexProgress& onIndexing = {});
    explicit EmbeddedBackEnd(std::unique_ptr<Database> store);

    // How long begin() waits for another program that is writing. At first: five seconds.
    void setPatience(std::chrono::milliseconds patience) { database->setBusyTimeout(patience); }

    // Stores one item now, in a transaction of its own. An error leaves the store as it was.
    Result<TakeOutcome> takeIn(const StoreItem& item);
    // Stores the story of a headline, in place of the one that it has, if any, and tells the receivers that
    // it can be had. Rejected: there is no such headline.
    Result<TakeOutcome> takeStory(const HeadlineKey& key, const QString& story);

    Done begin() override;
    Result<TakeOutcome> take(const StoreItem& item) override;
    Done commit() override;
    void rollback() override;
    // commit() does not wait for the disk: what it keeps survives the death of the program, but not yet that
    // of the machine. Calls back from the event loop when all that is committed now is on the disk.
    void whenOnDisk(StoreSync::Callback callback) { disk.whenOnDisk(std::move(callback)); }
    // Waits for that, and calls back whoever waits.
    void waitForDisk() { disk.finish(); }
    Done keepPosition(const QString& source, const QString& position) override {
        return writer.keepPosition(source, position);
    }
    Result<QString> positionOf(const QString& source) override { return writer.positionOf(source); }

    // Tells the receivers what other programs have written to the store since the last call.
    void checkForNews();
    // True when every receiver has been told of everything that is in the store.
    bool isDelivered() const { return delivery.isDone(); }

    // Tells the receivers of the change. While not connected, they are told no news. What came meanwhile is
    // told when the connection is back, oldest first. At first: connected.
    void setConnected(bool on);
    // How many headlines were told late after the last break.
    int lateHeadlines() const { return lastMissed; }
    // When this headline, or its present version, reached the store, in seconds since 1970; nothing for an
    // unknown one.
    std::optional<std::int64_t> receivedTime(const HeadlineKey& key) { return reader.received(key); }

    // A service starts a new news day: it is its current one from now on, and the receivers are told. A date
    // that is none changes nothing here; it is told all the same.
    void startNewsDay(const CMarketStatus& status);
    // The current news day of every service is the present day again.
    void forgetNewsDays() { newsDays.clear(); }
    // Tells the receivers that the story of a headline has changed.
    void announceStoryChange(const HeadlineKey& key);

    // While something is held, look-ups do not find it and answers wait; letting go gives them at once.
    // Headlines that were looked up meanwhile are told as headlines that can be had.
    void hold(Held what, bool on);

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

    void setConvertsToSimplified(bool on) { simplified = on; }  // at first: false
    void setSysPath(const QString& path) { sysPath = path; }    // at first: the contract's default
    const QString& storePath() const { return database->path(); }
    // What keeps the store from taking news in for as long as it lasts, found out without trying: a sentence;
    // empty when nothing does.
    QString storeTrouble() const;

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
    bool bGetItemDataByItemNo(QString& value, unsigned char market, const QString& code, int item) override;
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
    // What the running transaction has changed.
    struct Changes {
        std::vector<std::pair<std::optional<HeadlineKey>, HeadlineKey>> news;  // where it stood and stands
        std::vector<SymbolItem> symbols;
    };
    struct EntryOrder {
        bool operator()(const CHeadlineTable& a, const CHeadlineTable& b) const {
            return std::tie(a.service, a.time, a.sequence) < std::tie(b.service, b.time, b.sequence);
        }
    };
    using Entries = std::set<CHeadlineTable, EntryOrder>;

    // Forgets what is in memory when another program has written to the store.
    void catchUp();
    void tell(const Arrival& arrival);
    void tellOf(const std::vector<SymbolItem>& symbols);
    // The quotes that have changed since the last call; not while there is no connection.
    void tellQuotes();
    // That the story of an entry can be had, and its related symbols.
    void tellStory(const CHeadlineTable& entry);
    int tableOf(unsigned char service, std::vector<CHeadlineTable>& table, int kind, const QString& key);
    int tableOf(unsigned char service, std::vector<CHeadlineTable>& table, const CSymbolInfo& symbol);

    std::unique_ptr<Database> database;
    StoreSync disk;
    StoreReader reader;
    StoreWriter writer;
    DayIndex days;
    HeadlineCache headlineCache;
    QuoteBook quotes;
    std::int64_t toldRevision;  // of the quotes
    bool tellingQuotes = false;
    QuoteDesk quoteDesk;
    ArrivalLog arrivals;
    AnswerDesk answers;
    Entries awaited;                                 // headlines that were looked up while they were held
    std::map<unsigned char, std::int32_t> newsDays;  // of the services that have reported one
    Changes changes;
    int lastMissed = 0;
    RequestLog requests;
    SimplifiedChinese chinese;
    SymbolTable symbolTable;
    bool symbolsRead = false;
    std::map<NewsReceiver*, std::set<unsigned char>> registrations;
    bool connected = true;
    bool simplified = false;
    QString sysPath;
    NewsDelivery delivery;
    SearchDesk searches;
};

}  // namespace wirepane

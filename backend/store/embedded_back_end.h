// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/database/store_sync.h"
#include "backend/search/search_dispatcher.h"
#include "backend/search/search_rules.h"
#include "backend/store/answer_desk.h"
#include "backend/store/arrival_log.h"
#include "backend/store/day_index.h"
#include "backend/store/headline_cache.h"
#include "backend/store/later_news.h"
#include "backend/store/look_desk.h"
#include "backend/store/marking_desk.h"
#include "backend/store/news_days.h"
#include "backend/store/news_delivery.h"
#include "backend/store/price_desk.h"
#include "backend/store/quote_book.h"
#include "backend/store/quote_desk.h"
#include "backend/store/rehearsal_desk.h"
#include "backend/store/request_log.h"
#include "backend/store/row_file_desk.h"
#include "backend/store/store_file.h"
#include "backend/store/store_intake.h"
#include "backend/store/store_reader.h"
#include "backend/store/store_snapshot.h"
#include "backend/store/symbol_table.h"
#include "backend/store/table_announcements.h"
#include "backend/words/simplified_chinese.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/headline_looks.h"
#include "host/contract/local_days.h"
#include "host/contract/news_day_finder.h"
#include "host/contract/news_origins.h"
#include "host/contract/news_positions.h"
#include "host/contract/news_record.h"
#include "host/contract/news_row_files.h"
#include "host/contract/price_history.h"
#include "host/contract/query/headline_query.h"
#include "host/contract/query/key_set_rehearsal.h"
#include "host/contract/query/newest_found.h"
#include "host/contract/query/search_counts.h"
#include "host/contract/query/search_hits.h"
#include "host/contract/quiet_sources.h"
#include "host/contract/reading_marks.h"
#include "host/contract/reading_moment.h"

#include <QColor>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <tuple>
#include <utility>
#include <vector>

namespace wirepane {
class TitleQuerySet;

// The back end over one news store. Every operation runs on the interface thread; what writes is done on the
// store's own (see StoreIntake), and nobody waits for it but who asks to.
//
// Tables come newest first. Those of a category and of a symbol reach back BKQbyGetNewsDateRange() days from
// the present day (host_clock); a symbol without a code has none. News that is dated ahead is in them, and is
// told as it comes, unless it is held back (holdLaterNews).
//
// Requests are answered from the event loop, also those that cannot be met. A story that is looked up and has
// no text is not found: RespStory announces it, and while that is told it is found, empty. One that is still
// to come is announced when it has come. Searches look through all stories of a service, whether the
// source is connected or not, on a thread of their own (see NewsSearch and SearchDispatcher).
//
// Every receiver is told what came in, in the order of coming, once it is committed: news of the
// news day that its service is in as a new headline, whether it is new or replaced, a key that replaced news
// no longer has as gone (GoneHeadlineReceiver), a story that was missing as a story that can be had, a symbol
// as a change of the catalogue. Nothing is told of what was there already. Much of it is told in batches
// of 500, with the event loop running between them.
//
// Look-ups see the store as of one moment, which moves on just before the telling begins of what has come
// since: tables may hold news that is still to be told, and their position (NewsPositions) tells of which.
//
// News of any other day is not pushed, since a pushed headline is one of the day that views are in. The
// tables that hold it are told as tables that were sent again, from the event loop: by its date, its category
// and each of its symbols, and as answers to the searches that find it; each once for what came together, and
// at most once a second.
//
// The first news of the present day in a service, by whatever road it came, starts a new news day of the
// service before it is told itself. Who registers a service is told the day that it has reported.
//
// Quotes are told to the receivers that registered their symbol by its code: what is known of it from the
// event loop, then every change. With a story that is asked for again, or comes late, the related symbols of
// its headline are sent.
//
// Other programs may write to the store meanwhile: checkForNews() tells the receivers of it.
class EmbeddedBackEnd : public BKQuoteInterface,
                        public NewsPositions,
                        public ReadingMoment,
                        public NewsDayFinder,
                        public NewsRecord,
                        public NewsOrigins,
                        public HeadlineLooks,
                        public PriceHistory,
                        public QuietSources,
                        public ReadingMarks,
                        public HeadlineQueries,
                        public SearchHits,
                        public SearchCounts,
                        public KeySetRehearsal,
                        public NewestFound,
                        public NewsRowFiles {
public:
    // Opens the store, or makes it (see openStore). One that cannot be written to is read: it takes nothing
    // in.
    static Result<std::unique_ptr<EmbeddedBackEnd>> open(const QString& storePath,
                                                         const IndexProgress& onIndexing = {});
    explicit EmbeddedBackEnd(StoreConnections connections);
    // Waits until the marks that were changed last are written.
    ~EmbeddedBackEnd() override;

    // Does the work on the store's thread, behind what was asked before, and tells the receivers what it has
    // committed; then calls back, from the event loop.
    void ask(StoreIntake::Work work, const std::function<void()>& then);
    // The same, waiting for it: when this returns, the first 500 have been told.
    void run(const StoreIntake::Work& work);

    // Stores one item now, in a transaction of its own. An error leaves the store as it was.
    Result<TakeOutcome> takeIn(const StoreItem& item);
    // Stores the story of a headline, in place of the one that it has, if any, and tells the receivers that
    // it can be had. Rejected: there is no such headline.
    Result<TakeOutcome> takeStory(const HeadlineKey& key, const QString& story);

    // Work does not wait for the disk: what it commits survives the death of the program, but not yet that of
    // the machine. Calls back from the event loop when all that is committed now is on the disk.
    void whenOnDisk(StoreSync::Callback callback) { disk.whenOnDisk(std::move(callback)); }

    // Look-ups see what other programs have written to the store since the last call, and the receivers are
    // told of it, while connected.
    void checkForNews();
    // True when every receiver has been told of everything that is in the store.
    bool isDelivered() const { return delivery.isDone() && announcements.isDone(); }
    // So much waits to be told that more had better come later.
    bool isBehind() const { return delivery.isBehind(); }

    // Tells the receivers of the change. While not connected, they are told no news. What came meanwhile is
    // told when the connection is back, oldest first. At first: connected.
    void setConnected(bool on);
    // How many headlines were told late after the last outage.
    int lateHeadlines() const { return lastMissed; }
    // Another number after anybody has written to the store, as the last look at it has found.
    std::int64_t storeChanges() const { return changes; }
    // When this headline, or its present version, reached the store, in seconds since 1970; nothing for an
    // unknown one.
    std::optional<std::int64_t> receivedTime(const HeadlineKey& key) { return reader.received(key); }

    // Reads as of the present moment: tables and searches end there, and what they lack is told as new
    // headlines when its moment comes, by checkForNews(). At first nothing is held.
    void holdLaterNews(LaterNews::Held which) { laterNews.hold(which); }
    // Called when news is told that is dated more than two minutes ahead of the present moment, while nothing
    // is held: its source's clock, or this one, is off.
    void onDatedAhead(std::function<void(unsigned char service, std::int64_t time)> call) {
        datedAhead = std::move(call);
    }

    // A service starts a new news day: it is its current one until the present day is a later one, and the
    // receivers are told. A date that is none changes nothing here; it is told all the same.
    void startNewsDay(const CMarketStatus& status);
    // Lets go what is in memory of the store's news; it is read again when it is asked for.
    void forgetNews();
    // The current news day of every service is the present day again.
    void forgetNewsDays() { newsDays.forget(); }
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
    bool hasNewsOn(unsigned char service, const QDate& day) override;
    NewsState newsState(const HeadlineKey& key) override { return headlineCache.state(key); }
    std::vector<NewsVersion> versionsOf(const HeadlineKey& key) override { return reader.versions(key); }
    QStringList originsOf(const HeadlineKey& key) override { return reader.origins(key); }
    std::optional<PriceSince> priceSince(const HeadlineKey& key) override { return prices.since(key); }
    std::vector<MinutePrice> pricesOf(const CSymbolInfo& symbol, std::int64_t from,
                                      std::int64_t to) override {
        return prices.between(symbol, from, to);
    }
    std::int64_t priceChanges() const override { return prices.changes(); }
    HeadlineLook lookOf(const HeadlineKey& key) override { return looks.of(key); }
    LookTeller& lookTeller() override { return looks.teller(); }
    void proposeAlert(const QString& name, const QString& query) override {
        if (alertProposed)
            alertProposed(name, query);
    }
    void onAlertProposed(std::function<void(const QString& name, const QString& query)> call) {
        alertProposed = std::move(call);
    }
    // Who knows which headlines stand out; at first nobody does.
    void judgeLooksBy(LookDesk::Judge judge) { looks.judgeBy(std::move(judge)); }
    bool canMark() const override { return marks.canMark(); }
    ReadingMark markOf(const HeadlineKey& key) override { return marks.markOf(key); }
    void changeMarks(std::vector<HeadlineKey> keys, const MarkChange& change) override {
        marks.change(std::move(keys), change);
    }
    void findUnread(std::vector<HeadlineKey> keys, std::size_t most, QObject* asker,
                    std::function<void(const std::vector<HeadlineKey>&)> tell) override {
        marks.findUnread(std::move(keys), most, asker, std::move(tell));
    }
    MarkTeller& markTeller() override { return marks.teller(); }
    std::vector<QuietSource> quietSources() const override { return quiet; }
    QuietTeller& quietTeller() override { return quietTells; }
    // Whoever runs the sources says which are quiet now; at first: none.
    void setQuietSources(std::vector<QuietSource> sources);
    // When the newest headline was dated that is there at the present moment; 0: there is none.
    std::int64_t newestTime();
    // A category by its id. Warrants number their categories for themselves: name their service for one of
    // theirs.
    std::optional<StoredCategory> category(std::int32_t id, unsigned char service = 0);

    // The symbols of the store, read at the first use; also the host's symbol search.
    SymbolTable& symbols();

    // What services and categories are called whose names in the store are these; at first: so. A category is
    // called as it is where another one of its service is called so.
    void nameBy(std::function<QString(const QString&)> naming) { nameOf = std::move(naming); }
    // News and the names of symbols are written in Simplified Chinese; at first: false. Receivers that show
    // names are told that the symbols have changed.
    void setConvertsToSimplified(bool on);
    // Symbols go by their English names, where these are known; at first: false. Receivers that show names
    // are told that these symbols have changed.
    void setPrefersEnglishNames(bool on);
    void setSysPath(const QString& path) { sysPath = path; }  // at first: the contract's default
    // What searches find that no view has sent, each in an order of its own: told once, from the event loop,
    // as long as what is returned is kept.
    using Tables = std::vector<std::vector<CHeadlineTable>>;
    [[nodiscard]] std::shared_ptr<const void> findNews(std::vector<CountedSearch> wanted,
                                                       std::function<void(Tables&&)> told);
    // How many headlines (at most) searches do not find yet, since an import has brought more than the index
    // holds; as of the last checkForNews(). All searches are answered again when it becomes 0.
    std::int64_t searchBacklog() const { return unindexed; }
    // How much of the search index is made anew, in a hundred, where earlier rules have made the one that
    // answers; as of the last checkForNews(). All searches are answered again when it is done.
    std::optional<int> searchRenewal() const { return renewal; }
    const QString& storePath() const { return connections.reading->path(); }
    // What keeps the store from taking news in for as long as it lasts, found out without trying: a sentence;
    // empty when nothing does.
    std::optional<Error> storeTrouble() const;
    // Whether the store can only be read, for as long as it is open.
    bool isReadOnly() const { return onlyRead; }
    // The first damage that a look-up or a change met; nothing: none did.
    std::optional<Error> storeDamage() const;

    void registerSymbols(NewsReceiver* view, const std::vector<CSymbolInfo>& added,
                         const std::vector<CSymbolInfo>& removed) override;
    void unregisterSymbols(NewsReceiver* view) override;
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
    std::shared_ptr<const HeadlineQuery> prepareQuery(const QString& query) override;
    std::shared_ptr<const HeadlineQuerySet> prepareQueries(std::span<const QString> queries) override;
    // The same for alerts, which may look at stories. Never null; outlived by this.
    std::shared_ptr<const TitleQuerySet> prepareAlerts(std::span<const QString> queries);
    // The story of a headline as far as it is there, without asking for it.
    QString storyThere(const HeadlineKey& key) { return reader.story(key).value_or(QString()); }
    std::shared_ptr<const HitFinder> prepareHits(const CSearch& condition) override;
    std::shared_ptr<const void> countFound(std::vector<CountedSearch> wanted,
                                           SearchCounts::Told told) override;
    std::shared_ptr<const void> rehearseKeySet(KeySet keySet, KeySetRehearsal::Told told) override {
        return rehearsals.rehearse(std::move(keySet), std::move(told));
    }
    std::shared_ptr<const void> findNewest(const CSearch& condition,
                                           const std::vector<unsigned char>& services, std::size_t most,
                                           NewestFound::Told told) override;
    std::shared_ptr<const void> writeRowFile(std::vector<CHeadlineTable> entries, NewsRowForm form,
                                             const QString& file, Tellers tellers) override {
        return rowFiles.write(std::move(entries), form, file, std::move(tellers));
    }
    bool LangIsConvertToSimplified(const unsigned char& service) override;
    void LangConvertToSimplifiedChinese(const QString& in, QString& out) override;
    QString PathGetSysPath() override;
    bool isReadAsOf() const override { return laterNews.held() == LaterNews::Held::All; }
    std::int64_t readPosition() override { return snapshot.position(); }
    std::int64_t positionTold() const override { return toldPosition; }

private:
    std::function<std::vector<CSymbolInfo>(const CHeadline&)> symbolsOfHeadlines();
    void tellRenamed(const std::vector<CSymbolUpdateInfo>& renamed);
    struct EntryOrder {
        bool operator()(const CHeadlineTable& a, const CHeadlineTable& b) const {
            return std::tie(a.service, a.time, a.sequence) < std::tie(b.service, b.time, b.sequence);
        }
    };
    using Entries = std::set<CHeadlineTable, EntryOrder>;

    // The days that a table without a date reaches over.
    DayBounds newsRange();
    // Look-ups see what is in the store now; what is in memory of it follows.
    void moveOn();
    Result<TakeOutcome> takeOne(const std::function<Result<TakeOutcome>(StoreWriter&)>& take);
    // Work has been done.
    void note(const WorkReport& report);
    // Tells the receivers what look-ups see.
    void tellNews();
    void tell(const Arrival& arrival);
    void tellHeadline(const HeadlineKey& key, std::int64_t position);
    // The headlines whose moment has come.
    void tellDue();
    void followIndex();
    void push(const CHeadline& headline, const std::vector<CSymbolInfo>& symbols, std::int64_t position);
    void announce(const AnnouncedTables& tables);
    // The news day that a service has reported, to one who has just registered it.
    void tellNewsDay(NewsReceiver* view, unsigned char service);
    void tellOf(const std::vector<SymbolItem>& symbols);
    // The quotes that have changed since the last call; not while there is no connection.
    void tellQuotes();
    // That the story of an entry can be had, and its related symbols.
    void tellStory(const CHeadlineTable& entry);
    void respStory(const CHeadlineTable& entry);
    // Answers a look-up that found nothing, from the event loop, once however many there were.
    void announceStory(const CHeadlineTable& entry);
    int tableOf(unsigned char service, std::vector<CHeadlineTable>& table, int kind, const QString& key);
    int tableOf(unsigned char service, std::vector<CHeadlineTable>& table, const CSymbolInfo& symbol);

    StoreConnections connections;
    bool onlyRead;
    StoreSync disk;
    ArrivalLog arrivals;
    StoreSnapshot snapshot;
    std::int64_t seen;  // of the arrivals: the last that what is in memory follows
    StoreReader reader;
    DayIndex days;
    HeadlineCache headlineCache;
    LookDesk looks;
    std::function<void(const QString&, const QString&)> alertProposed;
    MarkingDesk marks;
    std::vector<QuietSource> quiet;
    QuietTeller quietTells;
    LaterNews laterNews;
    std::function<void(unsigned char, std::int64_t)> datedAhead;
    QuoteBook quotes;
    PriceDesk prices;
    std::int64_t toldRevision;  // of the quotes
    bool tellingQuotes = false;
    QuoteDesk quoteDesk;
    AnswerDesk answers;
    Entries awaited;                       // headlines that were looked up while they were held
    Entries announced;                     // stories whose announcement is on its way
    std::optional<HeadlineKey> tellingOf;  // the headline whose story is being told
    NewsDays newsDays;
    LocalDays localDays;
    std::int64_t toldPosition = 0;
    std::vector<SymbolItem> symbolsToTell;
    std::optional<Error> damageOfWork;
    int lastMissed = 0;
    std::int64_t changes = 0;  // of the store that were seen
    RequestLog requests;
    SimplifiedChinese chinese;
    SymbolTable symbolTable;
    bool symbolsRead = false;
    std::map<NewsReceiver*, std::set<unsigned char>> registrations;
    bool connected = true;
    std::int64_t unindexed = 0;
    std::optional<int> renewal;
    bool simplified = false;
    std::function<QString(const QString&)> nameOf = [](const QString& stored) { return stored; };
    QString sysPath;
    NewsDelivery delivery;
    TableAnnouncements announcements;
    RowFileDesk rowFiles;
    RehearsalDesk rehearsals;
    SearchDispatcher searches;
    StoreIntake intake;  // last: its reports reach all of the above
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/item_sink.h"
#include "backend/store/arrival_log.h"
#include "backend/store/category_book.h"
#include "backend/store/copy_rule.h"
#include "backend/store/day_numbers.h"
#include "backend/store/feed_positions.h"
#include "backend/store/item_origins.h"
#include "backend/store/news_trimmer.h"
#include "backend/store/news_writer.h"
#include "backend/store/quote_book.h"
#include "host/contract/local_days.h"
#include "host/contract/records.h"

#include <QSet>

#include <atomic>
#include <optional>
#include <utility>
#include <vector>

namespace wirepane {

// What became of a piece of news.
struct StoredNews {
    TakeOutcome outcome;
    bool onlyStory = false;             // taken in: only the story that was missing
    HeadlineKey key;                    // unless rejected: where it stands
    std::optional<HeadlineKey> before;  // where its earlier version stood
    std::int32_t categoryId = 0;
};

// Writes items into an open store, once each, however often they come.
//
// News is known by service and identity. A later version, or the same version with a later time, replaces
// title, story, category and related symbols; it keeps the sequence number while the local day stays the
// same. The same version with a story that was missing adds the story. A withdrawal takes back this version
// or an earlier one; a later version that is none restores the news. Anything else is already there. News
// without a number gets the next one of its service and local day; a given number that another piece of news
// of that day has is a reason to reject it. Services and categories that the store does not know are made.
//
// Texts are cleaned (item_check.h) and checked against limits.h; what does not pass is rejected with a
// reason. A symbol has one quote, the one that came last.
//
// A store that follows a wire takes news from there alone (copy_rule.h).
//
// An error takes everything back since begin(). Thread: that of the database, which must outlive the writer.
class StoreWriter : public FeedSink {
public:
    explicit StoreWriter(Database& database);

    Done begin() override;
    // As begin(): what is taken in until commit() stays hidden from readers, is told to nobody and is not in
    // the search index, until a transaction begun by begin() shows it. Only news is taken, and an item that
    // would change news which readers see is put off.
    Done beginHidden();
    // In a transaction begun by begin(): shows all that is hidden, as what came last.
    Done showHidden();
    Result<TakeOutcome> take(const StoreItem& item) override;
    Done commit() override;
    void rollback() override;
    Done keepPosition(const QString& source, const QString& position) override;
    Result<TakeOutcome> takeFrom(const QString& source, const StoreItem& item) override;

    // How far a source has been taken. Empty for one that was never heard of.
    Result<QString> positionOf(const QString& source);

    // As take(), and tells where the news stands now.
    Result<StoredNews> takeNews(const NewsItem& item);
    // Puts the story of the headline with this key, whether it had one or not. Rejected: there is no such
    // headline, or the text is too long.
    Result<TakeOutcome> takeStory(const HeadlineKey& key, const QString& story);
    // Lets old news leave, in one small transaction; again until it is done. News that is not there and older
    // than what has left is rejected from then on.
    Result<TrimStep> trim(const Retention& keep, std::int64_t now);
    // News of any age is taken in again.
    Done takeAnyAge();
    // What it writes with: for tables that others keep in the store, in transactions of their own.
    Database& connection() { return database; }
    // From now on nothing is taken: what is under way fails, and is taken back. Any thread.
    void stop() { isStopped = true; }
    // The symbols that the transactions since the last call have changed.
    std::vector<SymbolItem> takeChangedSymbols();

private:
    Done beginAs(bool isHidden);
    Result<TakeOutcome> takeSymbol(const SymbolItem& item);
    Result<TakeOutcome> takeCategory(const CategoryItem& item);
    Result<TakeOutcome> takeQuote(const QuoteItem& item);

    // News that readers do not see yet gives way to news that they will see at once.
    bool setAside(std::int64_t id);
    bool noteArrival(std::int64_t id, bool onlyStory, const std::optional<HeadlineKey>& gone = {});
    Result<StoredNews> add(const NewsItem& item);
    Result<StoredNews> replace(const NewsItem& item, const KnownNews& known);
    Result<StoredNews> addStory(const NewsItem& item, const KnownNews& known);
    Result<StoredNews> withdraw(const NewsItem& item, const KnownNews& known);

    // The sequence number for an item on a day; nothing when its own is taken or none is left.
    Result<std::optional<std::int32_t>> numberFor(const NewsItem& item, std::int32_t day,
                                                  const KnownNews* known);
    std::int32_t dayOf(const NewsItem& item);
    bool ensureService(unsigned char service);
    bool findCategory(const NewsItem& item, std::int32_t& id);
    // Takes everything back and says why.
    Error fail();

    Database& database;
    ImportBlocks blocks;
    NewsWriter news;
    DayNumbers numbers;
    CategoryBook categories;
    ArrivalLog arrivals;
    FeedPositions positions;
    CopyRule copying;
    ItemOrigins origins;
    NewsTrimmer trimmer;
    QuoteBook quotes;
    Statement insertService;
    Statement insertHiddenService;
    Statement noteAside;
    Statement renameAside;
    Statement findSymbol;
    Statement writeSymbol;
    LocalDays days;
    QSet<unsigned char> services;            // known to be there
    std::vector<SymbolItem> changedSymbols;  // the last of them by the running transaction
    std::size_t keptSymbols = 0;             // of them, by those before
    std::optional<std::int64_t> horizon;     // what is older and new is rejected
    bool begun = false;
    bool isHiding = false;
    std::atomic<bool> isStopped = false;
};

}  // namespace wirepane

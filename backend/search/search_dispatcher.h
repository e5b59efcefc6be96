// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/search_worker.h"

#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace wirepane {

// The searches that views have sent, and their tables. Interface thread.
//
// Of each kind there is one present search, that sent last; its tables are what is read. A new condition
// starts with empty tables for every service, the same condition keeps them until its answers, also when
// other views have sent theirs meanwhile: of the searches that are answered the last few are kept. One that
// was composed anew since then is new. While an answer is delivered, its search is the present one, so that a
// view whose search was overtaken by another view's still reads its own.
class SearchDispatcher {
public:
    // `answered` is called for each answer, from the event loop, when its table can be read.
    using Answered = std::function<void(const CSearch& condition, unsigned char service)>;

    // Through it every answer goes that has come; it may call it at once, later or never. Without one: at
    // once.
    using Gate = std::function<void(const std::function<void()>& answer)>;

    SearchDispatcher(const QString& storePath, Answered answered, Gate gate = {});
    // Gives up what is being searched.
    ~SearchDispatcher();
    SearchDispatcher(const SearchDispatcher&) = delete;
    SearchDispatcher& operator=(const SearchDispatcher&) = delete;

    // Sends a search; one in the same service for the same condition that is not answered yet is void.
    void ask(unsigned char service, int kind, const CSearch& condition);
    // Searches beside those; `told` gets the entries of each, from the event loop, as long as what is
    // returned is kept.
    using Found = std::function<void(std::vector<std::vector<CHeadlineTable>>&& found)>;
    std::shared_ptr<const void> askBeside(std::vector<SideJob::Search> wanted, Found told);
    // The same for the newest few of one, without waiting for any of those; `told` may get those that were
    // soon found before it gets all.
    using FoundNewest = std::function<void(std::vector<CHeadlineTable>&& found, bool isAll)>;
    std::shared_ptr<const void> askNewest(SideJob::Search wanted, FoundNewest told);
    // News has come that no view is told of by itself: the searches in that service that find some of it are
    // answered again.
    void lookAgain(unsigned char service, const std::vector<HeadlineKey>& news);
    // The index holds more of the news that is there: all searches are answered again.
    void renew();
    // The table of the present search, packed.
    const KeyBlocks& table(unsigned char service, int kind) const;

private:
    using News = std::vector<HeadlineKey>;
    struct Pending {
        std::int64_t ticket;
        std::shared_ptr<std::atomic<bool>> dropped;
        std::optional<News> news;  // nobody waits for the answer: it is one if it holds some of this
        News later;                // came meanwhile
    };
    struct Search {
        std::int64_t id;
        int kind;
        CSearch condition;
        std::map<unsigned char, KeyBlocks> tables;
        std::map<unsigned char, Pending> pending;
    };

    using Tables = std::vector<std::vector<CHeadlineTable>>;
    using FoundPart = std::function<void(Tables&& found, bool isAll)>;
    std::shared_ptr<const void> askOf(SearchWorker& asked, std::vector<SideJob::Search> wanted,
                                      FoundPart told);
    Search& searchOf(int kind, const CSearch& condition);
    static void drop(Search& search, unsigned char service);
    void send(Search& search, unsigned char service, std::optional<News> news);
    void take(std::int64_t ticket, KeyBlocks&& found);
    void deliver(Search& search, unsigned char service);
    void forgetOldest();

    const QString path;
    Answered tell;
    Gate gate;
    std::list<Search> searches;           // that sent last at the end
    std::map<int, std::int64_t> present;  // by kind: the id of a search
    std::int64_t lastNumber = 0;
    CallQueue answers;                     // on the interface thread
    std::unique_ptr<SearchWorker> worker;  // last, as the next: they post their answers
    std::unique_ptr<SearchWorker> newest;  // for the newest few; made when these are first asked for
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/search/key_blocks.h"
#include "backend/search/newest_titles.h"
#include "backend/search/news_search.h"
#include "backend/worker_thread.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace wirepane {

// One search in one service. `dropped` may be set at any time: nobody waits for the answer any more.
struct SearchJob {
    std::int64_t ticket = 0;
    unsigned char service = 0;
    CSearch condition;
    std::shared_ptr<std::atomic<bool>> dropped;
};

// Searches whose tables are wanted beside those that views have sent. `told` is called on the worker's
// thread, unless `dropped`.
// Of one that wants the newest few it may be called before, with those that were soon found.
struct SideJob {
    struct Search {
        CSearch condition;
        std::vector<unsigned char> services;
        // Only these, the newest of all services; none: all of them. Of a query of headlines that ends with
        // a word cut short, what goes on is found in the newest titles alone.
        std::optional<NewsSearch::Newest> newest = {};
    };
    std::vector<Search> searches;
    std::shared_ptr<std::atomic<bool>> dropped;
    // The entries of each search, service after service.
    std::function<void(std::vector<std::vector<CHeadlineTable>>&& found, bool isAll)> told;
};

// Searches a store on a thread and a connection of its own, in the order of asking. A store that cannot be
// read gives empty answers. Soon after it was made, when nothing is asked, it reads the keys of the
// headlines, unless it is to do without.
class SearchWorker {
public:
    // `answer` is called on the worker's thread, never after the destructor returns; not for dropped jobs.
    using Answer = std::function<void(std::int64_t ticket, KeyBlocks&& found)>;

    SearchWorker(QString storePath, Answer answer,
                 std::optional<std::chrono::milliseconds> preparesAfter = std::chrono::seconds(2));

    // Any thread. A job that is being searched when the worker ends is waited for, so drop it before.
    void ask(SearchJob job);
    void askBeside(SideJob job);

private:
    // On the thread, as all that they use.
    void search(const SearchJob& job);
    void searchBeside(const SideJob& job);
    std::vector<CHeadlineTable> found(const SideJob::Search& search, const SideJob& job);
    std::vector<CHeadlineTable> newestFound(const SideJob::Search& search, const SideJob& job);
    void prepareWhenIdle();
    NewsSearch* opened();

    const QString path;
    const Answer tell;
    const std::optional<std::chrono::milliseconds> preparesAfter;
    std::unique_ptr<Database> database;
    std::optional<NewsSearch> news;
    std::optional<NewestTitles> titles;
    std::int64_t searched = 0;  // jobs
    bool prepared = false;
    WorkerThread thread;  // last: it uses all of the above
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_dispatcher.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace wirepane {

namespace {

// Besides the present ones.
constexpr std::ptrdiff_t mostKept = 8;
constexpr std::size_t mostEntriesKept = 500'000;

}  // namespace

SearchDispatcher::SearchDispatcher(const QString& storePath, Answered answered, Gate answerGate)
    : path(storePath),
      tell(std::move(answered)),
      gate(answerGate ? std::move(answerGate) : [](const std::function<void()>& answer) { answer(); }) {
    worker = std::make_unique<SearchWorker>(storePath, [this](std::int64_t ticket, KeyBlocks&& blocks) {
        auto found = std::make_shared<KeyBlocks>(std::move(blocks));
        const auto answer = [this, ticket, found] { take(ticket, std::move(*found)); };
        answers.post([this, answer] { gate(answer); });
    });
}

SearchDispatcher::~SearchDispatcher() {
    for (const Search& search : searches) {
        for (const auto& [service, pending] : search.pending)
            *pending.dropped = true;
    }
}

void SearchDispatcher::ask(unsigned char service, int kind, const CSearch& condition) {
    Search& search = searchOf(kind, condition);
    present[kind] = search.id;
    drop(search, service);
    send(search, service, std::nullopt);
    forgetOldest();
}

std::shared_ptr<const void> SearchDispatcher::askBeside(std::vector<SideJob::Search> wanted, Found told) {
    return askOf(*worker, std::move(wanted),
                 [told = std::move(told)](Tables&& found, bool) { told(std::move(found)); });
}

std::shared_ptr<const void> SearchDispatcher::askNewest(SideJob::Search wanted, FoundNewest told) {
    if (!newest)
        newest = std::make_unique<SearchWorker>(path, SearchWorker::Answer(), std::nullopt);
    return askOf(*newest, {std::move(wanted)}, [told = std::move(told)](Tables&& found, bool isAll) {
        told(std::move(found.front()), isAll);
    });
}

std::shared_ptr<const void> SearchDispatcher::askOf(SearchWorker& asked, std::vector<SideJob::Search> wanted,
                                                    FoundPart told) {
    const auto dropped = std::make_shared<std::atomic<bool>>(false);
    const auto call = [this, dropped, told = std::move(told)](
                          std::vector<std::vector<CHeadlineTable>>&& found, bool isAll) {
        auto entries = std::make_shared<std::vector<std::vector<CHeadlineTable>>>(std::move(found));
        answers.post([dropped, told, entries, isAll] {
            if (!*dropped)
                told(std::move(*entries), isAll);
        });
    };
    asked.askBeside({std::move(wanted), dropped, call});
    // The mark goes with whoever keeps it.
    return {dropped.get(), [dropped](std::atomic<bool>* mark) { *mark = true; }};
}

void SearchDispatcher::drop(Search& search, unsigned char service) {
    if (const auto older = search.pending.find(service); older != search.pending.end())
        *older->second.dropped = true;
}

void SearchDispatcher::renew() {
    for (Search& search : searches) {
        std::set<unsigned char> services;
        for (const auto& [service, table] : search.tables)
            services.insert(service);
        for (const auto& [service, pending] : search.pending)
            services.insert(service);
        for (const unsigned char service : services) {
            drop(search, service);
            send(search, service, std::nullopt);
        }
    }
}

void SearchDispatcher::send(Search& search, unsigned char service, std::optional<News> news) {
    const std::int64_t ticket = ++lastNumber;
    const auto dropped = std::make_shared<std::atomic<bool>>(false);
    search.pending.insert_or_assign(service, Pending{ticket, dropped, std::move(news), {}});
    worker->ask({ticket, service, search.condition, dropped});
}

// One that is being searched may have been read before the news came.
void SearchDispatcher::lookAgain(unsigned char service, const News& news) {
    for (Search& search : searches) {
        const auto pending = search.pending.find(service);
        if (pending != search.pending.end())
            pending->second.later.insert(pending->second.later.end(), news.begin(), news.end());
        else if (search.tables.contains(service))
            send(search, service, news);
    }
}

SearchDispatcher::Search& SearchDispatcher::searchOf(int kind, const CSearch& condition) {
    const auto known = std::find_if(searches.begin(), searches.end(), [&](const Search& search) {
        return search.kind == kind && search.condition == condition;
    });
    if (known == searches.end())
        return searches.emplace_back(Search{++lastNumber, kind, condition, {}, {}});
    if (present[kind] != known->id && known->condition.time != condition.time)
        known->tables.clear();
    known->condition.time = condition.time;
    searches.splice(searches.end(), searches, known);
    return searches.back();
}

const KeyBlocks& SearchDispatcher::table(unsigned char service, int kind) const {
    static const KeyBlocks none;
    const auto id = present.find(kind);
    if (id == present.end())
        return none;
    for (const Search& search : searches) {
        if (search.id != id->second)
            continue;
        const auto found = search.tables.find(service);
        return found == search.tables.end() ? none : found->second;
    }
    return none;
}

void SearchDispatcher::take(std::int64_t ticket, KeyBlocks&& found) {
    for (Search& search : searches) {
        for (auto pending = search.pending.begin(); pending != search.pending.end(); ++pending) {
            if (pending->second.ticket != ticket)
                continue;
            const unsigned char service = pending->first;
            const Pending done = std::move(pending->second);
            search.pending.erase(pending);
            if (!done.later.empty())
                send(search, service, done.later);
            const auto isFound = [&](const HeadlineKey& key) { return found.hold(key); };
            if (!done.news || std::ranges::any_of(*done.news, isFound)) {
                search.tables[service] = std::move(found);
                deliver(search, service);
            }
            forgetOldest();
            return;
        }
    }
}

// A receiver may send a search meanwhile, which then stays the present one.
void SearchDispatcher::deliver(Search& search, unsigned char service) {
    const int kind = search.kind;
    const std::int64_t id = search.id;
    const CSearch condition = search.condition;
    const std::int64_t before = std::exchange(present[kind], id);
    tell(condition, service);
    if (present[kind] == id)
        present[kind] = before;
}

void SearchDispatcher::forgetOldest() {
    const auto canGo = [this](const Search& search) {
        return search.pending.empty() && present[search.kind] != search.id;
    };
    std::ptrdiff_t idle = 0;
    std::size_t entries = 0;
    for (auto search = searches.rbegin(); search != searches.rend();) {
        if (!canGo(*search)) {
            ++search;
            continue;
        }
        for (const auto& [service, table] : search->tables)
            entries += table.size();
        if (++idle > mostKept || entries > mostEntriesKept)
            search = std::make_reverse_iterator(searches.erase(std::next(search).base()));
        else
            ++search;
    }
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_worker.h"

#include "host/contract/query/search_query.h"
#include "host/contract/search_choices.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace wirepane {

namespace {

constexpr std::chrono::seconds busyTimeout{5};

bool endsCutShort(const CSearch& condition) {
    if (!condition.isQuery() || !condition.query().endsWith(u'*') ||
        scopeOf(condition.scope) != SearchScope::Headlines)
        return false;
    const ReadQuery read = readQuery(condition.query());
    const auto* query = std::get_if<QueryNode>(&read);
    return query != nullptr && !leavesOutCut(*query);
}

// Each once.
void keepNewest(std::vector<CHeadlineTable>& entries, std::size_t most) {
    const auto isBefore = [](const CHeadlineTable& a, const CHeadlineTable& b) {
        return isNewer(a, b) || (!isNewer(b, a) && a.service < b.service);
    };
    const auto isSame = [](const CHeadlineTable& a, const CHeadlineTable& b) { return keyOf(a) == keyOf(b); };
    std::ranges::sort(entries, isBefore);
    entries.erase(std::unique(entries.begin(), entries.end(), isSame), entries.end());
    entries.resize(std::min(entries.size(), most));
}

}  // namespace

SearchWorker::SearchWorker(QString storePath, Answer answer, std::optional<std::chrono::milliseconds> idle)
    : path(std::move(storePath)), tell(std::move(answer)), preparesAfter(idle) {
    thread.post([this] { prepareWhenIdle(); });
}

void SearchWorker::ask(SearchJob job) {
    thread.post([this, job = std::move(job)] { search(job); });
}

void SearchWorker::askBeside(SideJob job) {
    thread.post([this, job = std::move(job)] { searchBeside(job); });
}

void SearchWorker::searchBeside(const SideJob& job) {
    std::vector<std::vector<CHeadlineTable>> all;
    for (const SideJob::Search& search : job.searches)
        all.push_back(found(search, job));
    if (!*job.dropped)
        job.told(std::move(all), true);
}

std::vector<CHeadlineTable> SearchWorker::found(const SideJob::Search& search, const SideJob& job) {
    std::vector<CHeadlineTable> entries;
    NewsSearch* const searching = *job.dropped ? nullptr : opened();
    if (searching == nullptr)
        return entries;
    if (search.newest)
        return newestFound(search, job);
    for (const unsigned char service : search.services) {
        if (const auto found = searching->find(service, search.condition, job.dropped.get()))
            entries.insert(entries.end(), found->begin(), found->end());
    }
    return entries;
}

std::vector<CHeadlineTable> SearchWorker::newestFound(const SideJob::Search& search, const SideJob& job) {
    CSearch whole = search.condition;
    std::vector<CHeadlineTable> cut;
    if (endsCutShort(whole)) {
        whole.keywords = {whole.query().chopped(1)};
        cut = titles->find(search.services, search.condition.query(), search.newest->latest, *job.dropped);
    }
    const auto withCut = [&](std::vector<CHeadlineTable> found) {
        found.insert(found.end(), cut.begin(), cut.end());
        keepNewest(found, search.newest->most);
        return found;
    };
    const bool isAlone = job.searches.size() == 1;
    const auto first = [&](const std::vector<CHeadlineTable>& soon) {
        std::vector<CHeadlineTable> found = withCut(soon);
        if (isAlone && !found.empty() && !*job.dropped)
            job.told({std::move(found)}, false);
    };
    return withCut(news->findOnce(search.services, whole, *search.newest, job.dropped.get(), first)
                       .value_or(std::vector<CHeadlineTable>()));
}

void SearchWorker::search(const SearchJob& job) {
    if (!*job.dropped) {
        NewsSearch* const search = opened();
        auto found = search != nullptr ? search->findPacked(job.service, job.condition, job.dropped.get())
                                       : std::nullopt;
        if (!*job.dropped)
            tell(job.ticket, found ? *std::move(found) : KeyBlocks());
    }
    ++searched;
    prepareWhenIdle();
}

void SearchWorker::prepareWhenIdle() {
    if (prepared || !preparesAfter)
        return;
    thread.postLater(*preparesAfter, [this, before = searched] {
        if (prepared || searched != before)
            return;
        prepared = true;
        if (NewsSearch* const search = opened(); search != nullptr)
            search->prepare();
    });
}

// Tried again each time: a store may come to be readable.
NewsSearch* SearchWorker::opened() {
    if (!database) {
        if (auto result = Database::openToRead(path, busyTimeout)) {
            database = std::move(result.value());
            news.emplace(*database);
            titles.emplace(*database);
        }
    }
    return news ? &*news : nullptr;
}

}  // namespace wirepane

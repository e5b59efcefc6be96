// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_worker.h"

#include <utility>

namespace wirepane {

namespace {

constexpr std::chrono::seconds busyTimeout{5};

}  // namespace

SearchWorker::SearchWorker(QString storePath, Answer answer, std::chrono::milliseconds idle)
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
    for (const SideJob::Search& search : job.searches) {
        std::vector<CHeadlineTable>& entries = all.emplace_back();
        NewsSearch* const searching = *job.dropped ? nullptr : opened();
        for (const unsigned char service : search.services) {
            const auto found = searching != nullptr
                                   ? searching->find(service, search.condition, job.dropped.get())
                                   : std::nullopt;
            if (found)
                entries.insert(entries.end(), found->begin(), found->end());
        }
    }
    if (!*job.dropped)
        job.told(std::move(all));
}

void SearchWorker::search(const SearchJob& job) {
    if (!*job.dropped) {
        NewsSearch* const search = opened();
        auto found =
            search != nullptr ? search->find(job.service, job.condition, job.dropped.get()) : std::nullopt;
        if (!*job.dropped)
            tell(job.ticket, found ? *std::move(found) : std::vector<CHeadlineTable>());
    }
    ++searched;
    prepareWhenIdle();
}

void SearchWorker::prepareWhenIdle() {
    if (prepared)
        return;
    thread.postLater(preparesAfter, [this, before = searched] {
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
        }
    }
    return news ? &*news : nullptr;
}

}  // namespace wirepane

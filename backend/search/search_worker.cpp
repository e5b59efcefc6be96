// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_worker.h"

#include "backend/database/database.h"
#include "backend/search/news_search.h"

#include <chrono>
#include <utility>

namespace wirepane {

namespace {

constexpr std::chrono::seconds preparesAfter{2};
constexpr std::chrono::seconds busyTimeout{5};

}  // namespace

SearchWorker::SearchWorker(QString storePath, Answer answer)
    : path(std::move(storePath)), tell(std::move(answer)), thread([this] { run(); }) {}

SearchWorker::~SearchWorker() {
    {
        const std::lock_guard lock(mutex);
        ending = true;
        if (current)
            *current = true;
    }
    asked.notify_one();
    thread.join();
}

void SearchWorker::ask(SearchJob job) {
    {
        const std::lock_guard lock(mutex);
        jobs.push_back(std::move(job));
    }
    asked.notify_one();
}

bool SearchWorker::take(SearchJob& job, bool idle) {
    std::unique_lock lock(mutex);
    const auto ready = [this] { return ending || !jobs.empty(); };
    current.reset();
    if (idle)
        asked.wait(lock, ready);
    else
        asked.wait_for(lock, preparesAfter, ready);
    job = {};
    if (!ending && !jobs.empty()) {
        job = std::move(jobs.front());
        jobs.pop_front();
        current = job.dropped;
    }
    return !ending;
}

void SearchWorker::run() {
    SearchJob job;
    std::unique_ptr<Database> database;
    std::optional<NewsSearch> search;
    bool prepared = false;
    while (take(job, prepared)) {
        if (!database) {
            if (auto opened = Database::openToRead(path, busyTimeout)) {
                database = std::move(opened.value());
                search.emplace(*database);
            }
        }
        if (job.ticket == 0) {
            prepared = true;
            if (search)
                search->prepare();
            continue;
        }
        if (*job.dropped)
            continue;
        auto found = search ? search->find(job.service, job.condition, job.dropped.get()) : std::nullopt;
        if (!*job.dropped)
            tell(job.ticket, found ? *std::move(found) : std::vector<CHeadlineTable>());
    }
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/rehearsal_desk.h"

#include "backend/search/rehearsal.h"
#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"
#include "host/contract/clock.h"

#include <atomic>
#include <optional>
#include <utility>
#include <vector>

namespace wirepane {

namespace {

constexpr int rehearsedDays = 30;

}  // namespace

RehearsedNews rehearsedNews(StoreReader& reader) {
    return {[&reader](const CHeadline& headline) {
                return reader.relatedSymbols(keyOf(headline)).value_or(std::vector<CSymbolInfo>());
            },
            [&reader](const HeadlineKey& key) { return reader.story(key).value_or(QString()); }};
}

struct RehearsalDesk::Job {
    KeySetRehearsal::KeySet keySet;
    KeySetRehearsal::Told told;  // called on the interface thread alone
    QDate today;
    std::int64_t now = 0;
    std::atomic<bool> dropped = false;
};

RehearsalDesk::RehearsalDesk(QString storePath) : path(std::move(storePath)) {}

RehearsalDesk::~RehearsalDesk() {
    for (const std::weak_ptr<Job>& job : jobs) {
        if (const auto open = job.lock())
            open->dropped = true;
    }
}

std::shared_ptr<const void> RehearsalDesk::rehearse(KeySetRehearsal::KeySet keySet,
                                                    KeySetRehearsal::Told told) {
    auto job = std::make_shared<Job>();
    job->keySet = std::move(keySet);
    job->told = std::move(told);
    job->today = host_clock::today();
    job->now = host_clock::now();
    std::erase_if(jobs, [](const std::weak_ptr<Job>& other) { return other.expired(); });
    jobs.push_back(job);
    if (!thread)
        thread = std::make_unique<WorkerThread>();
    thread->post([this, job] { carryOut(job); });
    return {job.get(), [job](Job* kept) { kept->dropped = true; }};
}

void RehearsalDesk::carryOut(const std::shared_ptr<Job>& job) {
    if (job->dropped)
        return;
    std::optional<Rehearsal> rehearsal;
    if (const auto store = openStoreToRead(path)) {
        StoreReader reader(*store.value());
        rehearsal =
            wirepane::rehearse(*store.value(), job->keySet,
                               {job->keySet.services, job->today, rehearsedDays, job->now, &job->dropped},
                               rehearsedNews(reader));
    }
    answers.post([job, rehearsal = std::move(rehearsal)] {
        if (!job->dropped)
            job->told(rehearsal);
    });
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/row_file_desk.h"

#include "backend/store/row_file.h"
#include "backend/store/store_file.h"

#include <QElapsedTimer>

#include <algorithm>
#include <atomic>
#include <utility>

namespace wirepane {

namespace {

constexpr qint64 progressEveryMs = 200;

}  // namespace

struct RowFileDesk::Job {
    std::vector<CHeadlineTable> entries;
    NewsRowForm form;
    QString file;
    NewsRowFiles::Tellers tellers;  // called on the interface thread alone
    std::atomic<bool> dropped = false;
};

RowFileDesk::RowFileDesk(QString storePath) : path(std::move(storePath)) {}

RowFileDesk::~RowFileDesk() {
    for (const std::weak_ptr<Job>& job : jobs) {
        if (const auto open = job.lock())
            open->dropped = true;
    }
}

std::shared_ptr<const void> RowFileDesk::write(std::vector<CHeadlineTable> entries, NewsRowForm form,
                                               const QString& file, NewsRowFiles::Tellers tellers) {
    auto job = std::make_shared<Job>();
    job->entries = std::move(entries);
    job->form = form;
    job->file = file;
    job->tellers = std::move(tellers);
    std::erase_if(jobs, [](const std::weak_ptr<Job>& other) { return other.expired(); });
    jobs.push_back(job);
    if (!thread)
        thread = std::make_unique<WorkerThread>();
    thread->post([this, job] { carryOut(job); });
    // The job goes on as long as whoever asked for it keeps this.
    return {job.get(), [job](Job* kept) { kept->dropped = true; }};
}

void RowFileDesk::carryOut(const std::shared_ptr<Job>& job) {
    if (job->dropped)
        return;
    const RowFileOutcome outcome = outcomeOf(job);
    told.post([job, outcome] {
        if (!job->dropped)
            job->tellers.end(outcome);
    });
}

RowFileOutcome RowFileDesk::outcomeOf(const std::shared_ptr<Job>& job) {
    const auto store = openStoreToRead(path);
    if (!store)
        return {RowFileOutcome::End::Unreadable, 0, 0, {}};
    QElapsedTimer clock;
    clock.start();
    return writeRowFile(*store.value(), job->entries, job->form, job->file, [&](int done) {
        if (clock.elapsed() >= progressEveryMs) {
            clock.restart();
            told.post([job, done] {
                if (!job->dropped)
                    job->tellers.progress(done);
            });
        }
        return !job->dropped;
    });
}

}  // namespace wirepane

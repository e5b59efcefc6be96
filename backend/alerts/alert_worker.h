// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_matcher.h"
#include "backend/alerts/alert_policy.h"
#include "backend/database/data_version.h"
#include "backend/store/arrival_log.h"
#include "backend/store/store_reader.h"
#include "backend/worker_thread.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace wirepane {

// What the rules match among the news that came up to a position of the log of arrivals.
struct AlertFindings {
    std::vector<AlertEntry> entries;  // not stored yet, oldest first
    std::int64_t position = 0;
    bool areRulesNew = false;  // news before that position is never tried with the rules of now
};

// Tries the rules on each headline that comes into a store, once and whoever wrote it, on a thread and a
// connection of its own: nothing that is shown, and nothing that takes news in, waits for it. It goes on
// behind the position that the store keeps; where it keeps none, with what comes from then on.
class AlertWorker {
public:
    // Called on the worker's thread, never after the destructor returns.
    using Found = std::function<void(AlertFindings&& found)>;
    AlertWorker(QString storePath, Found found);

    // From any thread, as the next: the rules count for what is looked at from then on.
    void setRules(std::vector<AlertRule> rules);
    // Looks at what came since the last time.
    void look(const AlertPolicy::Conditions& conditions);

private:
    struct Opened {
        explicit Opened(std::unique_ptr<Database> store);

        std::unique_ptr<Database> database;
        DataVersion version;
        ArrivalLog log;
        StoreReader reader;
        Statement names;
        AlertPolicy policy;
        std::int64_t position = 0;
        std::int64_t namesKnown = 0;  // to the matcher

        // Of topics and services that there are.
        std::int64_t countNames();
    };
    // On the thread, as all that they use.
    Opened* opened();
    // False: the store cannot be read.
    bool compile();
    void lookOn(const AlertPolicy::Conditions& conditions);
    void tryOn(const Arrival& arrival, const AlertPolicy::Conditions& conditions,
               std::vector<AlertEntry>& found);

    const QString path;
    const Found tell;
    std::vector<AlertRule> rules;
    std::optional<AlertMatcher> matcher;
    std::unique_ptr<Opened> store;
    WorkerThread thread;  // last: it uses all of the above
};

}  // namespace wirepane

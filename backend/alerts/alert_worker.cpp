// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_worker.h"

#include "backend/alerts/alert_book.h"
#include "backend/database/read_transaction.h"
#include "host/contract/clock.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace wirepane {

namespace {

constexpr std::chrono::seconds busyTimeout{5};
constexpr std::int64_t lookedAtOnce = 2000;  // arrivals

}  // namespace

AlertWorker::Opened::Opened(std::unique_ptr<Database> store)
    : database(std::move(store)),
      version(*database),
      log(*database),
      reader(*database),
      policy(AlertBook(*database).entries()),
      position(AlertBook(*database).position().value_or(log.last().value_or(0))) {}

AlertWorker::AlertWorker(QString storePath, Found found)
    : path(std::move(storePath)), tell(std::move(found)) {}

void AlertWorker::setRules(std::vector<AlertRule> wanted) {
    thread.post([this, wanted = std::move(wanted)] {
        rules = wanted;
        compile();
    });
}

void AlertWorker::look(const AlertPolicy::Conditions& conditions) {
    thread.post([this, conditions] { lookOn(conditions); });
}

// Tried again each time: a store may come to be readable.
AlertWorker::Opened* AlertWorker::opened() {
    if (!store) {
        if (auto result = Database::openToRead(path, busyTimeout))
            store = std::make_unique<Opened>(std::move(result.value()));
    }
    return store.get();
}

void AlertWorker::compile() {
    Opened* const in = opened();
    if (in == nullptr)
        return;
    QueryPlanner planner(*in->database);
    const bool isAnother = matcher.has_value();
    matcher.emplace(rules, planner, [in](const CHeadline& headline) {
        return in->reader.relatedSymbols(keyOf(headline)).value_or(std::vector<CSymbolInfo>());
    });
    tell({{}, in->position, isAnother});
}

void AlertWorker::lookOn(const AlertPolicy::Conditions& conditions) {
    Opened* const in = opened();
    if (in == nullptr || !in->version.hasChanged())
        return;
    if (!matcher)
        compile();
    const std::int64_t last = in->log.last().value_or(in->position);
    while (in->position < last) {
        AlertFindings found;
        const ReadTransaction moment(*in->database);
        const std::int64_t end = std::min(in->position + lookedAtOnce, last);
        for (const Arrival& arrival : in->log.after(in->position, end)) {
            if (!arrival.onlyStory && !arrival.isGone && !rules.empty())
                tryOn(arrival.key, conditions, found.entries);
        }
        in->position = found.position = end;
        tell(std::move(found));
    }
}

void AlertWorker::tryOn(const HeadlineKey& key, const AlertPolicy::Conditions& conditions,
                        std::vector<AlertEntry>& found) {
    const auto headline = store->reader.headline(key);
    if (!headline)
        return;
    matcher->match(*headline, [&](std::size_t rule, const QStringList& words) {
        AlertEntry entry;
        entry.rule = rules[rule].name;
        entry.headline = key;
        entry.title = headline->title;
        entry.words = words;
        entry.received = store->reader.received(key).value_or(0);
        entry.matched = host_clock::now();
        store->policy.decide(entry, rules[rule], conditions);
        found.push_back(std::move(entry));
    });
}

}  // namespace wirepane

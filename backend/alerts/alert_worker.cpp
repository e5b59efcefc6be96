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
      names(*database, "SELECT (SELECT count(*) FROM categories) + (SELECT count(*) FROM services)"),
      policy(AlertBook(*database).entries()),
      position(AlertBook(*database).position().value_or(log.last().value_or(0))) {}

AlertWorker::AlertWorker(QString storePath, Found found)
    : path(std::move(storePath)), tell(std::move(found)) {}

void AlertWorker::setRules(std::vector<AlertRule> wanted) {
    thread.post([this, wanted = std::move(wanted)] {
        rules = wanted;
        const bool isAnother = matcher.has_value();
        if (compile())
            tell({{}, store->position, isAnother});
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

std::int64_t AlertWorker::Opened::countNames() {
    Query query(names);
    return query.next() ? query.number(0) : 0;
}

bool AlertWorker::compile() {
    Opened* const in = opened();
    if (in == nullptr)
        return false;
    QueryPlanner planner(*in->database);
    in->namesKnown = in->countNames();
    matcher.emplace(rules, planner, [in](const CHeadline& headline) {
        return in->reader.relatedSymbols(keyOf(headline)).value_or(std::vector<CSymbolInfo>());
    });
    return true;
}

void AlertWorker::lookOn(const AlertPolicy::Conditions& conditions) {
    Opened* const in = opened();
    if (in == nullptr || !in->version.hasChanged())
        return;
    // Rules that name a topic mean one that came after them, too.
    if (!matcher || in->countNames() != in->namesKnown)
        compile();
    const std::int64_t last = in->log.last().value_or(in->position);
    while (in->position < last) {
        AlertFindings found;
        const ReadTransaction moment(*in->database);
        const std::int64_t end = std::min(in->position + lookedAtOnce, last);
        for (const Arrival& arrival : in->log.after(in->position, end)) {
            if (!arrival.isGone && !rules.empty())
                tryOn(arrival, conditions, found.entries);
        }
        in->position = found.position = end;
        tell(std::move(found));
    }
}

void AlertWorker::tryOn(const Arrival& arrival, const AlertPolicy::Conditions& conditions,
                        std::vector<AlertEntry>& found) {
    const HeadlineKey& key = arrival.key;
    if (arrival.onlyStory && !matcher->looksAtStories())
        return;
    const auto headline = store->reader.headline(key);
    if (!headline)
        return;
    const QString story =
        matcher->looksAtStories() ? store->reader.story(key).value_or(QString()) : QString();
    const auto take = [&](std::size_t rule, const QStringList& words) {
        AlertEntry entry;
        entry.rule = rules[rule].name;
        entry.headline = key;
        entry.title = headline->title;
        entry.words = words;
        entry.received = store->reader.received(key).value_or(0);
        entry.matched = host_clock::now();
        store->policy.decide(entry, rules[rule], conditions);
        found.push_back(std::move(entry));
    };
    if (arrival.onlyStory)
        matcher->matchStory(*headline, story, take);
    else
        matcher->match(*headline, story, take);
}

}  // namespace wirepane

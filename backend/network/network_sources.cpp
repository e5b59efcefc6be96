// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/network_sources.h"

#include "backend/feed/live_feed.h"
#include "backend/store/embedded_back_end.h"

#include <QDateTime>
#include <QRandomGenerator>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace wirepane {

namespace {

constexpr auto lookInterval = 250ms;
constexpr auto keepInterval = 5s;

NetworkMeans realMeans(SourceAsker& asker, SecretStore* secrets) {
    return {&asker, secrets, [] { return QDateTime::currentMSecsSinceEpoch(); },
            [] { return QRandomGenerator::global()->generateDouble(); }};
}

}  // namespace

NetworkSources::NetworkSources(EmbeddedBackEnd& back, LiveFeed& liveFeed, SecretStore* secrets)
    : backEnd(back),
      feed(liveFeed),
      ownAsker(std::make_unique<NetworkAsker>()),
      means(realMeans(*ownAsker, secrets)) {
    begin();
}

NetworkSources::NetworkSources(EmbeddedBackEnd& back, LiveFeed& liveFeed, NetworkMeans given)
    : backEnd(back), feed(liveFeed), means(std::move(given)) {
    begin();
}

NetworkSources::~NetworkSources() {
    keepStandings();
    for (const auto& source : opened)
        source->leave();
}

void NetworkSources::begin() {
    connect(&looking, &QTimer::timeout, this, &NetworkSources::look);
    connect(&keeping, &QTimer::timeout, this, &NetworkSources::keepStandings);
    looking.start(lookInterval);
    keeping.start(keepInterval);
    follow();
}

void NetworkSources::askNow(const QString& name) {
    for (const auto& source : opened) {
        if (source->name() == name)
            source->askNow();
    }
}

// A store that cannot be read at this moment is looked at again.
void NetworkSources::follow() {
    if (store == nullptr) {
        auto database = Database::openToRead(backEnd.storePath(), 0ms);
        if (!database)
            return;
        store = std::move(database.value());
    }
    read();
}

// The back end watches the store already.
void NetworkSources::look() {
    const std::int64_t present = backEnd.storeChanges();
    if (store == nullptr || std::exchange(changesSeen, present) != present)
        follow();
}

void NetworkSources::read() {
    SourceList list(*store);
    const auto present = list.revision();
    if (!present || present.value() == revision)
        return;
    const auto listed = list.sources();
    if (!listed)
        return;
    revision = present.value();
    take(listed.value(), list);
}

void NetworkSources::take(const std::vector<NetworkSource>& listed, SourceList& list) {
    keepStandings();
    auto before = std::exchange(opened, {});
    for (const NetworkSource& source : listed) {
        const auto same = std::find_if(before.begin(), before.end(), [&](const auto& one) {
            return one != nullptr && one->definition() == source;
        });
        if (same != before.end()) {
            opened.push_back(std::exchange(*same, nullptr));
            continue;
        }
        const auto changed = std::find_if(before.begin(), before.end(), [&](const auto& one) {
            return one != nullptr && one->name() == source.name;
        });
        const auto kept = list.standing(source.name);
        open(source, changed != before.end() ? (*changed)->standing()
                     : kept                  ? kept.value()
                                             : SourceStanding());
    }
    for (const auto& gone : before) {
        if (gone != nullptr)
            gone->leave();
    }
}

void NetworkSources::open(const NetworkSource& source, const SourceStanding& standing) {
    opened.push_back(std::make_shared<NetworkFeedSource>(source, means, standing));
    feed.addSource(opened.back());
}

void NetworkSources::keepStandings() {
    std::vector<std::pair<QString, SourceStanding>> changed;
    for (const auto& source : opened) {
        if (source->takeChanged())
            changed.emplace_back(source->name(), source->standing());
    }
    if (changed.empty())
        return;
    // What cannot be kept now is kept with the next change.
    backEnd.ask([changed](StoreWriter& writer) { SourceList(writer.connection()).keepStandings(changed); },
                {});
}

}  // namespace wirepane

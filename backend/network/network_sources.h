// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/network/network_feed_source.h"
#include "backend/network/source_list.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

namespace wirepane {
class EmbeddedBackEnd;
class LiveFeed;

// The sources of the user's list as live sources: opens them with the live feed, follows the list as this
// program or another changes it, and keeps how each stands. Nothing is dialled while the list is empty.
// Interface thread.
class NetworkSources : public QObject {
public:
    // None is owned; all outlive this. `secrets`: null: there are none.
    NetworkSources(EmbeddedBackEnd& backEnd, LiveFeed& feed, SecretStore* secrets);
    // As above, with other means than the network and the machine's clock.
    NetworkSources(EmbeddedBackEnd& backEnd, LiveFeed& feed, NetworkMeans means);
    // What is known of standings is on its way into the store.
    ~NetworkSources() override;

    // The sources as they are read now, paused ones too.
    const std::vector<std::shared_ptr<NetworkFeedSource>>& sources() const { return opened; }
    // Asks this source at once; one that is not there, or is paused, not at all.
    void askNow(const QString& name);
    // The asker of all sources, for whoever wants to try one.
    SourceAsker& asker() { return *means.asker; }
    // Looks at once whether the list has changed.
    void follow();

private:
    void begin();
    void look();
    void read();
    void take(const std::vector<NetworkSource>& listed, SourceList& list);
    void open(const NetworkSource& source, const SourceStanding& standing);
    void keepStandings();

    EmbeddedBackEnd& backEnd;
    LiveFeed& feed;
    std::unique_ptr<NetworkAsker> ownAsker;
    NetworkMeans means;
    std::unique_ptr<Database> store;  // to read the list
    std::int64_t changesSeen = -1;    // of the store
    std::int64_t revision = -1;
    std::vector<std::shared_ptr<NetworkFeedSource>> opened;
    QTimer looking;
    QTimer keeping;
};

}  // namespace wirepane

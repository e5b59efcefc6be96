// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/address_secrets.h"
#include "backend/network/network_source.h"
#include "terminal/sources/feed_links.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace wirepane {

// An item as it would stand in the list.
struct TrialItem {
    std::int64_t time = 0;  // seconds since 1970
    QString category;
    QString title;

    bool operator==(const TrialItem&) const = default;
};

// What came of asking a source once.
struct TrialReport {
    static constexpr std::size_t mostItems = 10;

    QString title;                 // of the feed, by itself; empty: it has none
    std::vector<TrialItem> first;  // the newest, newest first
    int items = 0;                 // that could be taken
    int rejected = 0;
    int left = 0;                          // that are older than what is taken
    std::optional<Error> reason;           // of the first that was rejected
    std::optional<NetworkSource> fitting;  // the source as it should be to be read, where that is another
    std::vector<FeedLink> links;           // a page came, which names these feeds as its own
    std::optional<Error> fault;            // why nothing could be read, or what is strange in what was
};

// Asks a source once, or follows a stream for a moment, without keeping anything of it. Interface thread.
class SourceTrial {
public:
    using Told = std::function<void(const TrialReport&)>;

    SourceTrial() = default;
    SourceTrial(const SourceTrial&) = delete;
    SourceTrial& operator=(const SourceTrial&) = delete;
    virtual ~SourceTrial() = default;

    // One at a time: who is waiting for an earlier one hears no more of it. `secret`: what has been typed and
    // is not kept yet; empty: that which the source names.
    virtual void start(const NetworkSource& source, const SourceSecret& secret, const Told& told) = 0;
    virtual void stop() = 0;
};

}  // namespace wirepane

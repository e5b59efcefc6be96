// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/feed_text.h"
#include "backend/import/reading.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace wirepane {
class XmlSource;

// What the elements of a feed and of its entries say, whatever the kind of feed.
struct FeedEntry {
    QString identity;  // guid, id or rdf:about
    QString link;
    QString title;
    QString otherTitle;  // of a vocabulary beside the feed's own
    FeedText content;
    FeedText summary;
    QString category;
    std::optional<std::int64_t> published;
    std::optional<std::int64_t> updated;

    // Takes in the element that `xml` stands on, and goes to its end; one that says nothing of these is left
    // out. `ownNamespace` is the namespace of the feed's own elements.
    void takeElement(XmlSource& xml, QStringView ownNamespace);

    std::optional<std::int64_t> time() const { return published ? published : updated; }
};

// The entry of a feed as a piece of news. A missing time is taken from the feed; the error says what is
// missing.
Result<StoreItem> feedItem(const FeedEntry& entry, const FeedEntry& feed, unsigned char service);

}  // namespace wirepane

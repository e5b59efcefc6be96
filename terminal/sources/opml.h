// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QUrl>

#include <vector>

namespace wirepane {

// A feed as lists of feeds name it.
struct ListedFeed {
    QString title;  // one line; empty: the list gives none
    QUrl address;   // http or https; as read, it may hold secrets

    bool operator==(const ListedFeed&) const = default;
};

struct OpmlReading {
    std::vector<ListedFeed> feeds;  // in the list's order, each address once
    int leftOut = 0;  // entries with an address that is none of the web's, or beyond mostListedFeeds
};

inline constexpr qint64 largestOpml = qint64(4) << 20;
inline constexpr int mostListedFeeds = 1000;

// Reads a list of feeds (OPML 1.0 to 2.0), whatever folders they stand in. Nothing in it is trusted: entities
// outside the file are not fetched, nesting and what entities expand to are limited. The list is
// random-access, open for reading, and stands at its start. Fails when it is no such list, is broken off or
// names no feed.
Result<OpmlReading> readOpml(QIODevice& list);

// The list in OPML 2.0. The addresses must not hold secrets.
QByteArray writtenOpml(const std::vector<ListedFeed>& feeds);

}  // namespace wirepane

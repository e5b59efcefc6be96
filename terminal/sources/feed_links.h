// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>
#include <QUrl>

#include <vector>

namespace wirepane {

// A feed that a page names as its own.
struct FeedLink {
    QString title;  // one line; may be empty
    QUrl address;   // http or https

    bool operator==(const FeedLink&) const = default;
};

inline constexpr int mostFeedLinks = 20;

// The feeds that the head of a page names: <link rel="alternate"> of the types of RSS and Atom, and of no
// other. Scripts, comments and whatever else is no tag are not looked into; nothing is run or fetched.
// `pageAddress` is where the page came from, in the end.
std::vector<FeedLink> feedLinks(QStringView page, const QUrl& pageAddress);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <variant>

namespace wirepane {

// What a feed says of itself before its first item.
struct FeedHello {
    QString source;             // the name under which its position is kept; empty: none is kept
    unsigned char service = 1;  // of records that do not name one
};

// One item of a feed.
struct FeedRecord {
    Result<StoreItem> item;
    QString position;  // behind this item; empty: it names none
};

// One line of a feed is a ninjs record, or an object with the one field "wirepane", which is
//   {"source": NAME, "service": ID}       the greeting, as the first line
//   {"ninjs": RECORD, "position": TEXT}   a record and its position
//   {"item": ITEM, "position": TEXT}      news as a store holds it: service, identity, version, time, title,
//                                         story, category, related [{market, code}], sequence
//   {"quote": QUOTE, "position": TEXT}    what a symbol trades at: market, code, last, change, volume
using FeedLine = std::variant<FeedHello, FeedRecord>;

FeedLine parsedFeedLine(QByteArrayView line, unsigned char service);

// Lines in this form, with their line feed.
QByteArray helloLine(const FeedHello& hello);
QByteArray itemLine(const NewsItem& item, const QString& position);

}  // namespace wirepane

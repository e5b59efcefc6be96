// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/written_lines.h"
#include "backend/import/reading.h"

#include <QByteArrayView>
#include <QString>

#include <variant>

namespace wirepane {

// One item of a feed.
struct FeedRecord {
    Result<StoreItem> item;
    QString position;  // behind this item; empty: it names none
};

// One line of a feed is a ninjs record, or an object with the one field "wirepane", which is
//   {"source": NAME, "service": ID}       the handshake, as the first line; "numbered": true, where the
//   sequence
//                                         of items is one higher from item to item
//   {"ninjs": RECORD, "position": TEXT}   a record and its position
//   {"item": ITEM, "position": TEXT}      news as a store holds it: service, identity, version, time, title,
//                                         story, category, related [{market, code}], sequence,
//                                         withdrawn (the reason; then title and story may be missing)
//   {"quote": QUOTE, "position": TEXT}    what a symbol trades at: market, code, last, change, volume
//   {"symbol": SYMBOL, "position": TEXT}  an entry of the symbol table: market, code, name, category,
//                                         english
//   {"category": CATEGORY, "position": TEXT}  an entry of a service's catalogue: service, id, name, colour
using FeedLine = std::variant<FeedHandshake, FeedRecord>;

FeedLine parsedFeedLine(QByteArrayView line, unsigned char service);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"

#include <QByteArray>
#include <QString>

namespace wirepane {

// What a feed says of itself before its first item.
struct FeedHandshake {
    QString source;             // the name under which its position is kept; empty: none is kept
    unsigned char service = 1;  // of records that do not name one
    bool isNumbered = false;    // its items' sequence is one higher from item to item
};

// Lines of a feed in the form of feed_line.h, with their line feed. `position`: the sender's mark behind the
// item; empty: none.
QByteArray handshakeLine(const FeedHandshake& handshake);
QByteArray itemLine(const NewsItem& item, const QString& position = {});
QByteArray feedLine(const StoreItem& item, const QString& position = {});

}  // namespace wirepane

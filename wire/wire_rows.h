// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "backend/result.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

namespace wirepane {

inline constexpr int wireFormat = 1;

// The head of a wire: its one row that every commit changes.
struct WireHead {
    QString epoch;          // another one: the wire was made anew, or set back
    std::int64_t last = 0;  // the sequence of its newest row; 0: none yet
    int format = wireFormat;
    QString zone;             // whose calendar days number the news
    std::int64_t moment = 0;  // of the last commit; of one that is under way, its own. Seconds since 1970
};

// One row of the log.
struct WireRow {
    std::int64_t sequence = 0;
    int service = 0;        // 0: of no service, for everybody
    std::int64_t prev = 0;  // the sequence of the row before of this service; 0: none
    QString kind;
    QByteArray body;
};

// Rows that follow one another, and the head at the same moment.
struct WirePage {
    WireHead head;
    std::vector<WireRow> rows;
};

namespace wire_kinds {
inline const QString news = QStringLiteral("news");
inline const QString story = QStringLiteral("story");
inline const QString version = QStringLiteral("version");
inline const QString withdrawal = QStringLiteral("withdrawal");
inline const QString category = QStringLiteral("category");
inline const QString symbol = QStringLiteral("symbol");
}  // namespace wire_kinds

// What a row says, for the store. News carries what was decided of it: number, day, category, moment.
QByteArray bodyOf(const StoreItem& item);
// An error: this version of the program does not know the kind, or the body is damaged.
Result<StoreItem> contentOf(const WireRow& row);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/feed_positions.h"

namespace wirepane {

FeedPositions::FeedPositions(Database& database)
    : write(database, "REPLACE INTO feed_positions(source, position) VALUES(?, ?)"),
      read(database, "SELECT position FROM feed_positions WHERE source = ?") {}

bool FeedPositions::keep(const QString& source, const QString& position) {
    return Query(write, source, position).run();
}

QString FeedPositions::of(const QString& source, bool& failed) {
    Query query(read, source);
    const QString position = query.next() ? query.text(0) : QString();
    failed = query.failed();
    return position;
}

}  // namespace wirepane

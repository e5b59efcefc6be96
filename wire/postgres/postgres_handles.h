// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>

#include <libpq-fe.h>
#include <memory>

namespace wirepane {

struct ConnectionCloser {
    void operator()(PGconn* connection) const { PQfinish(connection); }
};
struct ResultClearer {
    void operator()(PGresult* result) const { PQclear(result); }
};
using ConnectionHandle = std::unique_ptr<PGconn, ConnectionCloser>;
using ResultHandle = std::unique_ptr<PGresult, ResultClearer>;

// What to connect with; `service` is a name and nothing else.
QByteArray connectionSettings(const QString& service);
// What the connection says of its last failure.
Error failureOf(const PGconn* connection);

// What the rows of a page are read with, in binary form: $1 is the sequence behind which they begin, $2 how
// many they are at most.
inline constexpr auto pageQuery =
    "SELECT h.epoch, h.last, h.format, h.zone, h.moment, l.sequence, l.service, l.prev, l.kind, l.body "
    "FROM wire.head h LEFT JOIN (SELECT * FROM wire.log WHERE sequence > $1::bigint ORDER BY sequence "
    "LIMIT $2::bigint) l ON true ORDER BY l.sequence";
struct WirePage;
Result<WirePage> pageOf(const PGresult* result);

}  // namespace wirepane

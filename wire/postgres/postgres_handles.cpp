// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/postgres/postgres_handles.h"

#include "wire/wire_errors.h"
#include "wire/wire_rows.h"

#include <QtEndian>

#include <cstring>

namespace wirepane {

namespace {

constexpr auto undefinedTable = "42P01";

enum Column { Epoch, Last, Format, Zone, Moment, Sequence, Service, Prev, Kind, Body };

QByteArray bytes(const PGresult* result, int row, int column) {
    return {PQgetvalue(result, row, column), PQgetlength(result, row, column)};
}

std::int64_t number(const PGresult* result, int row, int column) {
    const char* const value = PQgetvalue(result, row, column);
    switch (PQgetlength(result, row, column)) {
        case sizeof(qint64):
            return qFromBigEndian<qint64>(value);
        case sizeof(qint32):
            return qFromBigEndian<qint32>(value);
        default:
            return qFromBigEndian<qint16>(value);
    }
}

}  // namespace

QByteArray connectionSettings(const QString& service) {
    return "service=" + service.toUtf8() +
           " connect_timeout=5 application_name=wirepane keepalives_idle=5 keepalives_interval=2 "
           "keepalives_count=3";
}

Error failureOf(const PGconn* connection) {
    return makeError<wire_errors::server>(QString::fromUtf8(PQerrorMessage(connection)).simplified());
}

Result<WirePage> pageOf(const PGresult* result) {
    if (PQresultStatus(result) != PGRES_TUPLES_OK) {
        const char* const state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
        if (state != nullptr && std::strcmp(state, undefinedTable) == 0)
            return makeError<wire_errors::notMade>();
        return makeError<wire_errors::server>(QString::fromUtf8(PQresultErrorMessage(result)).simplified());
    }
    const int count = PQntuples(result);
    if (count == 0)
        return makeError<wire_errors::notMade>();
    WirePage page;
    page.head = {QString::fromUtf8(bytes(result, 0, Epoch)), number(result, 0, Last),
                 static_cast<int>(number(result, 0, Format)), QString::fromUtf8(bytes(result, 0, Zone)),
                 number(result, 0, Moment)};
    for (int row = 0; row < count && PQgetisnull(result, row, Sequence) == 0; ++row)
        page.rows.push_back({number(result, row, Sequence), static_cast<int>(number(result, row, Service)),
                             number(result, row, Prev), QString::fromUtf8(bytes(result, row, Kind)),
                             bytes(result, row, Body)});
    return page;
}

}  // namespace wirepane

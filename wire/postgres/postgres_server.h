// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wire/postgres/postgres_handles.h"
#include "wire/wire_driver.h"

#include <QByteArrayList>

namespace wirepane {

// A wire kept by PostgreSQL, spoken with call by call.
class PostgresServer : public WireServer {
public:
    explicit PostgresServer(const QString& service);

    Done make(const QString& zone) override;
    Done entitle(const QString& role, const QList<int>& services) override;
    Result<WireHead> head() override;
    Result<WireCare> care() override;
    Result<QStringList> faults() override;
    Result<std::vector<DayDigest>> digests() override;
    Result<QString> positionOf(const QString& source) override;
    Done beat(const QString& point) override;
    Result<WireHead> lockHead() override;
    Result<WirePage> pageAfter(std::int64_t sequence) override;
    Done append(const WirePortion& portion) override;
    Done commit() override;
    void rollback() override;

private:
    Done connect();
    Result<ResultHandle> ask(const char* sql, const QByteArrayList& values = {}, bool binary = false);
    Done run(const char* sql, const QByteArrayList& values = {});
    Done appendRows(const std::vector<WireRow>& rows);
    Done appendIdentities(const std::vector<WireIdentity>& identities);
    Done copy(const QByteArray& lines);
    Error lose();

    QByteArray settings;
    ConnectionHandle connection;
    std::int64_t moment = 0;  // of the transaction
    std::int64_t last = 0;    // row, with those of the transaction
};

}  // namespace wirepane

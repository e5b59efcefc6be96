// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/postgres/postgres_server.h"

#include "wire/postgres/schema.h"
#include "wire/wire_errors.h"

#include <QUuid>

namespace wirepane {

namespace {

constexpr auto mostRows = "2000";  // of a page

QByteArray text(const PGresult* result, int row, int column) {
    return {PQgetvalue(result, row, column), PQgetlength(result, row, column)};
}

// The values of an array, as PostgreSQL reads it.
template <class Values, class TextOf>
QByteArray arrayOf(const Values& values, const TextOf& textOf) {
    QByteArray array = "{";
    for (const auto& value : values) {
        QByteArray one = textOf(value);
        one.replace('\\', "\\\\").replace('"', "\\\"");
        array += (array.size() > 1 ? ",\"" : "\"") + one + '"';
    }
    return array + '}';
}

QByteArray lineOf(const WireRow& row, const QByteArray& moment) {
    return QByteArray::number(qint64(row.sequence)) + '\t' + QByteArray::number(row.service) + '\t' +
           QByteArray::number(qint64(row.prev)) + '\t' + moment + '\t' + row.kind.toUtf8() + "\t\\\\x" +
           row.body.toHex() + '\n';
}

}  // namespace

PostgresServer::PostgresServer(const QString& service) : settings(connectionSettings(service)) {}

Done PostgresServer::connect() {
    if (connection && PQstatus(connection.get()) == CONNECTION_OK)
        return Nothing{};
    connection.reset(PQconnectdb(settings.constData()));
    if (PQstatus(connection.get()) != CONNECTION_OK)
        return lose();
    PQsetNoticeProcessor(
        connection.get(), [](void*, const char*) {}, nullptr);
    // A commit that is answered is on the disk, whatever the server's own settings are for others.
    return run("SET synchronous_commit = on");
}

Error PostgresServer::lose() {
    const Error error = failureOf(connection.get());
    connection.reset();
    return error;
}

Result<ResultHandle> PostgresServer::ask(const char* sql, const QByteArrayList& values, bool binary) {
    if (const Done connected = connect(); !connected)
        return connected.error();
    std::vector<const char*> pointers;
    for (const QByteArray& value : values)
        pointers.push_back(value.constData());
    ResultHandle result(PQexecParams(connection.get(), sql, static_cast<int>(values.size()), nullptr,
                                     pointers.data(), nullptr, nullptr, binary ? 1 : 0));
    const ExecStatusType status = PQresultStatus(result.get());
    if (PQstatus(connection.get()) != CONNECTION_OK)
        return lose();
    if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK && status != PGRES_COPY_IN)
        return failureOf(connection.get());
    return result;
}

Done PostgresServer::run(const char* sql, const QByteArrayList& values) {
    const Result<ResultHandle> result = ask(sql, values);
    return result ? Done(Nothing{}) : Done(result.error());
}

Done PostgresServer::make(const QString& zone) {
    const Result<ResultHandle> there = ask("SELECT to_regclass('wire.head') IS NOT NULL");
    if (!there)
        return there.error();
    if (text(there.value().get(), 0, 0) == "t")
        return makeError<wire_errors::madeAlready>();
    if (const Done begun = run("BEGIN"); !begun)
        return begun;
    const ResultHandle made(PQexec(connection.get(), wireSchema));
    const QByteArray epoch = QUuid::createUuid().toByteArray(QUuid::Id128);
    Done done = PQresultStatus(made.get()) == PGRES_COMMAND_OK
                    ? run("INSERT INTO wire.head(epoch, last, format, zone, moment) VALUES($1, 0, "
                          "$2::integer, $3, 0)",
                          {epoch, QByteArray::number(wireFormat), zone.toUtf8()})
                    : Done(failureOf(connection.get()));
    if (done)
        done = run("COMMIT");
    if (!done)
        rollback();
    return done;
}

Done PostgresServer::entitle(const QString& role, const QList<int>& services) {
    const QByteArray name = role.toUtf8();
    if (const Done begun = run("BEGIN"); !begun)
        return begun;
    const QByteArray wanted = arrayOf(services, [](int service) { return QByteArray::number(service); });
    char* const quoted =
        PQescapeIdentifier(connection.get(), name.constData(), static_cast<size_t>(name.size()));
    const QByteArray identifier(quoted);
    PQfreemem(quoted);
    Done done = run(("GRANT USAGE ON SCHEMA wire TO " + identifier).constData());
    if (done)
        done = run(("GRANT SELECT ON wire.head, wire.log, wire.beats TO " + identifier).constData());
    if (done)
        done = run("DELETE FROM wire.entitlements WHERE role = $1", {name});
    if (done)
        done = run("INSERT INTO wire.entitlements SELECT $1, unnest($2::integer[])", {name, wanted});
    if (done)
        done = run("COMMIT");
    if (!done)
        rollback();
    return done;
}

Result<WireHead> PostgresServer::head() {
    const Result<ResultHandle> result = ask(pageQuery, {"0", "0"}, true);
    if (!result)
        return result.error();
    const Result<WirePage> page = pageOf(result.value().get());
    return page ? Result<WireHead>(page.value().head) : Result<WireHead>(page.error());
}

Result<WireCare> PostgresServer::care() {
    const Result<ResultHandle> beats = ask(
        "SELECT point, round(extract(epoch FROM clock_timestamp() - moment)) FROM wire.beats ORDER BY point");
    if (!beats)
        return beats.error();
    WireCare care;
    for (int row = 0; row < PQntuples(beats.value().get()); ++row)
        care.points +=
            QString::fromUtf8(text(beats.value().get(), row, 0) + ' ' + text(beats.value().get(), row, 1));
    const Result<ResultHandle> names =
        ask("SELECT current_setting('synchronous_standby_names'), "
            "(SELECT count(*) FROM pg_stat_replication WHERE sync_state IN ('sync', 'quorum'))");
    if (!names)
        return names.error();
    care.synchronous = QString::fromUtf8(text(names.value().get(), 0, 0));
    care.isQuorum = !care.synchronous.isEmpty() && text(names.value().get(), 0, 1).toInt() > 0;
    return care;
}

Result<QStringList> PostgresServer::faults() {
    const Result<ResultHandle> result =
        ask("SELECT sequence FROM (SELECT sequence, service, prev, "
            "lag(sequence, 1, 0::bigint) OVER (ORDER BY sequence) AS before, "
            "lag(sequence, 1, 0::bigint) OVER (PARTITION BY service ORDER BY sequence) AS own FROM wire.log) "
            "rows "
            "WHERE sequence <> before + 1 OR prev <> own ORDER BY sequence LIMIT 3");
    if (!result)
        return result.error();
    QStringList faults;
    for (int row = 0; row < PQntuples(result.value().get()); ++row)
        faults += QString::fromUtf8(text(result.value().get(), row, 0));
    return faults;
}

Result<std::vector<DayDigest>> PostgresServer::digests() {
    const Result<ResultHandle> result = ask(
        "SELECT service, day, count(*), bit_xor(digest) FROM wire.identities GROUP BY 1, 2 ORDER BY 1, 2");
    if (!result)
        return result.error();
    std::vector<DayDigest> days;
    for (int row = 0; row < PQntuples(result.value().get()); ++row) {
        const auto number = [&](int column) { return text(result.value().get(), row, column).toLongLong(); };
        days.push_back(
            {static_cast<int>(number(0)), static_cast<std::int32_t>(number(1)), number(2), number(3)});
    }
    return days;
}

Result<QString> PostgresServer::positionOf(const QString& source) {
    const Result<ResultHandle> result =
        ask("SELECT position FROM wire.sources WHERE source = $1", {source.toUtf8()});
    if (!result)
        return result.error();
    return PQntuples(result.value().get()) > 0 ? QString::fromUtf8(text(result.value().get(), 0, 0))
                                               : QString();
}

Done PostgresServer::beat(const QString& point) {
    return run(
        "WITH beat AS (INSERT INTO wire.beats VALUES($1, clock_timestamp()) ON CONFLICT(point) DO UPDATE SET "
        "moment "
        "= excluded.moment) SELECT pg_notify('wire', '')",
        {point.toUtf8()});
}

Result<WireHead> PostgresServer::lockHead() {
    if (const Done begun = run("BEGIN"); !begun)
        return begun.error();
    const Result<ResultHandle> locked = ask(
        "SELECT greatest(moment, extract(epoch FROM clock_timestamp())::bigint) FROM wire.head FOR UPDATE");
    if (!locked || PQntuples(locked.value().get()) == 0) {
        rollback();
        return locked ? makeError<wire_errors::notMade>() : locked.error();
    }
    moment = text(locked.value().get(), 0, 0).toLongLong();
    Result<WireHead> found = head();
    if (!found) {
        rollback();
        return found;
    }
    found.value().moment = moment;
    last = found.value().last;
    if (const Done opened = run("SELECT wire.open_month($1::bigint)", {QByteArray::number(qint64(moment))});
        !opened) {
        rollback();
        return opened.error();
    }
    return found;
}

Result<WirePage> PostgresServer::pageAfter(std::int64_t sequence) {
    const Result<ResultHandle> result =
        ask(pageQuery, {QByteArray::number(qint64(sequence)), mostRows}, true);
    return result ? pageOf(result.value().get()) : Result<WirePage>(result.error());
}

Done PostgresServer::copy(const QByteArray& lines) {
    if (const Done begun = run("COPY wire.log FROM STDIN"); !begun)
        return begun;
    if (PQputCopyData(connection.get(), lines.constData(), static_cast<int>(lines.size())) != 1 ||
        PQputCopyEnd(connection.get(), nullptr) != 1)
        return lose();
    Done done = Nothing{};
    while (const ResultHandle result{PQgetResult(connection.get())}) {
        if (PQresultStatus(result.get()) != PGRES_COMMAND_OK)
            done = failureOf(connection.get());
    }
    return done;
}

Done PostgresServer::appendRows(const std::vector<WireRow>& rows) {
    if (rows.empty())
        return Nothing{};
    QByteArray lines;
    for (const WireRow& row : rows)
        lines += lineOf(row, QByteArray::number(qint64(moment)));
    last = rows.back().sequence;
    return copy(lines);
}

Done PostgresServer::appendIdentities(const std::vector<WireIdentity>& identities) {
    if (identities.empty())
        return Nothing{};
    const auto numbers = [&](auto member) {
        return arrayOf(identities,
                       [&](const WireIdentity& one) { return QByteArray::number(qint64(one.*member)); });
    };
    return run(
        "INSERT INTO wire.identities SELECT * FROM unnest($1::integer[], $2::text[], $3::integer[], "
        "$4::integer[], $5::bigint[]) ON CONFLICT(service, identity) DO UPDATE SET day = excluded.day, "
        "number = "
        "excluded.number, digest = excluded.digest",
        {numbers(&WireIdentity::service),
         arrayOf(identities, [](const WireIdentity& one) { return one.identity.toUtf8(); }),
         numbers(&WireIdentity::day), numbers(&WireIdentity::number), numbers(&WireIdentity::digest)});
}

Done PostgresServer::append(const WirePortion& portion) {
    if (const Done rows = appendRows(portion.rows); !rows)
        return rows;
    if (const Done identities = appendIdentities(portion.identities); !identities)
        return identities;
    if (portion.source.isEmpty())
        return Nothing{};
    return run(
        "INSERT INTO wire.sources VALUES($1, $2, $3::bigint) ON CONFLICT(source) DO UPDATE SET position = "
        "excluded.position, sequence = excluded.sequence",
        {portion.source.toUtf8(), portion.position.toUtf8(), QByteArray::number(qint64(last))});
}

Done PostgresServer::commit() {
    if (const Done moved = run("UPDATE wire.head SET last = $1::bigint, moment = $2::bigint",
                               {QByteArray::number(qint64(last)), QByteArray::number(qint64(moment))});
        !moved)
        return moved;
    if (const Done told = run("NOTIFY wire"); !told)
        return told;
    return run("COMMIT");
}

void PostgresServer::rollback() {
    if (connection && PQtransactionStatus(connection.get()) != PQTRANS_IDLE && !run("ROLLBACK"))
        connection.reset();
}

}  // namespace wirepane

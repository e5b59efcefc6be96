// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/news_digest.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <map>
#include <utility>

namespace wirepane {

namespace {

#define WIREPANE_DIGESTED                                                                                   \
    "SELECT service, identity, day, sequence, version, time, category, received, title, "                   \
    "(SELECT unpacked(text, headline) FROM stories WHERE headline = id), "                                  \
    "(SELECT moment || ' ' || reason FROM withdrawals WHERE headline = id), "                               \
    "(SELECT group_concat(market || ' ' || code, char(10)) FROM (SELECT market, code FROM related_symbols " \
    "WHERE headline = id ORDER BY position)) FROM all_headlines"

constexpr int columns = 12;

}  // namespace

NewsDigest::NewsDigest(Database& database)
    : one(database, WIREPANE_DIGESTED " WHERE service = ? AND identity = ?"),
      all(database, WIREPANE_DIGESTED) {}

WireIdentity NewsDigest::read(Query& query) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int column = 0; column < columns; ++column) {
        const QByteArrayView bytes = query.bytes(column);
        // Behind a length, so that no text can be another's beginning.
        const qint64 length = query.isNull(column) ? -1 : qToBigEndian<qint64>(bytes.size());
        hash.addData(QByteArrayView(reinterpret_cast<const char*>(&length), sizeof length));
        hash.addData(bytes);
    }
    const QByteArray result = hash.result();
    return {query.smallNumber(0), query.text(1), query.smallNumber(2), query.smallNumber(3),
            qFromBigEndian<qint64>(result.constData())};
}

std::optional<WireIdentity> NewsDigest::of(int service, const QString& identity) {
    Query query(one, service, identity);
    return query.next() ? std::optional(read(query)) : std::nullopt;
}

std::optional<std::vector<DayDigest>> NewsDigest::ofDays() {
    std::map<std::pair<int, std::int32_t>, DayDigest> days;
    Query query(all);
    while (query.next()) {
        const WireIdentity found = read(query);
        DayDigest& day =
            days.try_emplace({found.service, found.day}, DayDigest{found.service, found.day}).first->second;
        ++day.count;
        day.digest ^= found.digest;
    }
    if (query.failed())
        return std::nullopt;
    std::vector<DayDigest> result;
    for (const auto& [place, day] : days)
        result.push_back(day);
    return result;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/endurance/store_truth.h"

#include "backend/database/statement.h"

#include <QDateTime>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString among(const StoreTruth::Services& services) {
    QStringList numbers;
    for (const unsigned char service : services)
        numbers += QString::number(service);
    return u"service IN (%1)"_s.arg(numbers.join(u','));
}

}  // namespace

StoreTruth::StoreTruth(const QString& storePath)
    : store(std::move(Database::open(storePath, Database::Mode::Read, std::chrono::seconds(5)).value())) {}

std::vector<HeadlineKey> StoreTruth::ofDay(const QDate& day, const Services& services, const Wanted& wanted) {
    return read(u"%1 AND time >= %2 AND time < %3"_s.arg(among(services))
                    .arg(day.startOfDay().toSecsSinceEpoch())
                    .arg(day.addDays(1).startOfDay().toSecsSinceEpoch()),
                wanted);
}

std::vector<HeadlineKey> StoreTruth::ofCategory(int category, const Services& services) {
    return read(u"%1 AND category = %2"_s.arg(among(services)).arg(category));
}

std::vector<HeadlineKey> StoreTruth::ofSymbol(unsigned char market, const QString& code,
                                              const Services& services) {
    return read(u"%1 AND id IN (SELECT headline FROM related_symbols WHERE market = %2 AND code = '%3')"_s
                    .arg(among(services))
                    .arg(market)
                    .arg(code));
}

std::vector<HeadlineKey> StoreTruth::withWord(const QString& word) {
    return read(u"' ' || title || ' ' LIKE '% %1 %'"_s.arg(word));
}

QStringList StoreTruth::textsOf(const HeadlineKey& key) {
    Statement statement(
        *store,
        "SELECT name, title FROM headlines LEFT JOIN categories ON categories.id = category AND "
        "space = CASE service WHEN 52 THEN 52 ELSE 0 END "
        "WHERE service = ? AND time = ? AND sequence = ?");
    Query query(statement, key.service, key.time, key.sequence);
    return query.next() ? QStringList{query.text(0), query.text(1)} : QStringList();
}

int StoreTruth::count(const char* sql) {
    std::int64_t number = -1;
    return store->readNumber(sql, number) ? static_cast<int>(number) : -1;
}

std::vector<HeadlineKey> StoreTruth::read(const QString& condition, const Wanted& wanted) {
    const QByteArray sql =
        QByteArrayLiteral("SELECT service, time, sequence, category, title FROM headlines WHERE ") +
        condition.toUtf8();
    Statement statement(*store, sql.constData());
    std::vector<HeadlineKey> keys;
    for (Query query(statement); query.next();) {
        const HeadlineKey key{query.number(1), query.smallNumber(2),
                              static_cast<unsigned char>(query.number(0))};
        if (!wanted || wanted({key, query.smallNumber(3), query.text(4)}))
            keys.push_back(key);
    }
    return keys;
}

}  // namespace wirepane

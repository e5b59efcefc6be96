// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/store/store_fixture.h"

#include "backend/store/store_file.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>
#include <random>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace wirepane {

StoreFixture::StoreFixture() {
    Result<std::unique_ptr<Database>> opened = openStore(pathOf(u"news.db"_s));
    if (!opened)
        throw std::runtime_error(sentence(opened.error()).toStdString());
    store = std::move(opened.value());
    writer = std::make_unique<StoreWriter>(*store);
}

StoredNews StoreFixture::takeNews(const NewsItem& item) {
    EXPECT_TRUE(writer->begin());
    const Result<StoredNews> stored = writer->takeNews(item);
    if (!stored) {
        ADD_FAILURE() << sentence(stored.error()).toStdString();
        return {};
    }
    EXPECT_TRUE(writer->commit());
    return stored.value();
}

Take StoreFixture::take(const StoreItem& item) {
    EXPECT_TRUE(writer->begin());
    const Result<TakeOutcome> outcome = writer->take(item);
    EXPECT_TRUE(outcome);
    EXPECT_TRUE(writer->commit());
    return outcome ? outcome.value().take : Take::Rejected;
}

QStringList StoreFixture::rows(const char* sql) {
    return rowsOf(*store, sql);
}

QString noise(qsizetype length, unsigned seed) {
    std::minstd_rand random(seed + 1);
    QString text(length, Qt::Uninitialized);
    std::generate(text.begin(), text.end(), [&] {
        const auto letter = random() % 52;
        return QChar(char16_t(letter < 26 ? u'a' + letter : u'A' + letter - 26));
    });
    return text;
}

NewsItem newsItem(unsigned char service, const QString& identity, std::int64_t time, const QString& title) {
    NewsItem item;
    item.service = service;
    item.identity = identity;
    item.time = time;
    item.title = title;
    return item;
}

std::int64_t at(int hour, int minute, int second) {
    return QDateTime(QDate(2026, 3, 2), QTime(hour, minute, second)).toSecsSinceEpoch();
}

QStringList rowsOf(Database& database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database.handle(), sql, -1, &statement, nullptr) != SQLITE_OK) {
        ADD_FAILURE() << sqlite3_errmsg(database.handle()) << " in " << sql;
        return {};
    }
    QStringList found;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        QStringList columns;
        for (int i = 0; i < sqlite3_column_count(statement); ++i)
            columns += QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, i)));
        found += columns.join(u'|');
    }
    sqlite3_finalize(statement);
    return found;
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/store_writer.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>

namespace wirepane {

// Lets failed comparisons show texts as texts.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

// A real store in a folder of its own.
class StoreFixture : public testing::Test {
protected:
    StoreFixture();

    QString pathOf(const QString& name) const { return folder.filePath(name); }
    // Takes one item in, in a transaction of its own; the item must not meet an error.
    StoredNews takeNews(const NewsItem& item);
    Take take(const StoreItem& item);
    // The rows that a statement gives, columns joined by '|'.
    QStringList rows(const char* sql);

    QTemporaryDir folder;
    std::unique_ptr<Database> store;
    std::unique_ptr<StoreWriter> writer;
};

// A piece of news with what a test cares about; the rest is plausible.
NewsItem newsItem(unsigned char service, const QString& identity, std::int64_t time, const QString& title);

// A word of letters in no order, of which the store keeps at least seven tenths as many bytes.
QString noise(qsizetype length, unsigned seed = 0);

// Seconds since 1970 of a local time on 2 March 2026 (a Monday).
std::int64_t at(int hour, int minute, int second = 0);

// The rows that a statement gives on this database.
QStringList rowsOf(Database& database, const char* sql);

// The bytes of a file.
QByteArray bytesOf(const QString& path);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "tests/backend/search/plain_words.h"

#include <QDate>
#include <QMap>
#include <QStringList>

#include <vector>

namespace wirepane {

// What a query finds as docs/search.md and docs/store.md tell it: it shares nothing with the program's own
// parser, splitter and folding, and looks through every text.
class QueryScan {
public:
    struct Entry {
        unsigned char service;
        QString identity;
        QDate day;
        QByteArray title;  // the words in UTF-8, each between blanks
        QByteArray story;
        QByteArray topic;
        int topicId;
        std::vector<CSymbolInfo> related;
    };

    explicit QueryScan(QDate presentDay) : today(presentDay) {}

    // `categoryId` is what the store has given its topic.
    void add(const NewsItem& item, int categoryId);
    void add(const SymbolItem& symbol);
    void nameService(unsigned char service, const QStringList& names);

    // The identities of the news of a service, sorted; nothing when the query has a fault. `scope` is the
    // number of a SearchScope.
    std::optional<QStringList> find(unsigned char service, const QString& query, int scope) const;

private:
    friend class QueryReading;
    QByteArray joined(const QString& text) const;

    const QDate today;
    PlainWords words;
    std::vector<Entry> entries;
    QMap<std::pair<int, QString>, QList<QByteArray>> symbolNames;  // in each language, by market and code
    QMap<int, QList<QByteArray>> serviceNames;
};

}  // namespace wirepane

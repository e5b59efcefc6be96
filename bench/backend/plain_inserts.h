// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/news_item.h"

#include <QByteArray>

#include <vector>

namespace wirepane::bench {

// The least that writing news into the store can cost: prepared inserts of rows that are ready, numbered and
// in UTF-8, in one transaction, with the search index, and with no question asked.
class PlainInserts {
public:
    explicit PlainInserts(const std::vector<NewsItem>& items);

    void run(Database& store) const;

private:
    struct Row {
        unsigned char service;
        std::int64_t time;
        int sequence;
        QByteArray identity;
        QByteArray title;
        QByteArray story;
        QByteArray searched;  // the story as the search index sees it
        std::vector<std::pair<int, QByteArray>> related;
    };
    std::vector<Row> rows;
};

}  // namespace wirepane::bench

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/backend/store/store_fixture.h"

#include <map>
#include <random>
#include <tuple>
#include <vector>

namespace wirepane {

// What the store must hold after any takes, kept the simplest way: a list that is searched from end to end.
class NewsModel {
public:
    struct Piece {
        NewsItem item;
        std::int32_t sequence = 0;
    };

    Take take(const NewsItem& item);
    // "service|time|sequence|version|title|story|code..." of every piece, sorted.
    QStringList listing() const;
    // "time|sequence", newest first.
    QStringList day(unsigned char service, QDate date) const;

private:
    std::int32_t nextNumber(unsigned char service, QDate date);

    std::vector<Piece> pieces;
    std::map<std::pair<unsigned char, QDate>, std::int32_t> lastNumbers;
};

// News that meets what is there already often: few identities, versions, seconds and services.
NewsItem randomNews(std::mt19937& random);

QDate localDate(std::int64_t time);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "bench/backend/news_samples.h"

#include "backend/store/day_bounds.h"
#include "bench/backend/big_store.h"

#include <random>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

namespace {

constexpr int vocabulary = 5000;

// Frequent words are few, rare words are many, as in any language.
QString words(std::mt19937& random, int count) {
    QString text;
    for (int i = 0; i < count; ++i) {
        const auto rank = static_cast<int>(random() % vocabulary) * static_cast<int>(random() % vocabulary);
        text += u"w%1 "_s.arg(rank / vocabulary, 0, 36);
    }
    text.chop(1);
    return text;
}

}  // namespace

std::vector<NewsItem> newsSamples(int count) {
    std::mt19937 random(7);
    const std::int64_t begin = boundsOf(newsDay).begin;
    std::vector<NewsItem> items;
    for (int i = 0; i < count; ++i) {
        NewsItem item;
        item.service = static_cast<unsigned char>(1 + i % 2);
        item.identity = u"urn:bench:%1"_s.arg(i);
        item.time = begin + std::int64_t{i} * 86000 / count;
        item.title = words(random, 10);
        item.story = words(random, 150) + u"@@@@"_s + words(random, 200);
        item.category = u"Markets"_s;
        item.related = {{16, QString::number(1000 + random() % 900)}, {22, QString::number(random() % 900)}};
        items.push_back(std::move(item));
    }
    return items;
}

}  // namespace wirepane::bench

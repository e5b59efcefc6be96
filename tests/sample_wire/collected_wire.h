// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/sample_wire.h"

#include <QString>

#include <gtest/gtest.h>
#include <vector>

namespace wirepane {

// Wednesday 2026-03-04 17:00 in the places of the sample wire.
inline constexpr std::int64_t afternoon = 1772614800;
inline constexpr std::int64_t hour = 3600;

// All that a wire handed over, sorted by kind; each kind in the order in which it came.
struct CollectedWire {
    std::vector<CategoryItem> categories;
    std::vector<SymbolItem> symbols;
    std::vector<QuoteItem> quotes;
    std::vector<NewsItem> news;
    bool newsCameLast = true;

    std::vector<const NewsItem*> newsOf(unsigned char service) const {
        std::vector<const NewsItem*> result;
        for (const NewsItem& item : news)
            if (item.service == service)
                result.push_back(&item);
        return result;
    }
};

// What the program carries, in which nothing may be wrong.
inline const SampleData& sampleData() {
    static const SampleData data = [] {
        QStringList faults;
        SampleData loaded = SampleData::load(faults);
        EXPECT_EQ(faults.join(u'\n').toStdString(), "");
        return loaded;
    }();
    return data;
}

inline CollectedWire collect(const SampleOptions& options) {
    CollectedWire result;
    SampleWire(sampleData(), options).run([&result](StoreItem&& item) {
        if (auto* category = std::get_if<CategoryItem>(&item))
            result.categories.push_back(std::move(*category));
        else if (auto* symbol = std::get_if<SymbolItem>(&item))
            result.symbols.push_back(std::move(*symbol));
        else if (auto* quote = std::get_if<QuoteItem>(&item))
            result.quotes.push_back(std::move(*quote));
        else
            result.news.push_back(std::move(std::get<NewsItem>(item)));
        result.newsCameLast &= result.news.empty() || std::holds_alternative<NewsItem>(item);
        return true;
    });
    return result;
}

inline SampleOptions threeDays() {
    SampleOptions options;
    options.seed = 7;
    options.now = afternoon;
    options.days = 3;
    return options;
}

// One line that holds all of an item, for comparison.
inline QString lineOf(const NewsItem& item) {
    QString line = QStringLiteral("%1|%2|%3|%4|%5|%6|%7")
                       .arg(QString::number(item.service), item.identity, QString::number(item.version),
                            QString::number(item.time), item.title,
                            item.story->isEmpty() ? QStringLiteral("-") : *item.story, item.category);
    for (const CSymbolInfo& symbol : item.related)
        line += QStringLiteral("|%1:%2").arg(symbol.market).arg(symbol.code);
    return line;
}

inline std::vector<QString> linesOf(const CollectedWire& wire) {
    std::vector<QString> lines;
    for (const NewsItem& item : wire.news)
        lines.push_back(lineOf(item));
    return lines;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/news_search.h"
#include "host/contract/search_choices.h"
#include "tests/backend/search/plain_scan.h"
#include "tests/backend/search/real_news.h"

#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

class SearchScan : public RealNews {
protected:
    void SetUp() override {
        RealNews::SetUp();
        for (const NewsItem& item : sink->taken)
            scan.add(item);
        readIdentities();
    }

    // A piece of a real text, of the kinds that people search for.
    static QString someKeyword(const NewsItem& item, std::mt19937& random) {
        const QString text =
            random() % 3 == 0 || item.story.value_or(QString()).isEmpty() ? item.title : *item.story;
        const qsizetype at = qsizetype(random() % std::size_t(text.size()));
        switch (random() % 5) {
            case 0:
                return text.sliced(at).left(1 + qsizetype(random() % 4));
            case 1:
                return text.section(u' ', int(random() % 20), -1).section(u' ', 0, int(random() % 2));
            case 2:
                return text.sliced(at).left(8 + qsizetype(random() % 12));
            case 3:
                return item.related.empty() ? u"700"_s : item.related.front().code;
            default:
                return text.sliced(at).left(2).toUpper() +
                       QStringList{u"%"_s, u""_s, u"("_s, u"\""_s}.at(qsizetype(random() % 4));
        }
    }

    PlainScan scan;
};

TEST_F(SearchScan, FindsExactlyWhatAPlainScanFinds) {
    std::mt19937 random(20260302);
    NewsSearch search(*reading);
    std::size_t matched = 0;
    for (int i = 0; i < 600; ++i) {
        if (i == 300)
            search.prepare();
        CSearch condition;
        const std::size_t count = random() % 4 == 0 ? 1 + random() % 3 : 1;
        const NewsItem& item = sink->taken.at(random() % sink->taken.size());
        while (condition.keywords.size() < count)
            condition.keywords.push_back(someKeyword(item, random));
        condition.scope = static_cast<unsigned char>(random() % 5 / 2);
        condition.method = static_cast<unsigned char>(1 + random() % lastSearchMethod);
        if (random() % 8 == 0)
            condition.symbols = {{16, u"2330"_s}, {16, u"2317"_s}};
        const unsigned char service = random() % 10 == 0 ? 1 : item.service;
        const auto entries = search.find(service, condition);
        ASSERT_TRUE(entries);
        const QStringList keywords(condition.keywords.begin(), condition.keywords.end());
        SCOPED_TRACE(keywords.join(u" | "_s).toStdString() + " in " + std::to_string(condition.scope) +
                     " by " + std::to_string(condition.method));
        compare(identitiesOf(*entries), scan.find(service, condition));
        matched += entries->empty() ? 0 : 1;
    }
    // Most pieces begin or end within a word and must find nothing.
    EXPECT_GT(matched, news.isEmpty() ? 100U : 200U);
}

}  // namespace
}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/title_query.h"

#include "backend/search/news_search.h"
#include "backend/store/embedded_back_end.h"
#include "tests/backend/store/store_fixture.h"

#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

// Headlines of two scripts, with topics and symbols, and without stories, so that a search has no more to go
// by than the query that is tried on them.
class TitleQueryTest : public StoreFixture {
protected:
    void SetUp() override {
        for (const SymbolItem& symbol :
             {SymbolItem{16, u"2330"_s, u"台積電"_s}, SymbolItem{22, u"0700"_s, u"騰訊控股"_s},
              SymbolItem{1, u"AAPL"_s, u"Apple Inc."_s}})
            take(symbol);
        std::mt19937 random(20260302);
        for (int i = 0; i < 400; ++i) {
            QStringList title;
            for (int words = 1 + int(random() % 6); words > 0; --words)
                title += pieces.at(qsizetype(random() % std::size_t(pieces.size())));
            NewsItem item = newsItem(i % 9 == 0 ? 2 : 1, u"n%1"_s.arg(i), at(9, i % 60), title.join(u' '));
            item.category = QStringList{u"Market News"_s, u"財報"_s, u""_s}.at(i % 3);
            if (i % 4 == 0)
                item.related = {
                    QList<CSymbolInfo>{{22, u"0700"_s}, {0, u"AAPL"_s}, {16, u"2330"_s}}.at(i / 4 % 3)};
            takeNews(item);
        }
        backEnd = std::move(EmbeddedBackEnd::open(store->path()).value());
        reading = std::move(openStore(store->path()).value());
        search = std::make_unique<NewsSearch>(*reading);
    }
    template <class Take>
    void forEachHeadline(const Take& take) {
        for (unsigned char service = 1; service <= 2; ++service) {
            std::vector<CHeadlineTable> table;
            backEnd->BKQNEWS_iGetHeadlineTable(service, table, int(TableKind::ByDate), u"20260302"_s);
            std::vector<CHeadline> headlines;
            backEnd->BKQNEWS_iGetHeadline(service, headlines, table);
            for (const CHeadline& headline : headlines)
                take(headline, u"%1/%2/%3"_s.arg(service).arg(headline.time).arg(headline.sequence));
        }
    }
    QStringList tried(const QString& query) {
        const auto prepared = backEnd->prepareQuery(query);
        QStringList wanted;
        forEachHeadline([&](const CHeadline& headline, const QString& name) {
            if (prepared && prepared->wants(headline, headline.categoryId))
                wanted += name;
        });
        wanted.sort();
        return wanted;
    }
    std::vector<QStringList> triedTogether(const std::vector<QString>& queries) {
        const auto prepared = backEnd->prepareQueries(queries);
        std::vector<QStringList> wanted(queries.size());
        forEachHeadline([&](const CHeadline& headline, const QString& name) {
            prepared->findWanting(headline, headline.categoryId, [&](std::size_t query) {
                wanted[query] += name;
                return false;
            });
        });
        for (QStringList& names : wanted)
            names.sort();
        return wanted;
    }
    QStringList searched(const QString& query) {
        CSearch condition;
        condition.language = SearchLanguage::Query;
        condition.keywords = {query};
        QStringList found;
        for (unsigned char service = 1; service <= 2; ++service) {
            const auto entries = search->find(service, condition);
            if (!entries)
                return {u"unreadable"_s};
            for (const CHeadlineTable& entry : *entries)
                found += u"%1/%2/%3"_s.arg(service).arg(entry.time).arg(entry.sequence);
        }
        found.sort();
        return found;
    }

    const QStringList pieces{u"gold"_s,  u"Gold rises"_s, u"ＧＯＬＤ"_s, u"台積電(2330)"_s, u"台积电"_s,
                             u"臺灣"_s,  u"騰訊"_s,       u"腾讯控股"_s, u"0700.HK"_s,      u"11,700"_s,
                             u"Apple"_s, u"Apple Inc."_s, u"us-china"_s, u"c++"_s,          u"café"_s,
                             u"2.5%"_s,  u"“quoted”"_s,   u"營收"_s,     u"成長"_s,         u"700"_s};
    std::unique_ptr<EmbeddedBackEnd> backEnd;
    std::unique_ptr<Database> reading;
    std::unique_ptr<NewsSearch> search;
};

TEST_F(TitleQueryTest, WantsWhatASearchInTitlesFinds) {
    const QStringList texts{u"gold"_s,
                            u"\"gold rises\""_s,
                            u"rises"_s,
                            u"台積電"_s,
                            u"台湾"_s,
                            u"cafe"_s,
                            u"700"_s,
                            u"\"c++\""_s,
                            u"us"_s,
                            u"\"%\""_s,
                            u"營收"_s,
                            u"\"\u200d\""_s,
                            u"title:(gold | 成長)"_s,
                            u"TITLE：騰訊"_s};
    const QStringList fields{u"topic:財报"_s,   u"topic:\"market news\""_s,
                             u"topic:1"_s,      u"service:1"_s,
                             u"service:2"_s,    u"symbol:700"_s,
                             u"symbol:騰訊"_s,  u"symbol:22:00700.HK"_s,
                             u"symbol:apple"_s, u"symbol:台积电"_s,
                             u"symbol:aapl"_s,  u"symbol:nobody"_s};
    std::mt19937 random(7);
    const auto oneOf = [&](const QStringList& some) {
        return some.at(qsizetype(random() % std::size_t(some.size())));
    };
    int found = 0;
    std::vector<QString> queries{u"gold | "_s};
    std::vector<QStringList> expected{{}};
    for (int i = 0; i < 200; ++i) {
        QString query = oneOf(random() % 3 == 0 ? fields : texts);
        for (int more = int(random() % 3); more > 0; --more)
            query = oneOf({u"%1 %2"_s, u"%1 | %2"_s, u"%1 -%2"_s, u"-(%1 %2)"_s})
                        .arg(query, oneOf(random() % 2 == 0 ? fields : texts));
        const QStringList wanted = tried(query);
        EXPECT_EQ(wanted.join(u' ').toStdString(), searched(query).join(u' ').toStdString())
            << query.toStdString();
        found += wanted.isEmpty() ? 0 : 1;
        queries.push_back(query);
        expected.push_back(searched(query));
    }
    EXPECT_GT(found, 100);
    const std::vector<QStringList> together = triedTogether(queries);
    for (std::size_t i = 0; i < queries.size(); ++i)
        EXPECT_EQ(together[i].join(u' ').toStdString(), expected[i].join(u' ').toStdString())
            << queries[i].toStdString() << " among others";
}

// Marked with the number of the word: "[0:Gold] rises".
QString marked(const HitFinder& finder, const QString& text, HitPlace place) {
    QString shown;
    qsizetype from = 0;
    for (const SearchHit& hit : finder.hitsIn(text, place, 100)) {
        shown += text.mid(from, hit.start - from) + u"[%1:"_s.arg(hit.word) +
                 text.mid(hit.start, hit.length) + u']';
        from = hit.start + hit.length;
    }
    return shown + text.mid(from);
}

TEST_F(TitleQueryTest, HitsAreMarkedInTheFormInWhichTheyStand) {
    const struct {
        QString query;
        QString text;
        QString inTitle;
        QString inStory;
    } cases[] = {
        {u"台湾 gold"_s, u"臺灣 ＧＯＬＤ, golden"_s, u"[0:臺灣] [1:ＧＯＬＤ], golden"_s, {}},
        {u"\"gold rises\" | gold"_s, u"Gold, gold  rises"_s, u"[1:Gold], [0:gold  rises]"_s, {}},
        {u"title:gold story:(tin | lead)"_s, u"gold tin"_s, u"[0:gold] tin"_s, u"gold [1:tin]"_s},
        {u"gold -tin -(gold lead)"_s, u"gold tin lead"_s, u"[0:gold] tin lead"_s, {}},
        {u"gol* \"tin mi\"*"_s, u"Golden tin mines"_s, u"[0:Golden] [1:tin mines]"_s, {}},
        {u"gold NEAR/3 mine"_s, u"mine of gold"_s, u"[1:mine] of [0:gold]"_s, {}},
        {u"台積電"_s, u"台積\u2029電 \U0001F600台积电"_s, u"台積\u2029電 \U0001F600[0:台积电]"_s, {}},
        {u"symbol:700 成長"_s, u"腾讯控股成長"_s, u"[0:腾讯控股][1:成長]"_s, {}},
        {u"café"_s, u"cafe\u0301s cafe\u0301"_s, u"cafe\u0301s [0:cafe\u0301]"_s, {}},
    };
    for (const auto& c : cases) {
        CSearch condition;
        condition.language = SearchLanguage::Query;
        condition.keywords = {c.query};
        const auto finder = backEnd->prepareHits(condition);
        ASSERT_NE(finder, nullptr) << c.query.toStdString();
        EXPECT_EQ(marked(*finder, c.text, HitPlace::Title), c.inTitle) << c.query.toStdString();
        EXPECT_EQ(marked(*finder, c.text, HitPlace::Story), c.inStory.isEmpty() ? c.inTitle : c.inStory);
        EXPECT_LE(finder->hitsIn(c.text, HitPlace::Title, 1).size(), 1U);
    }
    CSearch plain;
    plain.keywords = {u"-gold"_s, u"成長"_s};
    EXPECT_EQ(marked(*backEnd->prepareHits(plain), u"a-gold 成长"_s, HitPlace::Title),
              u"a[0:-gold] [1:成长]"_s);
    plain.keywords = {u"\u200d"_s};
    EXPECT_EQ(backEnd->prepareHits(plain), nullptr) << "there is no word in it";
}

// What is found is marked, and nothing else is.
TEST_F(TitleQueryTest, MarksWhatASearchFinds) {
    std::mt19937 random(11);
    const auto piece = [&] { return pieces.at(qsizetype(random() % std::size_t(pieces.size()))); };
    for (int i = 0; i < 60; ++i) {
        QString phrase = random() % 2 == 0 ? piece() : piece() + u' ' + piece();
        const QString query = u"title:\"%1\""_s.arg(phrase.remove(u'“').remove(u'”'));
        CSearch condition;
        condition.language = SearchLanguage::Query;
        condition.keywords = {query};
        const auto finder = backEnd->prepareHits(condition);
        const auto prepared = backEnd->prepareQuery(query);
        ASSERT_TRUE(finder && prepared) << query.toStdString();
        for (int title = 0; title < 50; ++title) {
            CHeadline headline;
            headline.service = 1;
            headline.title = piece() + u' ' + piece() + u' ' + piece();
            EXPECT_EQ(!finder->hitsIn(headline.title, HitPlace::Title, 9).empty(),
                      prepared->wants(headline, 0))
                << query.toStdString() << " in " << headline.title.toStdString();
        }
    }
}

TEST_F(TitleQueryTest, IsNoneWithAFault) {
    for (const QString& query : {u"gold | "_s, u"story:gold"_s, u"gol*"_s, u"from:today"_s})
        EXPECT_EQ(backEnd->prepareQuery(query), nullptr) << query.toStdString();
}

}  // namespace
}  // namespace wirepane

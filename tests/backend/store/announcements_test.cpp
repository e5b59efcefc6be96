// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// News days, and news that is not of its service's day: what the receivers hear of it, and when.
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "tests/backend/store/listener.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/backend/store/take_all.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t daySeconds = 86400;

class AnnouncementsTest : public StoreFixture {
public:
    AnnouncementsTest() : backEnd(connectionsTo(store->path())) {
        host_clock::startAt(at(23, 0));
        backEnd.forgetNewsDays();
        backEnd.attach(&listener);
    }
    ~AnnouncementsTest() override { backEnd.detach(&listener); }

protected:
    QStringList heard() { return std::exchange(listener.heard, {}); }
    QStringList settled() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return backEnd.isDelivered(); }));
        return heard();
    }
    static NewsItem about(NewsItem item, int category, const std::vector<CSymbolInfo>& symbols) {
        item.categoryId = category;
        item.related = symbols;
        return item;
    }
    void takeAll(const std::vector<NewsItem>& items) { ASSERT_TRUE(wirepane::takeAll(backEnd, items)); }

    EmbeddedBackEnd backEnd;
    Listener listener;
};

TEST_F(AnnouncementsTest, TheFirstNewsOfADayReportsItByWhateverRoadItComes) {
    const std::int64_t next = at(0, 1) + daySeconds;
    takeAll({newsItem(1, u"before"_s, at(22, 0), u"Before"_s)});
    EXPECT_EQ(heard(), QStringList{u"headline 1/1 Before [0] "_s}) << "the day of the start needs no report";
    host_clock::startAt(next);
    EXPECT_EQ(backEnd.BKQNEWS_cszGetCurrDateByService(1), u"20260303"_s);

    ASSERT_TRUE(backEnd.takeIn(newsItem(1, u"own"_s, next, u"Own"_s)));
    EXPECT_EQ(heard(), (QStringList{u"day 20260303 of 1"_s, u"headline 1/1 Own [0] "_s}));
    takeNews(newsItem(2, u"other"_s, next, u"Another program's"_s));
    backEnd.checkForNews();
    EXPECT_EQ(heard(), (QStringList{u"day 20260303 of 2"_s, u"headline 2/1 Another program's [0] "_s}));
    backEnd.setConnected(false);
    takeAll({newsItem(16, u"late"_s, at(23, 59, 59), u"Yesterday's"_s),
             newsItem(16, u"missed"_s, next, u"Missed"_s), newsItem(1, u"again"_s, next, u"Again"_s)});
    EXPECT_EQ(heard(), QStringList());
    backEnd.setConnected(true);
    EXPECT_EQ(heard(), (QStringList{u"day 20260303 of 16"_s, u"headline 16/1 Missed [0] "_s,
                                    u"headline 1/2 Again [0] "_s}));
    EXPECT_EQ(settled(), (QStringList{u"date table 16 20260302 0"_s, u"category table 16 0 0"_s}));
    EXPECT_EQ(backEnd.lateHeadlines(), 3);

    // Every midnight is like the first.
    host_clock::startAt(next + daySeconds);
    EXPECT_EQ(backEnd.BKQNEWS_cszGetCurrDateByService(1), u"20260304"_s);
    ASSERT_TRUE(backEnd.takeIn(newsItem(1, u"third"_s, next + daySeconds, u"Third"_s)));
    EXPECT_EQ(heard(), (QStringList{u"day 20260304 of 1"_s, u"headline 1/1 Third [0] "_s}));
}

TEST_F(AnnouncementsTest, WhoRegistersAServiceIsToldTheDayThatItHasReported) {
    backEnd.registerSymbols(&listener, {{1, {}}}, {});
    host_clock::startAt(at(0, 1) + daySeconds);
    backEnd.startNewsDay({1, 20260303});
    heard();
    Listener gone;
    backEnd.attach(&gone);
    backEnd.registerSymbols(&listener, {{1, {}}, {2, {}}}, {});
    backEnd.registerSymbols(&gone, {{1, {}}}, {});
    backEnd.detach(&gone);
    QCoreApplication::processEvents();
    EXPECT_EQ(heard(), QStringList()) << "registered already, nothing reported";
    backEnd.registerSymbols(&listener, {}, {{1, {}}});
    backEnd.registerSymbols(&listener, {{1, {}}}, {});
    EXPECT_EQ(heard(), QStringList()) << "not during the call";
    QCoreApplication::processEvents();
    EXPECT_EQ(heard(), QStringList{u"day 20260303 of 1"_s});
    EXPECT_EQ(gone.heard, QStringList());
}

TEST_F(AnnouncementsTest, TheTablesOfOtherDaysNewsAreToldOnceForWhatCameTogether) {
    const CSymbolInfo company{16, u"2330"_s};
    std::vector<NewsItem> items;
    for (int i = 0; i < 1200; ++i)
        items.push_back(
            about(newsItem(1, u"y%1"_s.arg(i), at(9, 0) - daySeconds, u"Old"_s), i % 2, {company}));
    items.push_back(newsItem(1, u"ancient"_s, at(9, 0) - 1000 * daySeconds, u"Beyond tables of topics"_s));
    items.push_back(about(newsItem(2, u"ahead"_s, at(9, 0) + daySeconds, u"Ahead"_s), 7, {company}));
    items.push_back(about(newsItem(1, u"today"_s, at(9, 0), u"Today"_s), 3, {{16, u"2317"_s}}));
    takeAll(items);
    const QStringList told = settled();
    EXPECT_EQ(told,
              (QStringList{u"headline 1/1 Today [3] 2317"_s, u"date table 1 20230606 0"_s,
                           u"date table 1 20260301 0"_s, u"date table 2 20260303 0"_s,
                           u"category table 1 0 0"_s, u"category table 1 1 0"_s, u"category table 2 7 0"_s,
                           u"symbol table 1 2330 0"_s, u"symbol table 2 2330 0"_s}));

    QElapsedTimer time;
    time.start();
    for (const QString& name : {u"a"_s, u"b"_s})
        ASSERT_TRUE(backEnd.takeIn(about(newsItem(2, name, at(9, 0) - daySeconds, u"Old"_s), 4, {})));
    EXPECT_EQ(settled(), (QStringList{u"date table 2 20260301 0"_s, u"category table 2 4 0"_s}));
    EXPECT_GT(time.elapsed(), 800) << "at most once a second";
}

TEST_F(AnnouncementsTest, OnlySearchesThatFindOtherDaysNewsAreAnsweredAgain) {
    constexpr int kind = static_cast<int>(TableKind::Search);
    const auto search = [&](const QString& word) {
        CSearch condition;
        condition.keywords = {word};
        condition.method = 1;
        for (const unsigned char service : std::initializer_list<unsigned char>{1, 2})
            EXPECT_TRUE(backEnd.BKQNEWS_bSearchNews(service, kind, condition));
        EXPECT_TRUE(QTest::qWaitFor([&] { return listener.heard.size() == 2; }));
        heard();
    };
    search(u"gold"_s);
    search(u"copper"_s);
    const auto searchesHeard = [&](qsizetype wanted) {
        QStringList answers;
        EXPECT_EQ(QTest::qWaitFor(
                      [&] {
                          answers = listener.heard.filter(u"search"_s);
                          return answers.size() > wanted - 1 && wanted > 0;
                      },
                      wanted > 0 ? 5000 : 400),
                  wanted > 0);
        heard();
        return answers;
    };
    takeAll({newsItem(1, u"a"_s, at(9, 0) - daySeconds, u"Copper falls"_s),
             newsItem(2, u"b"_s, at(9, 0) - daySeconds, u"Nothing of that"_s)});
    EXPECT_EQ(searchesHeard(1), QStringList{u"search copper 1"_s});
    std::vector<CHeadlineTable> table;
    EXPECT_EQ(backEnd.BKQNEWS_iGetHeadlineTable(1, table, kind, u"SEARCH"_s), 1);

    takeAll({newsItem(2, u"c"_s, at(9, 0) - daySeconds, u"Tin"_s)});
    settled();
    EXPECT_EQ(searchesHeard(0), QStringList()) << "none finds it";
    takeAll({newsItem(1, u"d"_s, at(9, 0), u"Copper rises today"_s)});
    settled();
    EXPECT_EQ(searchesHeard(0), QStringList()) << "news of the day is pushed";
    takeAll({newsItem(2, u"e"_s, at(9, 0) - daySeconds, u"Gold and copper"_s)});
    EXPECT_EQ(searchesHeard(2), (QStringList{u"search gold 2"_s, u"search copper 2"_s}));
}

TEST_F(AnnouncementsTest, ReceiversMayLeaveWhileTablesAreTold) {
    struct Leaving : Listener {
        Leaving(EmbeddedBackEnd& store, std::vector<NewsReceiver*> receivers)
            : backEnd(store), leaving(std::move(receivers)) {}
        void vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo* info) override {
            Listener::vRecvAllHeadlineTableRecovery(info);
            for (NewsReceiver* receiver : leaving)
                backEnd.detach(receiver);
            backEnd.detach(this);
        }
        EmbeddedBackEnd& backEnd;
        std::vector<NewsReceiver*> leaving;
    };
    auto behind = std::make_unique<Listener>();
    Leaving first(backEnd, {behind.get()});
    backEnd.attach(&first);
    backEnd.attach(behind.get());
    takeAll({newsItem(1, u"a"_s, at(9, 0) - daySeconds, u"Old"_s)});
    backEnd.setConnected(false);
    EXPECT_FALSE(QTest::qWaitFor([this] { return backEnd.isDelivered(); }, 100))
        << "waits for the connection";
    backEnd.setConnected(true);
    const QStringList all{u"date table 1 20260301 0"_s, u"category table 1 0 0"_s};
    EXPECT_EQ(settled(), all);
    EXPECT_EQ(first.heard, QStringList{all.front()});
    EXPECT_EQ(behind->heard, QStringList());
}

TEST_F(AnnouncementsTest, APositionTellsWhetherAReadHeldWhatIsTold) {
    struct Positions : NewsReceiver {
        explicit Positions(NewsPositions& store) : backEnd(store) {}
        void RecvNewHeadLine(const CHeadline*, const QString&, const QString&) override {
            told.push_back(backEnd.positionTold());
        }
        NewsPositions& backEnd;
        std::vector<std::int64_t> told;
    } positions(backEnd);
    backEnd.attach(&positions);
    EXPECT_EQ(backEnd.readPosition(), 0);
    const NewsItem item = newsItem(1, u"a"_s, at(9, 0), u"A"_s);
    takeAll({item, newsItem(1, u"b"_s, at(8, 0), u"B"_s)});
    const std::int64_t before = backEnd.readPosition();
    backEnd.setConnected(false);
    NewsItem again = item;
    ++again.version;
    takeNews(again);
    backEnd.checkForNews();
    const std::int64_t during = backEnd.readPosition();
    backEnd.setConnected(true);
    ASSERT_EQ(positions.told.size(), 3u);
    EXPECT_LT(positions.told[0], positions.told[1]);
    EXPECT_EQ(positions.told[1], before);
    EXPECT_EQ(positions.told[2], during);
    EXPECT_GT(during, before);
    EXPECT_EQ(backEnd.positionTold(), 0);
    backEnd.detach(&positions);
}

}  // namespace

}  // namespace wirepane

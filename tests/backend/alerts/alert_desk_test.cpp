// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_desk.h"

#include "backend/store/embedded_back_end.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/backend/store/take_all.h"

#include <QCoreApplication>
#include <QTest>

#include <map>
#include <random>
#include <set>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

AlertRule ruleOf(const QString& name, const QString& query) {
    AlertRule rule;
    rule.name = name;
    rule.query = query;
    return rule;
}

// A terminal with its alerts.
struct Terminal {
    Terminal(const QString& path, const AlertSettings& settings)
        : backEnd(connectionsTo(path)), desk(backEnd, settings) {
        QObject::connect(&desk, &AlertDesk::told, &desk, [this](const std::vector<AlertEntry>& entries) {
            told.insert(told.end(), entries.begin(), entries.end());
        });
        desk.begin();
        wait();
    }
    // Until all that is there has been looked at.
    void wait() {
        std::int64_t last = 0;
        backEnd.run([&](StoreWriter& writer) { last = ArrivalLog(writer.connection()).last().value_or(0); });
        desk.look();
        ASSERT_TRUE(QTest::qWaitFor([&] { return desk.looked() >= last; }, 30'000));
        // What was found is written by then, and told.
        bool isDone = false;
        backEnd.ask([](StoreWriter&) {}, [&] { isDone = true; });
        ASSERT_TRUE(QTest::qWaitFor([&] { return isDone; }, 30'000));
    }
    void take(const std::vector<NewsItem>& items) {
        backEnd.run([&](StoreWriter& writer) {
            ASSERT_TRUE(writer.begin());
            for (const NewsItem& item : items)
                ASSERT_TRUE(writer.takeNews(item));
            ASSERT_TRUE(writer.commit());
        });
        wait();
    }
    QStringList titles() const {
        QStringList all;
        for (const AlertEntry& entry : told)
            all += entry.rule + u": "_s + entry.title;
        return all;
    }

    EmbeddedBackEnd backEnd;
    std::vector<AlertEntry> told;
    AlertDesk desk;
};

class AlertDeskTest : public StoreFixture {
protected:
    AlertDeskTest() {
        takeNews(newsItem(1, u"before"_s, at(8, 0), u"Gold before anybody looked"_s));
        host_clock::startAt(at(9, 0));
        settings.rules = {ruleOf(u"gold"_s, u"title:gold -tin"_s),
                          ruleOf(u"黃金"_s, u"黃金 | \"gold price\""_s)};
    }
    NewsItem item(const QString& title) { return newsItem(1, QString::number(++items), at(9, 0), title); }

    AlertSettings settings;
    int items = 0;
};

TEST_F(AlertDeskTest, TellsWhatComesOnceWithTheWordsThatMatchedWhoeverTookItIn) {
    Terminal terminal(store->path(), settings);
    EXPECT_EQ(terminal.titles(), QStringList()) << "what was there";
    terminal.take({item(u"The GOLD price and gold again"_s), item(u"Gold and tin"_s), item(u"黄金上涨"_s)});
    EXPECT_EQ(terminal.titles(),
              (QStringList{u"gold: The GOLD price and gold again"_s, u"黃金: The GOLD price and gold again"_s,
                           u"黃金: 黄金上涨"_s}));
    EXPECT_EQ(terminal.told[0].words, (QStringList{u"GOLD"_s, u"gold"_s}));
    EXPECT_EQ(terminal.told[1].words, QStringList{u"GOLD price"_s});
    EXPECT_EQ(terminal.told[2].words, QStringList{u"黄金"_s});
    EXPECT_EQ(terminal.desk.unseen(), 3);
    terminal.told.clear();
    takeNews(item(u"Gold by another program"_s));
    terminal.wait();
    EXPECT_EQ(terminal.titles(), QStringList{u"gold: Gold by another program"_s});
    terminal.desk.see();
    EXPECT_EQ(terminal.desk.unseen(), 0);
    // Another rule counts for what comes from then on.
    settings.rules = {ruleOf(u"any"_s, u"gold | lead"_s)};
    terminal.desk.setSettings(settings);
    terminal.told.clear();
    terminal.take({item(u"Lead"_s)});
    EXPECT_EQ(terminal.titles(), QStringList{u"any: Lead"_s});
}

TEST_F(AlertDeskTest, LooksAtStoriesWhenTheyComeAndTellsWhatTheyAdd) {
    settings.rules = {ruleOf(u"mine"_s, u"story:\"mine closes\" -tin"_s),
                      ruleOf(u"gold"_s, u"gold | story:gold"_s)};
    Terminal terminal(store->path(), settings);
    NewsItem whole = item(u"Copper"_s);
    whole.story = u"A mine opens.\nThe Mine closes."_s;
    NewsItem late = item(u"Gold"_s);
    NewsItem none = item(u"Tin"_s);
    NewsItem parted = item(u"Lead"_s);
    parted.story = u"The mine\ncloses."_s;
    terminal.take({whole, late, none, parted});
    EXPECT_EQ(terminal.titles(), (QStringList{u"mine: Copper"_s, u"gold: Gold"_s}));
    EXPECT_EQ(terminal.told.front().words, QStringList{u"story:Mine closes"_s});
    terminal.told.clear();
    for (const QString& title : {u"Gold"_s, u"Tin"_s}) {
        std::vector<CHeadlineTable> table;
        std::vector<CHeadline> headlines;
        terminal.backEnd.BKQNEWS_iGetHeadlineTable(1, table, 0, u"20260302"_s);
        terminal.backEnd.BKQNEWS_iGetHeadline(1, headlines, table);
        for (const CHeadline& headline : headlines) {
            if (headline.title == title) {
                EXPECT_TRUE(terminal.backEnd.takeStory(keyOf(headline), u"Gold: a mine closes."_s));
            }
        }
    }
    terminal.wait();
    EXPECT_EQ(terminal.titles(), (QStringList{u"mine: Gold"_s, u"gold: Tin"_s}))
        << "what the title had said is not told again";
    EXPECT_EQ(terminal.told.back().words, QStringList{u"story:Gold"_s});
}

TEST_F(AlertDeskTest, RulesMeanTopicsThatComeAfterThem) {
    settings.rules = {ruleOf(u"metals"_s, u"topic:Metals"_s)};
    Terminal terminal(store->path(), settings);
    terminal.take({item(u"Before"_s)});
    NewsItem first = item(u"The first of its topic"_s);
    first.category = u"Metals"_s;
    terminal.take({first});
    EXPECT_EQ(terminal.titles(), QStringList{u"metals: The first of its topic"_s});
}

TEST_F(AlertDeskTest, TellsNothingTwiceAndLosesNothingOverRestarts) {
    {
        Terminal terminal(store->path(), settings);
        terminal.take({item(u"Gold one"_s)});
        EXPECT_EQ(terminal.told.size(), 1U);
    }
    takeNews(item(u"Gold while nobody looked"_s));
    {
        Terminal terminal(store->path(), settings);
        EXPECT_EQ(terminal.titles(), QStringList{u"gold: Gold while nobody looked"_s});
        EXPECT_EQ(terminal.desk.entries().size(), 2U) << "the first one is kept";
        EXPECT_EQ(terminal.desk.unseen(), 2);
        terminal.desk.see();
        terminal.take({item(u"Copper"_s)});
    }
    // As after a kill before the last position was written.
    store->execute("UPDATE alert_state SET position = 0");
    {
        Terminal terminal(store->path(), settings);
        EXPECT_EQ(terminal.told.size(), 0U);
        EXPECT_EQ(terminal.desk.entries().size(), 3U) << "what was there before is listed as late";
        EXPECT_EQ(terminal.desk.unseen(), 0);
    }
}

TEST_F(AlertDeskTest, TellsWhatIsCorrectedUnderItsKeyAndLooksByItself) {
    Terminal terminal(store->path(), settings);
    const auto send = [&](const QString& title) {
        NewsItem one = newsItem(1, u"one"_s, at(9, 0), title);
        one.sequence = 7;
        one.version = ++items;
        takeNews(one);  // as another program does: nothing is pushed
    };
    const auto titles = [&] { return terminal.titles().filter(u"gold:"_s); };
    send(u"Gold at 5"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return titles().size() == 1; }, 10'000));
    send(u"Gold at 6"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return titles().size() == 2; }, 10'000));
    send(u"Gold at 6"_s);
    terminal.wait();
    EXPECT_EQ(titles(), (QStringList{u"gold: Gold at 5"_s, u"gold: Gold at 6"_s}));
}

TEST_F(AlertDeskTest, APauseGoesOnOverARestartHoweverMuchHasComeSince) {
    settings.rules.front().pauseSeconds = 86'400;
    settings.rules.back() = ruleOf(u"any"_s, u"tick"_s);
    const auto take = [&](Terminal& terminal, int count) {
        std::vector<NewsItem> many;
        for (int i = 0; i < count; ++i)
            many.push_back(item(u"Tick %1"_s.arg(items)));
        terminal.take(many);
    };
    {
        Terminal terminal(store->path(), settings);
        terminal.take({item(u"Gold"_s)});
        take(terminal, 600);
        EXPECT_EQ(terminal.told.size(), 601U);
    }
    Terminal terminal(store->path(), settings);
    EXPECT_EQ(terminal.desk.entries().size(), 500U);
    terminal.take({item(u"Gold again"_s)});
    EXPECT_EQ(terminal.told.size(), 0U);
    EXPECT_EQ(terminal.desk.entries().back().outcome, AlertOutcome::Pause);
}

// What each rule matches is counted by hand: words in upper case between blanks.
TEST_F(AlertDeskTest, AMorningAgreesWithACountByHand) {
    constexpr int headlines = 3000;
    constexpr int words = 400;
    std::mt19937 random(5);
    settings.rules.clear();
    std::vector<std::pair<QString, QString>> wanted;  // a word, and one that must not be there
    for (int i = 0; i < 50; ++i) {
        wanted.emplace_back(u"w%1"_s.arg(i), u"w%1"_s.arg(300 + i));
        settings.rules.push_back(ruleOf(u"r%1"_s.arg(i), u"%1 -%2"_s.arg(wanted[i].first, wanted[i].second)));
    }
    std::vector<NewsItem> news;
    std::map<QString, int> expected;
    for (int i = 0; i < headlines; ++i) {
        std::set<int> has;
        QStringList title{u"Number%1"_s.arg(i)};
        for (int j = 0; j < 8; ++j) {
            const int word = int(random() % words);
            has.insert(word);
            title += u"W%1"_s.arg(word);
        }
        for (int rule = 0; rule < 50; ++rule) {
            if (has.contains(rule) && !has.contains(300 + rule))
                ++expected[u"r%1"_s.arg(rule)];
        }
        news.push_back(item(title.join(u' ')));
    }
    std::map<QString, int> counted;
    std::set<QString> all;
    std::size_t next = 0;
    for (int session = 0; session < 3; ++session) {
        Terminal terminal(store->path(), settings);
        for (int batch = 0; batch < 10; ++batch) {
            const auto from = news.begin() + std::ptrdiff_t(next);
            next += 100;
            terminal.take({from, news.begin() + std::ptrdiff_t(next)});
        }
        for (const QString& each : terminal.titles()) {
            EXPECT_TRUE(all.insert(each).second) << "told twice: " << each.toStdString();
            ++counted[each.section(u':', 0, 0)];
        }
    }
    EXPECT_EQ(counted, expected);
    EXPECT_EQ(rows("SELECT count(*) FROM alerts"), QStringList{u"500"_s}) << "the list has its bound";
}

}  // namespace

}  // namespace wirepane

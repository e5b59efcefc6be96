// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// When sources are asked: in a simulated hour, and as rules.
#include "backend/network/network_errors.h"
#include "backend/network/network_feed_source.h"
#include "host/contract/clock.h"

#include <QDateTime>
#include <QSet>

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

constexpr std::int64_t start = 1772436600;  // a Monday
constexpr std::int64_t hour = 3600;

// Servers that have news at given moments, and list the last ten of it.
class Servers : public SourceAsker {
public:
    void ask(const SourceQuestion& question, const Answered& answered) override {
        const int number = question.source.title.toInt();
        ++requests[number];
        SourceAnswer answer;
        answer.isAlive = answer.isRead = !isDown;
        int count = 0;
        for (const std::int64_t moment : news[number])
            count += moment <= now ? 1 : 0;
        const QByteArray etag = QByteArray::number(count);
        answer.isUnchanged = question.known.etag == etag;
        answer.validators.etag = etag;
        for (int i = std::max(0, count - 10); i < count && !isDown && !answer.isUnchanged; ++i) {
            NewsItem item;
            item.identity = u"%1/%2"_s.arg(number).arg(i);
            item.title = item.identity;
            item.time = news[number][std::size_t(i)];
            answer.items.push_back({StoreItem(item), makeError<network_errors::listFull>(0), 0});
        }
        if (isDown)
            answer.fault = makeError<network_errors::notReached>(u"x"_s);
        answered(std::move(answer));
    }

    std::unique_ptr<SourceStream> follow(const SourceQuestion&, const Answered&) override { return nullptr; }

    std::int64_t now = start;
    bool isDown = false;
    QHash<int, int> requests;
    QHash<int, std::vector<std::int64_t>> news;
};

class PollTest : public testing::Test {
protected:
    void add(int interval = 0) {
        NetworkSource source;
        source.name = source.title = QString::number(sources.size());
        source.interval = interval;
        const NetworkMeans means{&servers, nullptr, [this] { return servers.now * 1000; },
                                 [this] { return std::generate_canonical<double, 32>(random); }};
        sources.push_back(std::make_unique<NetworkFeedSource>(source, means, SourceStanding()));
        sources.back()->resume(QString());
    }
    void pass(std::int64_t seconds) {
        for (const std::int64_t end = servers.now + seconds; servers.now < end; ++servers.now) {
            for (const auto& source : sources)
                pass(*source);
        }
    }
    void pass(NetworkFeedSource& source) {
        for (source.poll(); source.hasBatch(); source.acknowledge({})) {
            (void)source.batch()->read([this](SourceItem&& item) {
                const auto& news = std::get<NewsItem>(item.content.value());
                duplicates += taken.contains(news.identity) ? 1 : 0;
                taken.insert(news.identity);
                longestWait = std::max(longestWait, servers.now - news.time);
                return true;
            });
        }
    }

    Servers servers;
    std::vector<std::unique_ptr<NetworkFeedSource>> sources;
    QSet<QString> taken;
    int duplicates = 0;
    std::int64_t longestWait = 0;
    std::mt19937 random{7};
};

TEST_F(PollTest, FiveHundredSourcesForAnHourLoseNothingAndAskSeldom) {
    constexpr int count = 500;
    for (int i = 0; i < count; ++i) {
        for (int at = 0; at < 6; ++at)
            servers.news[i].push_back(start + at * hour + std::int64_t(random() % hour));
        add();
    }
    pass(hour);  // they learn
    servers.requests.clear();
    longestWait = 0;
    servers.isDown = false;
    pass(hour / 2);
    servers.isDown = true;  // for a minute
    pass(60);
    servers.isDown = false;
    pass(hour / 2 - 60);
    int most = 0;
    int all = 0;
    for (const int requests : servers.requests) {
        most = std::max(most, requests);
        all += requests;
    }
    RecordProperty("requests_per_source_and_hour", QString::number(double(all) / count).toStdString());
    RecordProperty("most_requests_of_a_source", most);
    RecordProperty("longest_wait_s", int(longestWait));
    EXPECT_LE(double(all) / count, 20);
    EXPECT_LE(most, 240) << "no more often than every 15 seconds";
    pass(hour / 4 * 5);
    int lost = 0;
    for (auto source = servers.news.cbegin(); source != servers.news.cend(); ++source) {
        for (std::size_t i = 0; i < source->size() && (*source)[i] < servers.now - 1100; ++i)
            lost += taken.contains(u"%1/%2"_s.arg(source.key()).arg(i)) ? 0 : 1;
    }
    RecordProperty("lost", lost);
    EXPECT_EQ(lost, 0);
    EXPECT_EQ(duplicates, 0);
}

TEST_F(PollTest, ASourceThatWakesUpIsAskedMoreOften) {
    servers.news[0] = {start};
    for (std::int64_t at = start + 12 * hour; at < start + 13 * hour; at += 20)
        servers.news[0].push_back(at);
    add();
    pass(12 * hour);
    servers.requests.clear();
    pass(hour / 2);
    EXPECT_GE(servers.requests[0], 40);
    EXPECT_LE(servers.requests[0], 120);
}

TEST(PollSchedule, KeepsWishesAndGivesFailingOnesRest) {
    PollSchedule adapting;
    PollSchedule each30(30);
    EXPECT_EQ(each30.next({true, 0, {}}, start, 0), 30'000);
    EXPECT_EQ(each30.next({true, 1, 600}, start, 0), 600'000) << "the publisher goes first";
    EXPECT_EQ(each30.next({true, 1, 5}, start, 0), 30'000);
    std::vector<std::int64_t> waits;
    for (int i = 0; i < 12; ++i)
        waits.push_back(adapting.next({false, 0, {}}, start, 0) / 1000);
    EXPECT_EQ(waits,
              (std::vector<std::int64_t>{60, 60, 60, 120, 240, 480, 960, 1800, 1800, 1800, 1800, 1800}));
    EXPECT_EQ(adapting.next({false, 0, 7200}, start, 0), 7'200'000);
    EXPECT_EQ(adapting.next({true, 0, {}}, start, 1), 72'000);
}

TEST(UsualGaps, NightsAndWeekendsDoNotCryWolf) {
    UsualGaps gaps;
    // Three weeks: news every ten minutes from nine to five on working days.
    const std::int64_t midnight = QDateTime(QDate(2026, 3, 2), QTime(0, 0)).toSecsSinceEpoch();  // a Monday
    const auto at = [&](int day, int clock, int minute = 0) {
        return midnight + day * 24 * hour + clock * hour + minute * 60;
    };
    std::vector<std::int64_t> wolves;
    for (std::int64_t moment = midnight; moment < at(25, 12); moment += 120) {
        const int day = int((moment - midnight) / (24 * hour));
        const int clock = int((moment - midnight) / hour % 24);
        gaps.listen(moment);
        if (day % 7 < 5 && clock >= 9 && clock < 17 && (moment - midnight) % 600 == 0)
            gaps.arrive(moment);
        if (gaps.isStale(moment))
            wolves.push_back(moment);
    }
    EXPECT_TRUE(wolves.empty()) << wolves.size();
    gaps = UsualGaps::parse(gaps.text());
    EXPECT_FALSE(gaps.isStale(at(25, 12, 15)));
    EXPECT_TRUE(gaps.isStale(at(25, 12, 40))) << "three times ten minutes, at noon";
    EXPECT_TRUE(UsualGaps::parse(u"1 2 3"_s).expected(at(25, 12)) == 0);
}

}  // namespace
}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What many sources over the network cost while little comes: processor time of the whole program, by real
// requests to a real server, with the hours passing faster.
#include "backend/feed/live_feed.h"
#include "backend/network/network_sources.h"
#include "backend/network/source_list.h"
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_file.h"
#include "bench/support/bench_clock.h"
#include "bench/support/run_benchmarks.h"
#include "tests/support/nginx_server.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDateTime>
#include <QRandomGenerator>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr double hour = 3600;      // seconds
constexpr double hourTakes = 60;   // seconds of the clock on the wall
constexpr double restIsSeen = 10;  // the same

double processorSeconds() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto seconds = [](const timeval& time) { return double(time.tv_sec) + double(time.tv_usec) / 1e6; };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

class CountingAsker : public SourceAsker {
public:
    void ask(const SourceQuestion& question, const Answered& answered) override {
        ++requests;
        asker.ask(question, [this, answered](SourceAnswer answer) {
            unchanged += answer.isUnchanged ? 1 : 0;
            faults += answer.fault ? 1 : 0;
            answered(std::move(answer));
        });
    }
    std::unique_ptr<SourceStream> follow(const SourceQuestion& question, const Answered& answered) override {
        return asker.follow(question, answered);
    }

    int requests = 0;
    int unchanged = 0;
    int faults = 0;

private:
    NetworkAsker asker;
};

// How long the interface's thread was busy without looking at its events.
class TurnWatch {
public:
    TurnWatch() {
        QAbstractEventDispatcher* const events = QAbstractEventDispatcher::instance();
        QObject::connect(events, &QAbstractEventDispatcher::awake, &watch,
                         [this] { from = BenchClock::now(); });
        QObject::connect(events, &QAbstractEventDispatcher::aboutToBlock, &watch,
                         [this] { longest = std::max(longest, secondsSince(from)); });
    }

    double longest = 0;

private:
    QObject watch;
    BenchClock::time_point from = BenchClock::now();
};

// So many sources, each with a piece of news in every hour, and the terminal's part that reads them.
class Desk {
public:
    explicit Desk(int sources) : count(sources) {
        for (int i = 0; i < count; ++i)
            publish(i);
        if (!server.start())
            throw std::runtime_error("nginx is missing");
        const auto store = openStore(folder.filePath(u"news.db"_s));
        SourceList list(*store.value());
        for (int i = 0; i < count; ++i) {
            NetworkSource source;
            source.address = QUrl(u"http://127.0.0.1:%1/%2.xml"_s.arg(server.port()).arg(i));
            source.isTyped = true;
            if (!list.add(source))
                throw std::runtime_error("a source was not added");
        }
        backEnd = std::move(EmbeddedBackEnd::open(folder.filePath(u"news.db"_s)).value());
        feed = std::make_unique<LiveFeed>(*backEnd);
        const NetworkMeans means{&asker, nullptr, [this] { return clock(); },
                                 [] { return QRandomGenerator::global()->generateDouble(); }};
        network = std::make_unique<NetworkSources>(*backEnd, *feed, means);
    }

    // News comes evenly over the hour.
    void passHour() {
        passingFrom = BenchClock::now();
        for (int i = 0; i < count; ++i) {
            turnUntil(*passingFrom, hourTakes * i / count);
            publish(i);
        }
        turnUntil(*passingFrom, hourTakes);
        passed = clock();
        passingFrom.reset();
    }
    // Nothing is due while the clock stands.
    void rest() { turnUntil(BenchClock::now(), restIsSeen); }

    CountingAsker asker;

private:
    void publish(int source) {
        ++items;
        const QString time = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
        const QString item =
            u"<item><guid>urn:%1</guid><title>News %1</title><pubDate>%2</pubDate></item>"_s.arg(items).arg(
                time);
        server.write(QString::number(source) + u".xml"_s,
                     (u"<rss version='2.0'><channel>"_s + item + u"</channel></rss>"_s).toUtf8());
    }
    static void turnUntil(BenchClock::time_point from, double seconds) {
        while (secondsSince(from) < seconds)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    std::int64_t clock() const {
        const double since = passingFrom ? secondsSince(*passingFrom) * hour / hourTakes : 0;
        return passed + static_cast<std::int64_t>(since * 1000);
    }

    const int count;
    int items = 0;
    std::int64_t passed = QDateTime::currentMSecsSinceEpoch();
    std::optional<BenchClock::time_point> passingFrom;  // nothing: the clock stands
    QTemporaryDir folder;
    test::NginxServer server;
    std::unique_ptr<EmbeddedBackEnd> backEnd;
    std::unique_ptr<LiveFeed> feed;
    std::unique_ptr<NetworkSources> network;
};

void sourcesWithNewsOnceAnHour(benchmark::State& state) {
    for (auto unused : state) {
        const int count = static_cast<int>(state.range(0));
        Desk desk(count);
        desk.passHour();  // they are read for the first time, and learn
        const double rested = processorSeconds();
        desk.rest();
        const double ofRest = (processorSeconds() - rested) / restIsSeen;
        const int asked = desk.asker.requests;
        const int unchanged = desk.asker.unchanged;
        const TurnWatch turns;
        const double worked = processorSeconds();
        desk.passHour();
        const double ofRequests = std::max(0.0, processorSeconds() - worked - ofRest * hourTakes) / hour;
        state.counters["core_percent"] = 100 * (ofRest + ofRequests);
        state.counters["rest_percent"] = 100 * ofRest;
        state.counters["requests_per_source"] = double(desk.asker.requests - asked) / count;
        state.counters["unchanged_per_source"] = double(desk.asker.unchanged - unchanged) / count;
        state.counters["faults"] = desk.asker.faults;
        state.counters["longest_turn_ms"] = 1000 * turns.longest;
    }
}

}  // namespace

BENCHMARK(sourcesWithNewsOnceAnHour)->Arg(500)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QCoreApplication>(argc, argv);
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// A live feed from its lines to the rows on screen: a sender on a socket, the store, three views. How much
// comes through at full rate and how long a key waits meanwhile; how long a line takes to its painted row
// when 500 come in a second, and when ten do while a large file is imported into the same store. The second
// argument of the first: alert rules.
#include "backend/alerts/alert_desk.h"
#include "backend/alerts/alert_looks.h"
#include "backend/feed/live_feed.h"
#include "backend/feed/socket_source.h"
#include "backend/import/import_job.h"
#include "backend/store/embedded_back_end.h"
#include "backend/store/staged_import.h"
#include "bench/backend/alert_rules.h"
#include "bench/backend/news_file.h"
#include "bench/backend/store_timing.h"
#include "bench/news_view/key_watch.h"
#include "bench/support/run_benchmarks.h"
#include "host/contract/cfg_io.h"
#include "host/contract/clock.h"
#include "host/contract/view_options.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/views/news_control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "terminal/session/terminal_style.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QDateTime>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <atomic>
#include <mutex>
#include <stdexcept>
#include <thread>

using namespace Qt::StringLiterals;
using namespace wirepane;
using namespace wirepane::bench;

namespace {

constexpr int viewCount = 3;

// Every headline has a second of its own, so that the newest stands on top.
const std::int64_t evening = QDateTime(QDate(2026, 3, 2), QTime(22, 0)).toSecsSinceEpoch();
constexpr int perDay = 70'000;

QString titleOf(int number) {
    return u"Headline %1 of a day full of news"_s.arg(number);
}

QByteArray lineOf(int number) {
    const QString moment =
        QDateTime::fromSecsSinceEpoch(evening - perDay + number % perDay, Qt::UTC).toString(Qt::ISODate);
    return u"{\"uri\":\"bench:%1\",\"headline\":\"%2\",\"versioncreated\":\"%3\",\"body_text\":\"%4\"}\n"_s
        .arg(number)
        .arg(titleOf(number), moment, u"Copper rises for the third day. "_s.repeated(8))
        .toUtf8();
}

// Three views over a store with a live feed.
class LiveDesk {
public:
    // With so many alert rules, and one that wants every headline; 0: without any.
    explicit LiveDesk(std::int64_t rules = 0) {
        host_clock::startAt(evening);
        if (rules > 0)
            startAlerts(rules);
        QApplication::setStyle(new TerminalStyle);
        BKQuoteInterface::setBKInterface(&backEnd);
        for (Place& place : views) {
            place.view = std::make_unique<TRVNewsCtrlView>();
            place.view->resize(900, 600);
            ViewOptions::writeMissing(place.settings, {u"Layout"_s, 0, 0, u"TRVNewsCtrlView"_s});
            place.view->OnInitialUpdate();
            place.view->InitialViewInfo(&place.settings, u"Layout"_s, 0, 0, {});
            place.view->show();
        }
        feed.addSource(std::make_shared<SocketSource>(socketName()));
        QApplication::processEvents();
    }
    QString storePath() const { return folder.filePath(u"news.db"_s); }
    QString socketName() const { return folder.filePath(u"feed"_s); }
    CSuperSheetWnd& sheet(std::size_t view = 0) { return *views.at(view).view->sheetOf(0); }
    // Until every view has so many rows and has painted.
    void awaitRows(int count) {
        const auto from = Clock::now();
        const auto isThere = [&](Place& place) { return place.view->iGetHeadlineTableSize(0) >= count; };
        while (!std::all_of(views.begin(), views.end(), isThere)) {
            QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
            if (secondsSince(from) > 300)
                throw std::runtime_error("the views did not get all the news");
        }
        QApplication::processEvents();
    }

private:
    struct Place {
        MemoryCfgIO settings;
        std::unique_ptr<TRVNewsCtrlView> view;
    };
    void startAlerts(std::int64_t rules) {
        AlertSettings settings{rulesOf(rules)};
        AlertRule& all = settings.rules.emplace_back();
        all.name = all.query = u"headline"_s;
        all.tint = 1;
        alerts = std::make_unique<AlertDesk>(backEnd, settings);
        alerts->begin();
        backEnd.judgeLooksBy(looksBy(settings.rules, backEnd));
    }

    QTemporaryDir folder;
    EmbeddedBackEnd backEnd{connectionsTo(folder.filePath(u"news.db"_s))};
    std::unique_ptr<AlertDesk> alerts;
    std::array<Place, viewCount> views;
    LiveFeed feed{backEnd};
};

// Sends lines from a thread of its own: `perSecond` of them, or, with 0, as many as are taken.
class Sender {
public:
    Sender(const QString& name, int count, int perSecond) : sentAt(static_cast<std::size_t>(count)) {
        thread = std::thread([this, name, count, perSecond] {
            QLocalSocket socket;
            socket.connectToServer(name);
            socket.waitForConnected();
            const auto from = Clock::now();
            for (int i = 0; i < count && !over; ++i) {
                if (perSecond > 0)
                    std::this_thread::sleep_until(from +
                                                  std::chrono::microseconds(1'000'000LL * i / perSecond));
                sentAt[static_cast<std::size_t>(i)] = Clock::now();
                sent = i + 1;
                socket.write(lineOf(i));
                if (perSecond > 0 || i % 200 == 199)
                    socket.waitForBytesWritten(-1);
            }
            while (socket.bytesToWrite() > 0)
                socket.waitForBytesWritten(-1);
            while (!over)
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
        });
    }
    ~Sender() {
        over = true;
        thread.join();
    }

    std::vector<Clock::time_point> sentAt;
    std::atomic<int> sent = 0;  // of these
    std::atomic<bool> over = false;

private:
    std::thread thread;
};

void keysDuringALiveFeed(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    for (auto unused : state) {
        LiveDesk desk(state.range(1));
        KeyWatch watch(desk.sheet());
        const auto from = Clock::now();
        {
            Sender sender(desk.socketName(), count, 0);
            const Typing user(watch);
            desk.awaitRows(count);
        }
        state.counters["items_per_s"] = count / secondsSince(from);
        QApplication::processEvents();
        countWaits(state, watch.takeWaits());
    }
}

// Notes, at each painting of a sheet, how long ago the headlines were sent that stand in it now.
class PaintWatch : public QObject {
public:
    PaintWatch(CSuperSheetWnd& watched, const Sender& source) : sheet(watched), sender(source) {
        sheet.viewport()->installEventFilter(this);
    }
    std::vector<double> waits() {
        std::sort(seen.begin(), seen.end());
        return seen;
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            note();
        return QObject::eventFilter(object, event);
    }

private:
    void note() {
        const QAbstractItemModel& model = *sheet.model();
        for (int row = 0; row < std::min(model.rowCount(), sheet.rowsPerPage()); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                const QString text = model.index(row, column).data().toString();
                if (!text.startsWith("Headline "_L1))
                    continue;
                const int number = text.section(u' ', 1, 1).toInt();
                for (; next <= number; ++next)
                    seen.push_back(secondsSince(sender.sentAt.at(static_cast<std::size_t>(next))));
            }
        }
    }

    CSuperSheetWnd& sheet;
    const Sender& sender;
    std::vector<double> seen;
    int next = 0;
};

void lineToPaintedRow(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    constexpr int perSecond = 500;
    for (auto unused : state) {
        LiveDesk desk;
        Sender sender(desk.socketName(), count, perSecond);
        PaintWatch watch(desk.sheet(), sender);
        desk.awaitRows(count);
        const auto from = Clock::now();
        while (std::ssize(watch.waits()) < count && secondsSince(from) < 5)
            QApplication::processEvents();
        countWaits(state, watch.waits());
    }
}

// As another program does it.
class Importing {
public:
    Importing(const QString& store, const NewsFile& file) {
        thread = std::thread([this, store, &file] {
            const auto database = opened(store);
            StagedImport staged(*database);
            const auto from = Clock::now();
            takenIn = ImportJob({file.path}, staged, file.options).run().totals.takenIn;
            shownAfter = secondsSince(from);
            while (staged.indexSome().value()) {
            }
            indexedAfter = secondsSince(from);
            isDone = true;
        });
    }
    ~Importing() { thread.join(); }

    std::atomic<bool> isDone = false;
    qint64 takenIn = 0;
    double shownAfter = 0;
    double indexedAfter = 0;

private:
    std::thread thread;
};

void importBesideLines(benchmark::State& state, LiveDesk& desk, const NewsFile& file, int count) {
    constexpr int perSecond = 10;
    constexpr int mostLines = 20'000;
    Sender sender(desk.socketName(), mostLines, perSecond);
    PaintWatch watch(desk.sheet(), sender);
    desk.awaitRows(2 * perSecond);
    {
        const Importing import(desk.storePath(), file);
        while (!import.isDone)
            QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        if (import.takenIn != count)
            throw std::runtime_error("the file was not taken in whole");
        state.counters["shown_per_s"] = count / import.shownAfter;
        state.counters["items_per_s"] = count / import.indexedAfter;
    }
    countWaits(state, watch.waits());
}

constexpr std::int64_t longAgo = 1'600'000'000;

void lineToPaintedRowBesideAnImport(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const NewsFile file(Format::Rss, count, longAgo);
    for (auto unused : state) {
        LiveDesk desk;
        importBesideLines(state, desk, file, count);
    }
}

// Half of the file is in the store and comes again, a second later.
void lineToPaintedRowBesideChanges(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const NewsFile before(Format::Rss, count / 2, longAgo);
    const NewsFile file(Format::Rss, count, longAgo + 1);
    for (auto unused : state) {
        LiveDesk desk;
        {
            const Importing import(desk.storePath(), before);
            while (!import.isDone)
                QApplication::processEvents(QEventLoop::AllEvents);
        }
        importBesideLines(state, desk, file, count);
    }
}

}  // namespace

namespace wirepane {

BENCHMARK(keysDuringALiveFeed)
    ->Args({1000, 0})
    ->Args({30'000, 0})
    ->Args({200'000, 0})
    ->Args({50'000, 1000})
    ->Args({50'000, 0})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(lineToPaintedRowBesideAnImport)
    ->Arg(20'000)
    ->Arg(200'000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(lineToPaintedRowBesideChanges)
    ->Arg(1000)
    ->Arg(40'000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(lineToPaintedRow)->Arg(1000)->Arg(10'000)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QApplication>(argc, argv);
}

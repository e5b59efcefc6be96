// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Seven market days over a real store, with three views that somebody works with, and on some days a file
// that is taken in beside them. WIREPANE_ENDURANCE is the number of headlines, a few thousand without it;
// with it the figures of each day are printed.
#include "backend/store/staged_import.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "backend/store/store_writer.h"
#include "host/contract/clock.h"
#include "tests/endurance/desk.h"
#include "tests/endurance/memory_in_use.h"
#include "tests/endurance/store_truth.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <optional>
#include <thread>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int days = 7;
// From the second day on: of the memory in use, and what bounded caches still take that a day does not fill.
constexpr double mostGrowth = 0.02;
constexpr double cachesFill = 1.5 * 1024 * 1024;

using Keys = std::vector<HeadlineKey>;

Keys sorted(Keys keys) {
    std::sort(keys.begin(), keys.end(), [](const HeadlineKey& a, const HeadlineKey& b) {
        return std::tie(a.service, a.time, a.sequence) < std::tie(b.service, b.time, b.sequence);
    });
    return keys;
}

// In which order headlines are told.
class TellOrder : public NewsReceiver {
public:
    void RecvNewHeadLine(const CHeadline* headline, const QString&, const QString&) override {
        const HeadlineKey key = keyOf(*headline);
        told[{key.service, key.time, key.sequence}] = ++count;
    }
    // 0: not told.
    int of(const HeadlineKey& key) const {
        const auto place = told.find({key.service, key.time, key.sequence});
        return place == told.end() ? 0 : place->second;
    }
    // Once every list has been read anew; kept, it would count as the session's memory.
    void forget() { told.clear(); }

private:
    std::map<std::tuple<unsigned char, std::int64_t, std::int32_t>, int> told;
    int count = 0;
};

// What has been told since a list was read stands above the rest, the headline told last on top; of one
// second in any order. What it was read with stands newest first.
bool isInOrder(const Keys& rows, const TellOrder& order) {
    std::size_t told = 0;
    const auto isBelow = [&](const HeadlineKey& above, const HeadlineKey& below) {
        return above.time == below.time || order.of(above) > order.of(below);
    };
    while (told < rows.size() && order.of(rows[told]) > 0 &&
           (told == 0 || isBelow(rows[told - 1], rows[told])))
        ++told;
    std::size_t read = rows.size();
    while (read > 0 && (read == rows.size() || rows[read - 1].time >= rows[read].time))
        --read;
    return read <= told;
}

// A file of much that another program takes in beside all else; it ends with this.
class ImportBeside {
public:
    ImportBeside(const QString& storePath, std::vector<StoreItem> items)
        : thread([storePath, items = std::move(items)] { takeIn(storePath, items); }) {}
    ~ImportBeside() { thread.join(); }
    ImportBeside(const ImportBeside&) = delete;
    ImportBeside& operator=(const ImportBeside&) = delete;

private:
    static void takeIn(const QString& storePath, const std::vector<StoreItem>& items) {
        const auto store = openStore(storePath);
        ASSERT_TRUE(store);
        StagedImport staged(*store.value());
        ASSERT_TRUE(staged.beginMany());
        for (std::size_t i = 0; i < items.size(); ++i) {
            ASSERT_TRUE(staged.take(items[i]));
            if (i % 50 == 0)
                staged.pause();
        }
        ASSERT_TRUE(staged.commit());
        while (staged.indexSome().value()) {
        }
    }

    std::thread thread;
};

class Week : public testing::Test {
protected:
    Week() {
        startDay(QDate(2026, 3, 2));
        session = std::make_unique<Desk>(folder.filePath(u"news.db"_s), folder.path());
        session->embeddedBackEnd().attach(&order);
    }
    ~Week() override { session->embeddedBackEnd().detach(&order); }

    void startDay(const QDate& next) {
        day = next;
        wire.startDay(day);
        moveClock(0);
    }
    // The clock runs on while a day is lived and checked: midnight must not come meanwhile.
    void moveClock(double share) {
        constexpr int newsHours = 20 * 3600;
        host_clock::startAt(day.startOfDay().toSecsSinceEpoch() + static_cast<int>(share * newsHours));
    }

    // All headlines of the day in batches of one transaction each; a few outages, in which hands go on.
    void liveThroughTheDay() {
        const int batch = std::clamp(perDay / 200, 20, 500);
        const int batches = perDay / batch;
        EmbeddedBackEnd& backEnd = session->embeddedBackEnd();
        int offlineFor = 0;
        std::optional<ImportBeside> import;
        for (int i = 0; i < batches && !HasFatalFailure(); ++i) {
            moveClock(double(i) / batches);
            // It brings news that is dated before what has come.
            if (i == batches / 3 && !wire.isOrderly())
                import.emplace(backEnd.storePath(), wire.next(perDay / 5, double(i) / batches));
            const std::vector<StoreItem> items = wire.next(batch, double(i) / batches);
            backEnd.run([&items](StoreWriter& store) {
                // The import may be writing.
                while (!store.begin()) {
                }
                for (const StoreItem& item : items)
                    ASSERT_TRUE(store.take(item));
                ASSERT_TRUE(store.commit());
            });
            if (offlineFor == 0 && wire.below(batches) < 3) {
                offlineFor = 1 + wire.below(batches / 20 + 2);
                backEnd.setConnected(false);
                ++outages;
            } else if (offlineFor > 0 && --offlineFor == 0) {
                backEnd.setConnected(true);
            }
            if (wire.below(3) == 0)
                QCoreApplication::processEvents();
            session->doSomething(wire);
            if (wire.below(batches) < 40)
                session->doSomethingBig(wire, day);
        }
        import.reset();
        backEnd.checkForNews();
        backEnd.setConnected(true);
        session->settle();
    }

    void expectKeys(int view, int list, const Keys& truth) {
        const Keys held = sorted(session->keysOf(view, list));
        rows += QString::number(held.size()) + u' ';
        ASSERT_TRUE(held == sorted(truth))
            << day.toString().toStdString() << ", view " << view << ", list " << list << ": holds "
            << held.size() << ", belong there " << truth.size();
    }

    // Rows and their texts. At most `mostTexts` rows are looked at one by one.
    void expectListAsItStands(int view, int list) {
        TRVNewsCtrlView& held = session->viewOf(view);
        StoreTruth truth(session->embeddedBackEnd().storePath());
        const std::vector<unsigned char> ticked = session->tickedServices(view);
        const QDate picked =
            QDate::fromString(QString::number(held.state()[u"pickedDate"_s].toInt()), u"yyyyMMdd"_s);
        MemoryCfgIO saved;
        held.SaveViewInfo(&saved, u"Layout"_s, 0, 0);
        const QVariantMap symbol = held.state()[u"symbol"_s].toMap();
        Keys expected;
        switch (static_cast<ListIndex>(list)) {
            case ListIndex::All:
                expected = truth.ofDay(picked, ticked);
                break;
            case ListIndex::Category:
                expected = truth.ofCategory(saved.values[u"CategoryID"_s].toInt(), ticked);
                break;
            case ListIndex::Symbol:
                expected = truth.ofSymbol(static_cast<unsigned char>(symbol[u"service"_s].toInt()),
                                          symbol[u"code"_s].toString(), ticked);
                break;
            case ListIndex::Relation:
                expected = truth.ofDay(day, ticked, [](const StoreTruth::Row& row) {
                    return desk::isRelated(row.category, row.title);
                });
                break;
            case ListIndex::Warrant:
                expected = truth.ofDay(picked, {52});
                break;
            default:
                return;
        }
        const Keys rowsHeld = session->keysOf(view, list);
        SCOPED_TRACE(u"%1, view %2, list %3"_s.arg(day.toString()).arg(view).arg(list).toStdString());
        ASSERT_EQ(rowsHeld.size(), expected.size());
        ASSERT_TRUE(sorted(rowsHeld) == sorted(expected));
        EXPECT_TRUE(!wire.isOrderly() || isInOrder(rowsHeld, order));
        expectTexts(view, list, rowsHeld, truth);
    }

    void expectTexts(int view, int list, const Keys& keys, StoreTruth& truth) {
        constexpr std::size_t mostTexts = 500;
        const std::size_t step = 1 + keys.size() / mostTexts;
        for (std::size_t row = 0; row < keys.size(); row += step) {
            const QStringList texts = session->textsOf(view, list, static_cast<int>(row));
            ASSERT_EQ(texts.mid(1), truth.textsOf(keys[row])) << "row " << row;
            const QDateTime time = QDateTime::fromSecsSinceEpoch(keys[row].time);
            const QString ofDay = time.toString(u"HH:mm"_s);
            const QString withDate = time.toString(u"MM/dd HH:mm"_s);
            const bool hasDate = kindOf(static_cast<ListIndex>(list)).showDate;
            // Pushed rows of the relation list say their day.
            const bool mayHaveDate = hasDate || list == static_cast<int>(ListIndex::Relation);
            ASSERT_TRUE((texts[0] == ofDay && !hasDate) || (texts[0] == withDate && mayHaveDate))
                << texts[0].toStdString() << " for " << withDate.toStdString();
        }
    }

    // The lists as the day has left them: that on show, then each as a switch to its mode shows it. Nothing
    // is read anew but what a switch reads.
    void expectListsAsTheyStand() {
        for (int view = 0; view < desk::views && !HasFatalFailure(); ++view) {
            // A list of a symbol takes the pushed news whose main symbol it is, and finds more when it is
            // read.
            const int current = session->viewOf(view).state()[u"mode"_s].toInt();
            if (current != static_cast<int>(ListIndex::Symbol))
                expectListAsItStands(view, current);
            for (const int mode : Desk::modesOf(view)) {
                session->goTo(view, mode);
                expectListAsItStands(view, mode);
            }
        }
    }

    void expectWhatBelongsThere() {
        rows.clear();
        StoreTruth truth(session->embeddedBackEnd().storePath());
        ASSERT_GT(truth.ofDay(day, {1}).size(), std::size_t(perDay / 10));
        for (int view = 0; view < desk::views; ++view) {
            const std::vector<unsigned char> ticked = session->tickedServices(view);
            const QVariantMap symbol = session->viewOf(view).state()[u"symbol"_s].toMap();
            MemoryCfgIO saved;
            session->viewOf(view).SaveViewInfo(&saved, u"Layout"_s, 0, 0);
            expectKeys(view, 0, truth.ofDay(day, ticked));
            expectKeys(view, 1, truth.ofCategory(saved.values[u"CategoryID"_s].toInt(), ticked));
            expectKeys(view, 2,
                       truth.ofSymbol(static_cast<unsigned char>(symbol[u"service"_s].toInt()),
                                      symbol[u"code"_s].toString(), ticked));
            expectKeys(view, static_cast<int>(ListIndex::Warrant), truth.ofDay(day, {52}));
        }
        expectKeys(desk::relating, static_cast<int>(ListIndex::Relation),
                   truth.ofDay(day, session->tickedServices(desk::relating), [](const StoreTruth::Row& row) {
                       return desk::isRelated(row.category, row.title);
                   }));
        expectKeys(desk::searching, static_cast<int>(ListIndex::Search),
                   truth.withWord(WeekWire::wordOf(day)));
        expectKeys(desk::warning, static_cast<int>(ListIndex::WarningTerm),
                   truth.withWord(desk::warningWord));
    }

    void expectSameRows(const Desk& fresh) {
        for (int view = 0; view < desk::views; ++view) {
            for (int list = 0; list < listCount; ++list) {
                ASSERT_TRUE(session->keysOf(view, list) == fresh.keysOf(view, list))
                    << day.toString().toStdString() << ", view " << view << ", list " << list;
            }
        }
    }

    // What the session holds beyond what the same desk, opened fresh on the same store, holds.
    std::int64_t memoryBeyondAFreshDesk() {
        QPixmapCache::clear();  // what the style has drawn; bounded, too
        inUse = MemoryInUse::now();
        std::int64_t withFresh = 0;
        {
            Desk fresh(*session, folder.path());
            fresh.rebuildLists(day);
            expectSameRows(fresh);
            QPixmapCache::clear();
            withFresh = MemoryInUse::now().other;
        }
        session->install();
        return inUse.other - (withFresh - inUse.other);
    }

    static constexpr std::int64_t databasesAtMost = 24 * 1024 * 1024;
    const int wanted = qEnvironmentVariableIntValue("WIREPANE_ENDURANCE");
    const int perDay = std::max(2'800, wanted) / days;
    QTemporaryDir folder;
    WeekWire wire{20260302};
    QDate day;
    TellOrder order;
    std::unique_ptr<Desk> session;
    MemoryInUse inUse;
    QString rows;  // of each list that was compared
    int outages = 0;
};

}  // namespace

TEST_F(Week, MemoryStaysAndEveryListHoldsWhatBelongsThere) {
    std::int64_t secondDay = 0;
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < days && !HasFatalFailure(); ++i) {
        if (i > 0)
            startDay(day.addDays(1));
        liveThroughTheDay();
        const qint64 lived = time.restart();
        expectListsAsTheyStand();
        if (HasFatalFailure())
            return;
        session->rebuildLists(day);
        expectWhatBelongsThere();
        // Days compare when their lists do: the same services, each with what the day before has. What the
        // back end keeps of earlier days for speed, within bounds of its own, is no part of it.
        session->embeddedBackEnd().forgetNews();
        session->tickAllServices();
        session->rebuildLists(day);
        session->embeddedBackEnd().takeRequests();
        order.forget();
        if (HasFatalFailure())
            return;
        expectWhatBelongsThere();
        const std::int64_t beyond = memoryBeyondAFreshDesk();
        if (wanted > 0)
            std::cout << day.toString(u"yyyy-MM-dd"_s).toStdString() << "  sent " << wire.sentCount()
                      << "  in use " << inUse.other << " and " << inUse.ofDatabases << " of databases"
                      << "  beyond a fresh desk " << beyond << "  lived " << lived << " ms  checked "
                      << time.restart() << " ms  rows " << rows.toStdString() << std::endl;
        EXPECT_LT(inUse.ofDatabases, databasesAtMost);
        if (i == 1)
            secondDay = beyond;
        if (i > 1) {
            EXPECT_LT(double(beyond - secondDay), cachesFill + mostGrowth * double(inUse.other))
                << day.toString().toStdString();
        }
    }
    EXPECT_GT(outages, days);
    EXPECT_GT(session->alerts().entries().size(), 100U) << "what was told, or not, and why";
    EXPECT_LE(session->alerts().entries().size(), 500U);
    EXPECT_EQ(StoreChecker(session->embeddedBackEnd().storePath()).check().value(), QStringList{});
}

}  // namespace wirepane

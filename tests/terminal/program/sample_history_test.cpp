// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The days that a store of the sample wire lacks come behind its window, whatever happened before.
#include "terminal/session/sample_history.h"

#include "backend/network/source_list.h"
#include "backend/store/store_file.h"
#include "backend/store/store_writer.h"
#include "host/contract/clock.h"
#include "terminal/session/sample_filling.h"
#include "terminal/session/store_opening.h"
#include "tests/terminal/program/program_runner.h"

#include <QTest>

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t noon = 1'772'625'600;  // Wednesday 2026-03-04, UTC
constexpr std::int64_t day = 86'400;
constexpr int all = std::numeric_limits<int>::max();

class SampleHistoryTest : public testing::Test {
protected:
    // The whole test runs within one second of the wire.
    static SampleOptions optionsAt(std::int64_t now) {
        host_clock::startAt(now);
        SampleOptions options;
        options.now = now;
        options.headlinesPerDay = 400;
        return options;
    }
    std::unique_ptr<Database> open(const QString& name) const {
        auto store = openStore(scratch.path(name));
        EXPECT_TRUE(store);
        return std::move(store.value());
    }
    // As a terminal that is killed after so many batches.
    static void takeHistory(Database& store, const SampleOptions& options, int batches = all) {
        StoreWriter writer(store);
        const auto source = sampleHistory(options);
        source->resume(writer.positionOf(source->name()));
        for (; batches > 0; --batches) {
            ASSERT_TRUE(QTest::qWaitFor([&] { return source->hasBatch() || source->isDone(); }, 60'000));
            if (!source->hasBatch())
                return;
            const auto taken = takeBatch(*source->batch(), source->name(), writer);
            ASSERT_TRUE(taken);
            EXPECT_EQ(taken.value().totals.rejected, 0);
            source->acknowledge(taken.value());
        }
    }
    static QString newsOf(Database& store) {
        QString news;
        EXPECT_TRUE(
            store.readText("SELECT group_concat(line, char(10)) FROM (SELECT identity || ' ' || version || ' "
                           "' || title AS line "
                           "FROM headlines ORDER BY identity)",
                           news));
        return news;
    }
    static QString daysOf(Database& store) {
        QString days;
        EXPECT_TRUE(store.readText(
            "SELECT group_concat(day, ' ') FROM (SELECT DISTINCT day FROM headlines ORDER BY day)", days));
        return days;
    }

    const test::Scratch scratch;
};

TEST_F(SampleHistoryTest, TheRestOfTheFirstFillingSurvivesKillsAndOtherTerminalsOnceAndWhole) {
    const SampleOptions options = optionsAt(noon);
    const auto whole = open(u"whole"_s);
    ASSERT_TRUE(fillWithSample(*whole, options));
    const QString expected = newsOf(*whole);
    // Before the first batch, in the middle of a day, behind a day.
    for (const int batches : {0, 1, 2, 3}) {
        SCOPED_TRACE(batches);
        const auto store = open(u"killed-%1"_s.arg(batches));
        ASSERT_TRUE(bringSampleUpToDate(*store, options));
        EXPECT_TRUE(mayShowSample(*store));
        EXPECT_TRUE(daysOf(*store).endsWith(u"20260304"_s));
        EXPECT_LT(newsOf(*store).size(), expected.size() / 2)
            << "the window does not wait for the other days";
        takeHistory(*store, options, batches);
        ASSERT_TRUE(bringSampleUpToDate(*open(u"killed-%1"_s.arg(batches)), options));
        takeHistory(*store, options);
        takeHistory(*store, options);
        EXPECT_EQ(newsOf(*store), expected);
    }
}

TEST_F(SampleHistoryTest, AStoreWithNewsOrSourcesOfTheUsersOwnIsNeverFilled) {
    optionsAt(noon);
    const struct {
        const char* what;
        QString identity;
        bool hasSource;
        bool maySample;
    } cases[] = {
        {"nothing", {}, false, true},
        {"news of the wire", u"sample:1"_s, false, true},
        {"other news", u"wire:1"_s, false, false},
        {"a source that waits for the user", {}, true, false},
        {"a source beside news of the wire", u"sample:1"_s, true, false},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.what);
        const QString name = QString::fromLatin1(one.what);
        const auto store = open(name);
        if (one.hasSource) {
            NetworkSource source;
            source.address = QUrl(u"https://news.example/feed"_s);
            source.isPaused = true;
            ASSERT_TRUE(SourceList(*store).add(source));
        }
        if (!one.identity.isEmpty()) {
            StoreWriter writer(*store);
            NewsItem item;
            item.service = 1;
            item.identity = one.identity;
            item.time = noon - 2 * day;
            item.title = u"a title"_s;
            ASSERT_TRUE(writer.begin() && writer.takeNews(item) && writer.commit());
        }
        EXPECT_EQ(mayShowSample(*store), one.maySample);
        const QString before = newsOf(*store);
        ASSERT_TRUE(openBackEnd(scratch.path(name), SampleUse::Followed));
        EXPECT_EQ(newsOf(*store) != before, one.maySample);
    }
}

TEST_F(SampleHistoryTest, WhatTheStoreKeepsNoLongerIsLeftOut) {
    const SampleOptions options = optionsAt(noon);
    const auto whole = open(u"whole"_s);
    const auto trimmed = open(u"trimmed"_s);
    const auto every = fillWithSample(*whole, options);
    StoreWriter writer(*trimmed);
    for (bool isDone = false; !isDone;) {
        const auto step = writer.trim({.days = 3}, noon);
        ASSERT_TRUE(step);
        isDone = step.value().isDone;
    }
    const auto some = fillWithSample(*trimmed, options);
    ASSERT_TRUE(every && some) << sentence(some.error()).toStdString();
    EXPECT_EQ(daysOf(*trimmed), u"20260301 20260302 20260303 20260304"_s);
    EXPECT_GT(some.value().tooOld, 0);
    EXPECT_EQ(some.value().takenIn + some.value().tooOld, every.value().takenIn);
    // All of it again brings nothing.
    EXPECT_EQ(fillWithSample(*trimmed, options).value().takenIn, 0);
}

TEST_F(SampleHistoryTest, AnAbsenceIsMadeUpForButNoMoreThanTheLastDays) {
    struct Case {
        const char* what;
        std::int64_t later;
        bool isKilledBefore;  // with days still to come
        QString days;
    };
    const QString before = u"20260226 20260227 20260228 20260301 20260302 20260303 20260304"_s;
    const Case cases[] = {
        {"an hour", 3600, false, before},
        {"over the weekend", 5 * day, false, before + u" 20260305 20260306 20260307 20260308 20260309"_s},
        {"over night, after a kill", day, true,
         u"20260227 20260228 20260301 20260302 20260303 20260304 20260305"_s},
        {"a year", 365 * day, false,
         before + u" 20270226 20270227 20270228 20270301 20270302 20270303 20270304"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const auto store = open(QString::fromLatin1(c.what));
        const SampleOptions first = optionsAt(noon);
        ASSERT_TRUE(bringSampleUpToDate(*store, first));
        takeHistory(*store, first, c.isKilledBefore ? 1 : all);
        const SampleOptions later = optionsAt(noon + c.later);
        ASSERT_TRUE(bringSampleUpToDate(*store, later));
        takeHistory(*store, later);
        EXPECT_EQ(daysOf(*store), c.days);
    }
}

}  // namespace

}  // namespace wirepane

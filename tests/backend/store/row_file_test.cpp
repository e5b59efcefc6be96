// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/row_file.h"

#include "backend/store/row_file_desk.h"
#include "host/contract/clock.h"
#include "tests/backend/store/store_fixture.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

using End = RowFileOutcome::End;

class RowFileTest : public StoreFixture {
protected:
    CHeadlineTable add(int minute) {
        NewsItem item = newsItem(1, QString::number(minute), at(9, minute), u"Title %1"_s.arg(minute));
        item.story = u"Story %1"_s.arg(minute);
        const StoredNews stored = takeNews(item);
        return {stored.key.time, stored.key.sequence, stored.key.service, 0, 0};
    }
    // The titles in a file of the form "json".
    QStringList titlesIn(const QString& file) const {
        QStringList titles;
        for (const auto& row : QJsonDocument::fromJson(bytesOf(file)).array())
            titles += row.toObject()[u"title"_s].toString();
        return titles;
    }
    QStringList filesOf(const QString& pattern) const {
        return QDir(folder.path()).entryList({pattern}, QDir::Files);
    }
};

TEST_F(RowFileTest, RowsStandInTheGivenOrderWithoutThoseThatAreGone) {
    const CHeadlineTable first = add(1);
    const CHeadlineTable second = add(2);
    const CHeadlineTable gone{first.time, first.sequence + 1000, 1, 0, 0};
    const QString file = pathOf(u"out.json"_s);
    std::vector<int> told;
    const auto outcome =
        writeRowFile(*store, std::vector{second, gone, first}, NewsRowForm::Json, file, [&](int done) {
            told.push_back(done);
            return true;
        });
    EXPECT_EQ(outcome.end, End::Written);
    EXPECT_EQ(outcome.rows, 2);
    EXPECT_EQ(outcome.bytes, bytesOf(file).size());
    EXPECT_EQ(titlesIn(file), (QStringList{u"Title 2"_s, u"Title 1"_s}));
    EXPECT_EQ(told, (std::vector{0, 1, 2}));
}

TEST_F(RowFileTest, WhatWasWithdrawnIsWithdrawnWhereAFileIsTakenIn) {
    const CHeadlineTable plain = add(1);
    NewsItem item = newsItem(1, u"2"_s, at(9, 2), u"Title 2"_s);
    item.withdrawn = u"Wrong figure"_s;
    const StoredNews stored = takeNews(item);
    const CHeadlineTable withdrawn{stored.key.time, stored.key.sequence, stored.key.service, 0, 0};
    const auto written = [&](NewsRowForm form) {
        writeRowFile(*store, std::vector{plain, withdrawn}, form, pathOf(u"out"_s), [](int) { return true; });
        return bytesOf(pathOf(u"out"_s));
    };
    const QJsonArray rows = QJsonDocument::fromJson(written(NewsRowForm::Json)).array();
    EXPECT_EQ(rows[0].toObject()[u"pubstatus"_s].toString(), u"usable"_s);
    EXPECT_FALSE(rows[0].toObject().contains(u"ednote"_s));
    EXPECT_EQ(rows[1].toObject()[u"pubstatus"_s].toString(), u"canceled"_s);
    EXPECT_EQ(rows[1].toObject()[u"ednote"_s].toString(), u"Wrong figure"_s);
    const QList<QByteArray> csv = written(NewsRowForm::Csv).trimmed().split('\n');
    EXPECT_TRUE(csv[0].trimmed().endsWith(",pubstatus,price then,price,farthest price,price moment"));
    EXPECT_TRUE(csv[1].trimmed().endsWith(",usable,,,,"));
    EXPECT_TRUE(csv[2].trimmed().endsWith(",canceled,,,,"));
    const auto record =
        QJsonDocument::fromJson(written(NewsRowForm::Ninjs).trimmed().split('\n')[1]).object();
    EXPECT_EQ(record[u"pubstatus"_s].toString(), u"canceled"_s);
    EXPECT_EQ(record[u"ednote"_s].toString(), u"Wrong figure"_s);
}

TEST_F(RowFileTest, PricesAreThoseOfTheMomentOfTheFile) {
    const auto quote = [this](std::int64_t moment, double last) {
        host_clock::startAt(moment);
        take(QuoteItem{22, u"00001"_s, last, 0, 0});
    };
    quote(at(9, 0), 10.05);
    NewsItem item = newsItem(1, u"priced"_s, at(9, 2), u"Priced"_s);
    item.related = {{22, u"00001"_s}};
    const StoredNews stored = takeNews(item);
    quote(at(9, 3), 12);
    quote(at(9, 4), 11.5);
    const std::vector<CHeadlineTable> entries{{stored.key.time, stored.key.sequence, 1, 0, 0}};
    const auto written = [&](NewsRowForm form) {
        writeRowFile(*store, entries, form, pathOf(u"out"_s), [](int) { return true; });
        return bytesOf(pathOf(u"out"_s));
    };
    host_clock::startAt(at(9, 5));
    const QString moment =
        QDateTime::fromSecsSinceEpoch(at(9, 5), QTimeZone::utc()).toString(u"yyyy-MM-ddTHH:mm"_s);
    const QString csv = QString::fromUtf8(written(NewsRowForm::Csv)).section(u"\r\n"_s, 1, 1);
    EXPECT_TRUE(csv.contains(u",usable,10.05,11.5,12,"_s + moment)) << csv.toStdString();
    const QJsonObject prices =
        QJsonDocument::fromJson(written(NewsRowForm::Json)).array()[0].toObject()[u"prices"_s].toObject();
    EXPECT_EQ(prices[u"then"_s].toDouble(), 10.05);
    EXPECT_EQ(prices[u"now"_s].toDouble(), 11.5);
    EXPECT_EQ(prices[u"farthest"_s].toDouble(), 12);
    EXPECT_TRUE(prices[u"moment"_s].toString().startsWith(moment));
    EXPECT_FALSE(written(NewsRowForm::Ninjs).contains("price"));
    host_clock::startAt(QDateTime::currentSecsSinceEpoch());
}

TEST_F(RowFileTest, AFileThatIsNotWholeLeavesTheOneBefore) {
    const std::vector<CHeadlineTable> entries{add(1), add(2)};
    const QString file = pathOf(u"out.csv"_s);
    const auto goesOn = [](int) { return true; };
    EXPECT_EQ(writeRowFile(*store, entries, NewsRowForm::Csv, file, goesOn).end, End::Written);
    const QByteArray before = bytesOf(file);
    const auto stopped =
        writeRowFile(*store, entries, NewsRowForm::Ninjs, file, [](int done) { return done < 1; });
    EXPECT_EQ(stopped.end, End::Stopped);
    EXPECT_EQ(bytesOf(file), before);
    EXPECT_EQ(filesOf(u"out.csv*"_s), QStringList{u"out.csv"_s}) << "nothing lies beside it";
    const auto lost = writeRowFile(*store, entries, NewsRowForm::Csv, pathOf(u"no/where.csv"_s), goesOn);
    EXPECT_EQ(lost.end, End::NotWritten);
    EXPECT_FALSE(lost.reason.isEmpty());
}

TEST_F(RowFileTest, TheDeskWritesBesideAndTellsWhoStillWaits) {
    const std::vector<CHeadlineTable> entries{add(1), add(2)};
    std::vector<RowFileOutcome> ends;
    const NewsRowFiles::Tellers tellers{[](int) {},
                                        [&](const RowFileOutcome& outcome) { ends.push_back(outcome); }};
    RowFileDesk desk(store->path());
    auto dropped = desk.write(entries, NewsRowForm::Json, pathOf(u"dropped.json"_s), tellers);
    dropped.reset();
    const auto kept = desk.write(entries, NewsRowForm::Json, pathOf(u"kept.json"_s), tellers);
    EXPECT_TRUE(ends.empty()) << "it tells from the event loop";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !ends.empty(); }));
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].end, End::Written);
    EXPECT_EQ(titlesIn(pathOf(u"kept.json"_s)), (QStringList{u"Title 1"_s, u"Title 2"_s}));
    RowFileDesk lost(pathOf(u"no.store"_s));
    const auto unread = lost.write(entries, NewsRowForm::Json, pathOf(u"unread.json"_s), tellers);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ends.size() == 2; }));
    EXPECT_EQ(ends[1].end, End::Unreadable);
    EXPECT_EQ(filesOf(u"unread*"_s), QStringList());
}

}  // namespace
}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/import_job.h"
#include "backend/import/mapping.h"
#include "backend/store/store_file.h"
#include "host/contract/records.h"
#include "tests/backend/store/store_fixture.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QMap>

namespace wirepane {

// Keeps what the store has taken in.
class NotingSink : public ItemSink {
public:
    explicit NotingSink(StoreWriter& writer) : store(writer) {}
    Done begin() override { return store.begin(); }
    Done commit() override { return store.commit(); }
    void rollback() override { store.rollback(); }
    Result<TakeOutcome> take(const StoreItem& item) override {
        Result<TakeOutcome> outcome = store.take(item);
        if (outcome && outcome.value().take == Take::TakenIn && std::holds_alternative<NewsItem>(item))
            taken.push_back(std::get<NewsItem>(item));
        return outcome;
    }
    std::vector<NewsItem> taken;

private:
    StoreWriter& store;
};

// A store of real news, with what it was made of; of invented news where there is none.
class RealNews : public StoreFixture {
protected:
    void SetUp() override {
        news = qEnvironmentVariable("WIREPANE_TEST_NEWS");
        sink = std::make_unique<NotingSink>(*writer);
        if (!QFileInfo(news).isDir())
            news.clear();
        if (news.isEmpty())
            invent();
        else
            importNews();
        reading = std::move(openStore(store->path()).value());
    }

    void importNews() {
        import(QStringLiteral("wire/*.jsonl"), {});
        import(QStringLiteral("announcements/*.json"), QStringLiteral("exchange_announcements.json"));
        import(QStringLiteral("wikinews/data/*.csv"), QStringLiteral("articles.json"));
        ASSERT_GT(sink->taken.size(), 17'000U);
    }
    // In both scripts of Chinese, with all that is folded and all kinds of numbers.
    void invent() {
        const QStringList pieces =
            QStringLiteral(
                "Gold rises 2.5%|US-China talks|Café “Zoë” opened|AT&T ＧＢ200 sale|0700.HK up 11,700 points|"
                "2330,2317 on "
                "114.12.26|台積電公布計畫|台积电公布计划|瞭解反覆的裡面|了解反复的里面|資⾦貸與⼦公司|"
                "衛星著陸 10:30|卫星着陆—第５章|ｱﾒﾘｶ が上昇|삼성전자 상승|c++ and (abc)|Ёлка ΣΊΣΥΦΟΣ")
                .split(u'|');
        const auto piece = [&](qsizetype i) { return pieces.at(i % pieces.size()); };
        ASSERT_TRUE(writer->begin());
        for (int i = 0; i < 400; ++i) {
            NewsItem item = newsItem(i % 2 == 0 ? 16 : 52, QString::number(i), at(11, 0) - i * 20'000,
                                     piece(i) + u' ' + piece(i / 7));
            item.story = piece(i / 3) + QStringLiteral("@@@@") + piece(i * 5 / 2) + u' ' + piece(i / 11);
            item.category = i % 3 == 0 ? QStringLiteral("Results") : QStringLiteral("公告");
            if (i % 4 == 0)
                item.related = {{16, i % 8 == 0 ? QStringLiteral("2330") : QStringLiteral("2317")}};
            ASSERT_TRUE(sink->take(item));
        }
        ASSERT_TRUE(writer->commit());
    }

    void import(const QString& pattern, const QString& mapping) {
        ReadOptions options;
        if (!mapping.isEmpty())
            options.mapping = std::make_shared<const Mapping>(
                Mapping::load(QStringLiteral(WIREPANE_MAPPINGS "/") + mapping).value());
        QStringList files;
        QDirIterator all(news + u'/' + pattern.section(u'/', 0, -2), {pattern.section(u'/', -1)},
                         QDir::Files);
        while (all.hasNext())
            files += all.next();
        files.sort();
        ImportJob(files, *sink, options).run();
    }
    void readIdentities() {
        for (const QString& row :
             rows("SELECT service || '/' || time || '/' || sequence || '|' || identity FROM headlines"))
            identities.insert(row.section(u'|', 0, 0), row.section(u'|', 1));
    }
    // What was found, sorted.
    QStringList identitiesOf(const std::vector<CHeadlineTable>& entries) const {
        QStringList found;
        for (const CHeadlineTable& entry : entries)
            found += identities.value(
                QStringLiteral("%1/%2/%3").arg(entry.service).arg(entry.time).arg(entry.sequence));
        found.sort();
        return found;
    }
    // Tells which of two lists alone holds what.
    static void compare(const QStringList& found, const QStringList& wanted) {
        const auto without = [](QStringList some, const QStringList& others) {
            for (const QString& other : others)
                some.removeOne(other);
            return some.mid(0, 10).join(u'\n').toStdString();
        };
        if (found == wanted)
            return;
        EXPECT_EQ(without(found, wanted), "") << "found only by the search";
        EXPECT_EQ(without(wanted, found), "") << "found only by the scan";
    }

    QString news;
    std::unique_ptr<NotingSink> sink;
    std::unique_ptr<Database> reading;

private:
    QMap<QString, QString> identities;  // by service, time and number
};

}  // namespace wirepane

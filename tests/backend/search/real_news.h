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

// A store of real news, with what it was made of; skipped where there is none.
class RealNews : public StoreFixture {
protected:
    void SetUp() override {
        news = qEnvironmentVariable("WIREPANE_TEST_NEWS");
        if (news.isEmpty() || !QFileInfo(news).isDir())
            GTEST_SKIP() << "no real news: WIREPANE_TEST_NEWS names no folder";
        sink = std::make_unique<NotingSink>(*writer);
        import(QStringLiteral("wire/*.jsonl"), {});
        import(QStringLiteral("announcements/*.json"), QStringLiteral("exchange_announcements.json"));
        import(QStringLiteral("wikinews/data/*.csv"), QStringLiteral("articles.json"));
        ASSERT_GT(sink->taken.size(), 17'000U);
        reading = std::move(openStore(store->path()).value());
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

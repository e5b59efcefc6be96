// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/import_job.h"
#include "backend/import/mapping.h"
#include "backend/search/news_search.h"
#include "backend/store/store_file.h"
#include "host/contract/search_choices.h"
#include "tests/backend/search/plain_scan.h"
#include "tests/backend/store/store_fixture.h"

#include <QDirIterator>
#include <QFileInfo>

#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

// Takes into the store and into the scan.
class BothSinks : public ItemSink {
public:
    BothSinks(StoreWriter& writer, PlainScan& plain) : store(writer), scan(plain) {}
    Done begin() override { return store.begin(); }
    Done commit() override { return store.commit(); }
    void rollback() override { store.rollback(); }
    Result<TakeOutcome> take(const StoreItem& item) override {
        Result<TakeOutcome> outcome = store.take(item);
        if (outcome && outcome.value().take == Take::TakenIn) {
            scan.add(std::get<NewsItem>(item));
            taken.push_back(std::get<NewsItem>(item));
        }
        return outcome;
    }
    std::vector<NewsItem> taken;

private:
    StoreWriter& store;
    PlainScan& scan;
};

class SearchScan : public StoreFixture {
protected:
    void SetUp() override {
        news = qEnvironmentVariable("WIREPANE_TEST_NEWS");
        if (news.isEmpty() || !QFileInfo(news).isDir())
            GTEST_SKIP() << "no real news: WIREPANE_TEST_NEWS names no folder";
        sink = std::make_unique<BothSinks>(*writer, scan);
        import(u"wire/*.jsonl"_s, {});
        import(u"announcements/*.json"_s, u"exchange_announcements.json"_s);
        import(u"wikinews/data/*.csv"_s, u"articles.json"_s);
        ASSERT_GT(sink->taken.size(), 17'000U);
        reading = std::move(openStore(store->path()).value());
        ids = readIds();
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

    QMap<QString, QString> readIds() {
        QMap<QString, QString> found;
        for (const QString& row :
             rows("SELECT service || '/' || time || '/' || sequence || '|' || identity FROM headlines"))
            found.insert(row.section(u'|', 0, 0), row.section(u'|', 1));
        return found;
    }

    // A piece of a real text, of the kinds that people search for.
    static QString someKeyword(const NewsItem& item, std::mt19937& random) {
        const QString text =
            random() % 3 == 0 || item.story.value_or(QString()).isEmpty() ? item.title : *item.story;
        const qsizetype at = qsizetype(random() % std::size_t(text.size()));
        switch (random() % 5) {
            case 0:
                return text.sliced(at).left(1 + qsizetype(random() % 4));
            case 1:
                return text.section(u' ', int(random() % 20), -1).section(u' ', 0, int(random() % 2));
            case 2:
                return text.sliced(at).left(8 + qsizetype(random() % 12));
            case 3:
                return item.related.empty() ? u"700"_s : item.related.front().code;
            default:
                return text.sliced(at).left(2).toUpper() +
                       QStringList{u"%"_s, u""_s, u"("_s, u"\""_s}.at(qsizetype(random() % 4));
        }
    }

    QString news;
    PlainScan scan;
    std::unique_ptr<BothSinks> sink;
    std::unique_ptr<Database> reading;
    QMap<QString, QString> ids;
};

TEST_F(SearchScan, FindsExactlyWhatAPlainScanFinds) {
    std::mt19937 random(20260302);
    NewsSearch search(*reading);
    std::size_t matched = 0;
    for (int i = 0; i < 600; ++i) {
        if (i == 300)
            search.prepare();
        CSearch condition;
        const std::size_t count = random() % 4 == 0 ? 1 + random() % 3 : 1;
        const NewsItem& item = sink->taken.at(random() % sink->taken.size());
        while (condition.keywords.size() < count)
            condition.keywords.push_back(someKeyword(item, random));
        condition.scope = static_cast<unsigned char>(random() % 5 / 2);
        condition.method = static_cast<unsigned char>(1 + random() % lastSearchMethod);
        if (random() % 8 == 0)
            condition.symbols = {{16, u"2330"_s}, {16, u"2317"_s}};
        const unsigned char service = random() % 10 == 0 ? 1 : item.service;
        const auto entries = search.find(service, condition);
        ASSERT_TRUE(entries);
        QStringList found;
        for (const CHeadlineTable& entry : *entries)
            found += ids.value(u"%1/%2/%3"_s.arg(entry.service).arg(entry.time).arg(entry.sequence));
        found.sort();
        const QStringList keywords(condition.keywords.begin(), condition.keywords.end());
        const QStringList wanted = scan.find(service, condition);
        const auto without = [](QStringList some, const QStringList& others) {
            for (const QString& other : others)
                some.removeOne(other);
            return some.join(u'\n').toStdString();
        };
        SCOPED_TRACE(keywords.join(u" | "_s).toStdString() + " in " + std::to_string(condition.scope) +
                     " by " + std::to_string(condition.method));
        EXPECT_EQ(without(found, wanted), "") << "found only by the search";
        EXPECT_EQ(without(wanted, found), "") << "found only by the scan";
        matched += entries->empty() ? 0 : 1;
    }
    // Most pieces begin or end within a word and must find nothing.
    EXPECT_GT(matched, 200U);
}

}  // namespace
}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/import_job.h"
#include "backend/import/mapping.h"
#include "backend/import/plain_text.h"
#include "tests/backend/import/read_all.h"
#include "tests/backend/import/recording_sink.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <gtest/gtest.h>
#include <set>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

// Real files of the formats; the folder is given by the environment and may be missing.
class RealNews : public testing::Test {
protected:
    void SetUp() override {
        root = qEnvironmentVariable("WIREPANE_TEST_NEWS");
        if (root.isEmpty() || !QFileInfo(root).isDir())
            GTEST_SKIP() << "no real news: WIREPANE_TEST_NEWS names no folder";
    }

    QStringList files(const QString& folder, const QString& pattern) const {
        QStringList found;
        QDirIterator all(root + u'/' + folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext())
            found += all.next();
        found.sort();
        EXPECT_FALSE(found.isEmpty()) << qPrintable(folder);
        return found;
    }

    QString root;
};

TEST_F(RealNews, TheWireIsTakenInWhole) {
    RecordingSink sink;
    ImportJob job(files(u"wire"_s, u"*.jsonl"_s), sink);
    QStringList reasons;
    job.onRejection([&reasons](const ImportRejection& one) { reasons += sentence(one.rejection.reason); });
    const ImportReport report = job.run();
    EXPECT_EQ(report.filesRejected, 0);
    EXPECT_EQ(report.totals.takenIn + report.totals.rejected, 10'000);
    EXPECT_EQ(report.totals.takenIn, qint64(sink.stored.news.size()));
    // Those without headline are without text as well.
    reasons.removeAll(u"The record has no title and no text to make one from."_s);
    EXPECT_TRUE(reasons.isEmpty()) << qPrintable(reasons.join(u'\n'));
    EXPECT_EQ(report.totals.rejected, 51);
    const NewsItem& first = sink.stored.news.at(u"urn:wire:1"_s);
    EXPECT_EQ(first.title, u"BAHIA COCOA REVIEW");
    EXPECT_TRUE(first.story->startsWith(u"Showers continued throughout the week in the Bahia cocoa zone, "));
    EXPECT_EQ(first.story->count(u"@@@@"), 17);
    for (const auto& [identity, item] : sink.stored.news)
        EXPECT_FALSE(item.title.contains(u'\n') || item.story.value_or(QString()).contains(u'\n'));
}

bool lacksTitleOrTime(const QString& complaints) {
    return complaints.contains(u"has no title") || complaints.contains(u"has no time");
}

TEST_F(RealNews, NinjsExamplesAreTakenUnlessTheyLackTitleOrTime) {
    for (const QString& path : files(u"ninjs/examples"_s, u"*.json"_s)) {
        const auto out = readAll(bytesOf(path));
        const bool isSchema = path.endsWith(u"extension-schema.json");
        EXPECT_EQ(out.refusal.isEmpty(), !isSchema) << qPrintable(path + out.refusal);
        for (const ReadOut::Rejected& rejection : out.rejections)
            EXPECT_TRUE(lacksTitleOrTime(rejection.reason)) << qPrintable(path + rejection.reason);
        EXPECT_EQ(out.items.empty(), isSchema || !out.rejections.empty()) << qPrintable(path);
    }
}

TEST_F(RealNews, TheNinjsSuiteIsTakenOrRejectedAsItSays) {
    int taken = 0;
    for (const QString& path : files(u"ninjs/validation"_s, u"*.json"_s)) {
        const auto out = readAll(bytesOf(path));
        taken += int(out.items.size());
        const bool heldBack =
            path.contains(u"_withheld") || path.contains(u"_canceled") || path.contains(u"_embargoed");
        EXPECT_TRUE(path.contains(u"should_fail") || !out.items.empty() || heldBack ||
                    lacksTitleOrTime(out.complaints()))
            << qPrintable(path + out.complaints());
    }
    EXPECT_GT(taken, 3);
    const std::set<QString> checked{
        u"001_no_uri_declared"_s,     u"005_profile_must_be_string"_s, u"006_version_must_be_string"_s,
        u"007_pubstatus_cancelled"_s, u"008_usageterms_object"_s,      u"010_body_must_be_string"_s,
        u"001_title_as_number"_s,     u"002_firstcreated_bad_type"_s,  u"003_ednote_bad_type"_s,
        u"005_pubstatus_replaced"_s,  u"012_location_not_object"_s};
    std::size_t seen = 0;
    for (const QString& path : files(u"ninjs/validation"_s, u"*.json"_s)) {
        if (!path.contains(u"should_fail") || !checked.contains(QFileInfo(path).completeBaseName()))
            continue;
        ++seen;
        const auto out = readAll(bytesOf(path));
        EXPECT_TRUE(out.items.empty()) << qPrintable(path);
        EXPECT_FALSE(lacksTitleOrTime(out.complaints())) << qPrintable(path + out.complaints());
    }
    EXPECT_EQ(seen, checked.size());
}

// The value that a file's leading comment expects of its first entry.
QString expectation(const QByteArray& source, const QString& property) {
    const QRegularExpression form(
        u"Expect:[^\\n]*entries\\[0\\]\\['%1'\\] == '?(.*?)'?\\s*\\n"_s.arg(property));
    return form.match(QString::fromUtf8(source)).captured(1);
}

// Most files of the collection hold a single element; what an entry needs besides is put in.
QByteArray completed(QByteArray source, const QByteArray& missing) {
    for (const QByteArray& start :
         std::vector<QByteArray>{"<item>", "<entry>", "<item rdf:about=\"http://example.com/1\">"})
        source.replace(start, start + missing);
    return source;
}

TEST_F(RealNews, FeedTitlesAreAsTheirFilesSay) {
    int compared = 0;
    for (const QString& path : files(u"feeds"_s, u"*.xml"_s)) {
        const QByteArray source = bytesOf(path);
        const QString expected = expectation(source, u"title"_s);
        if (expected.isEmpty() || path.contains(u"/cdf/"))
            continue;
        const bool isAtom = path.contains(u"/atom");
        const auto out =
            readAll(completed(source, isAtom ? "<updated>2004-01-01</updated>" : "<pubDate>2004</pubDate>"));
        ASSERT_EQ(out.items.size(), 1U) << qPrintable(path + out.complaints() + out.refusal);
        const QString text = path.contains(u"text_plain") ? expected : plainText(expected);
        EXPECT_EQ(out.news().title, text) << qPrintable(path);
        ++compared;
    }
    EXPECT_EQ(compared, 22);
}

TEST_F(RealNews, FeedTimesAreAsTheirFilesSay) {
    int compared = 0;
    for (const QString& path : files(u"feeds"_s, u"*.xml"_s)) {
        const QByteArray source = bytesOf(path);
        for (const QString& property : {u"published_parsed"_s, u"updated_parsed"_s, u"created_parsed"_s}) {
            const QStringList parts = expectation(source, property).remove(u'(').remove(u')').split(u", "_s);
            // Of an element that is there twice the first counts here, the last there.
            const bool isTwice = path.contains(u"multiple_values") || path.contains(u"overwriting");
            if (parts.size() < 6 || isTwice || path.contains(u"/cdf/"))
                continue;
            const QDateTime expected(QDate(parts[0].toInt(), parts[1].toInt(), parts[2].toInt()),
                                     QTime(parts[3].toInt(), parts[4].toInt(), parts[5].toInt()), Qt::UTC);
            const auto out = readAll(completed(source, "<title>T</title>"));
            ASSERT_EQ(out.items.size(), 1U) << qPrintable(path + out.complaints());
            EXPECT_EQ(out.news().time, expected.toSecsSinceEpoch()) << qPrintable(path);
            ++compared;
        }
    }
    EXPECT_EQ(compared, 10);
}

TEST_F(RealNews, EveryFeedFileComesToAnEnd) {
    for (const QString& path : files(u"feeds"_s, u"*.xml"_s)) {
        const auto out = readAll(bytesOf(path));
        const bool broken = path.contains(u"rss_incomplete_cdata");
        EXPECT_FALSE(broken && out.rejections.empty() && out.refusal.isEmpty());
    }
}

// Every file of the format: its items are news, or say why they are not. Most of the small files have no
// headline.
TEST_F(RealNews, EveryNewsmlItemIsNewsOrSaysWhyNot) {
    std::map<QString, QString> titles;
    QStringList others;
    for (const QString& path : files(u"newsml_g2"_s, u"*.xml"_s)) {
        const auto out = readAll(bytesOf(path));
        for (std::size_t i = 0; i < out.items.size(); ++i)
            titles[out.news(i).identity] = out.news(i).title;
        EXPECT_TRUE(!out.items.empty() || !out.rejections.empty() || !out.refusal.isEmpty())
            << qPrintable(path);
        for (const ReadOut::Rejected& rejection : out.rejections) {
            if (!rejection.reason.contains(u"not a news item") && !rejection.reason.contains(u"no headline"))
                others += path + rejection.reason;
        }
    }
    EXPECT_TRUE(others.isEmpty()) << qPrintable(others.join(u'\n'));
    EXPECT_EQ(titles.size(), 10U);
    EXPECT_EQ(titles[u"urn:newsml:acmenews.com:20161121:US-FINANCE-FED"_s],
              u"Fed to halt QE to avert \"bubble\"");
    EXPECT_EQ(titles[u"tag:gettyimages.com,2010:GYI0062134533"_s],
              u"Variety Of Recessionary Forces Leave Las Vegas Economy Scarred");
}

ReadOptions mappedBy(const QString& name) {
    ReadOptions options;
    const Result<Mapping> mapping = Mapping::load(QStringLiteral(WIREPANE_MAPPINGS) + u'/' + name);
    EXPECT_TRUE(mapping) << (mapping ? "" : qPrintable(sentence(mapping.error())));
    if (mapping)
        options.mapping = std::make_shared<const Mapping>(mapping.value());
    return options;
}

TEST_F(RealNews, AnnouncementsAreTakenOnceEach) {
    RecordingSink sink;
    ImportJob job(files(u"announcements"_s, u"*.json"_s), sink, mappedBy(u"exchange_announcements.json"_s));
    QStringList faults;
    job.onRejection([&faults](const ImportRejection& one) { faults += sentence(one.rejection.reason); });
    const ImportReport report = job.run();
    EXPECT_EQ(report.filesRejected, 2);
    EXPECT_EQ(faults.filter(u"The file is a page of markup, not a table"_s).size(), 2);
    EXPECT_EQ(faults.size(), 2) << qPrintable(faults.join(u'\n'));
    EXPECT_EQ(report.totals.takenIn, 6809);
    EXPECT_EQ(report.totals.alreadyThere, 113);
    const QRegularExpression columns(u"\\S[ \u3000]{3,}\\S"_s);
    int tables = 0;
    bool isRowThere = false;
    for (const auto& [identity, item] : sink.stored.news) {
        EXPECT_FALSE(item.title.contains(u'\n') || item.title.contains(u"&#"_s)) << qPrintable(item.title);
        EXPECT_TRUE(item.story && item.related.size() == 1);
        // The snapshots are of three months.
        EXPECT_TRUE(item.time > 1764000000 && item.time < 1773000000) << item.time;
        const QStringList paragraphs = item.story->split(u"@@@@"_s);
        tables += paragraphs.filter(columns).size() > 1 ? 1 : 0;
        isRowThere =
            isRowThere ||
            paragraphs.contains(u"營業收入   285.18     20.16%       912.80     13.29%         3,143.03"_s);
    }
    EXPECT_EQ(tables, 328);
    EXPECT_TRUE(isRowThere);
    EXPECT_EQ(job.run().totals.takenIn, 0);
}

TEST_F(RealNews, ArticlesOfATableAreWhole) {
    RecordingSink sink;
    ImportJob job(files(u"wikinews/data"_s, u"*.csv"_s), sink, mappedBy(u"articles.json"_s));
    EXPECT_EQ(job.run().totals.takenIn, 295);
    qsizetype longest = 0;
    for (const auto& [identity, item] : sink.stored.news)
        longest = std::max(longest, item.story.value_or(QString()).size());
    EXPECT_GT(longest, 100'000);
}

TEST_F(RealNews, SymbolListsAreWhole) {
    RecordingSink sink;
    ImportJob job(files(u"symbols"_s, u"*.csv"_s), sink);
    QStringList rejections;
    job.onRejection(
        [&](const ImportRejection& one) { rejections += one.file + sentence(one.rejection.reason); });
    const ImportReport report = job.run();
    EXPECT_TRUE(rejections.isEmpty()) << qPrintable(rejections.join(u'\n'));
    std::map<int, int> perMarket;
    std::set<QString> american;
    for (const StoreItem& item : sink.stored.others) {
        const auto& symbol = std::get<SymbolItem>(item);
        ++perMarket[symbol.market];
        if (symbol.market == 1)
            american.insert(symbol.code);
    }
    EXPECT_EQ(perMarket, (std::map<int, int>{{1, 5569}, {16, 992}, {122, 813}}));
    EXPECT_TRUE(american.contains(u"NA"_s));
    EXPECT_EQ(report.totals.takenIn, 5569 + 992 + 813);
}

}  // namespace
}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/publish_sink.h"

#include "backend/store/copy_rule.h"
#include "backend/store/store_file.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/wire/played_wire.h"
#include "wire/wire_batch.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr auto allNews =
    "SELECT service, identity, time, sequence, day, category, version, received, title FROM headlines ORDER "
    "BY service, identity";
constexpr auto allElse =
    "SELECT 'c', service, categories.id, name, colour FROM service_categories JOIN categories ON "
    "categories.id = category "
    "UNION ALL SELECT 's', market, code, name, category FROM symbols "
    "UNION ALL SELECT 'r', headlines.identity, market, code, related_symbols.position FROM related_symbols "
    "JOIN headlines ON id = headline "
    "UNION ALL SELECT 't', headlines.identity, unpacked(text, headline), '', '' FROM stories JOIN headlines "
    "ON id = headline "
    "UNION ALL SELECT 'w', headlines.identity, moment, reason, '' FROM withdrawals JOIN headlines ON id = "
    "headline "
    "UNION ALL SELECT 'v', headlines.identity, versions.time, versions.title, versions.received FROM "
    "versions JOIN headlines ON id = headline "
    "ORDER BY 1, 2, 3, 4";

class PublishSinkTest : public StoreFixture {
protected:
    // In a transaction of their own; false: it has failed.
    bool publish(PublishSink& sink, const std::vector<StoreItem>& items) {
        if (!sink.begin())
            return false;
        for (const StoreItem& item : items) {
            const Result<TakeOutcome> taken = sink.take(item);
            EXPECT_TRUE(taken);
            taken ? outcomes.push_back(taken.value().take) : void();
        }
        if (sink.keepPosition(u"desk"_s, QString::number(++position)) && sink.commit())
            return true;
        sink.rollback();
        return false;
    }
    std::unique_ptr<Database> openAnother(const QString& name) {
        auto opened = openStore(pathOf(name));
        EXPECT_TRUE(opened);
        return opened ? std::move(opened.value()) : nullptr;
    }
    // Takes all rows of the wire into a store, as a terminal does.
    void follow(Database& copy) {
        StoreWriter target(copy);
        WirePosition behind;
        bool isMore = true;
        while (isMore) {
            const WirePage page = wire.pageAfter(behind.sequence()).value();
            isMore = !page.rows.empty();
            ASSERT_TRUE(behind.follow(page));
            WireBatch batch(page.rows, behind.text());
            const auto taken = takeBatch(batch, wirePosition, target);
            ASSERT_TRUE(taken);
            ASSERT_FALSE(taken.value().fault) << sentence(*taken.value().fault).toStdString();
        }
    }

    PlayedWire wire;
    std::vector<Take> outcomes;
    int position = 0;
};

NewsItem changed(NewsItem item, int version, const QString& title) {
    item.version = version;
    item.title = title;
    return item;
}

}  // namespace

TEST_F(PublishSinkTest, WhoFollowsHoldsWhatWasDecidedWhateverItWas) {
    PublishSink sink(*store, wire);
    NewsItem first = newsItem(16, u"a"_s, at(9, 0), u"First"_s);
    first.category = u"Companies, large"_s;
    first.related = {{16, u"2330"_s}, {16, u"2317"_s}};
    NewsItem awaited = newsItem(52, u"b"_s, at(9, 1), u"Awaited"_s);
    awaited.story.reset();
    NewsItem told = awaited;
    told.story = u"A story of more words. "_s.repeated(40);
    NewsItem taken = newsItem(16, u"a"_s, at(9, 30), QString());
    taken.version = 3;
    taken.withdrawn = u"wrong"_s;
    ASSERT_TRUE(publish(sink, {first, awaited, SymbolItem{16, u"2330"_s, u"Chip"_s},
                               CategoryItem{16, 9, u"Metals"_s, u"#112233"_s}}));
    ASSERT_TRUE(publish(sink, {changed(first, 1, u"First, corrected"_s), told,
                               newsItem(16, u"c"_s, at(9, 2) - 86400 * 40, u"Old"_s)}));
    ASSERT_TRUE(publish(sink, {taken, first, told}));
    EXPECT_EQ(std::count(outcomes.begin(), outcomes.end(), Take::AlreadyThere), 2);
    const auto copy = openAnother(u"copy"_s);
    follow(*copy);
    EXPECT_EQ(rowsOf(*copy, allNews), rowsOf(*store, allNews));
    EXPECT_EQ(rowsOf(*copy, allElse), rowsOf(*store, allElse));
    EXPECT_EQ(NewsDigest(*copy).ofDays(), NewsDigest(*store).ofDays());
    EXPECT_EQ(rowsOf(*copy, allNews).size(), 3);
}

TEST_F(PublishSinkTest, ALostAnswerLosesAndDoublesNothing) {
    PublishSink sink(*store, wire);
    const std::vector<StoreItem> items{newsItem(16, u"a"_s, at(9, 0), u"One"_s),
                                       newsItem(16, u"b"_s, at(9, 1), u"Two"_s)};
    std::size_t rowsWanted = 0;
    for (const auto lost : {PlayedWire::Answer::LostBeforeCommit, PlayedWire::Answer::LostAfterCommit}) {
        std::vector<StoreItem> named;
        for (const StoreItem& item : items) {
            named.push_back(item);
            std::get<NewsItem>(named.back()).identity += QString::number(int(lost));
        }
        wire.nextAnswer = lost;
        EXPECT_FALSE(publish(sink, named));
        EXPECT_TRUE(publish(sink, named));
        rowsWanted += named.size();
        EXPECT_EQ(wire.rows.size(), rowsWanted);
        const auto copy = openAnother(u"copy%1"_s.arg(int(lost)));
        follow(*copy);
        EXPECT_EQ(rowsOf(*copy, allNews), rowsOf(*store, allNews));
    }
}

TEST_F(PublishSinkTest, AnIngestPointBeginsWithWhatOthersHaveAppended) {
    PublishSink one(*store, wire);
    const auto second = openAnother(u"second"_s);
    PublishSink two(*second, wire);
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(publish(one, {newsItem(16, u"one:%1"_s.arg(i), at(9, i), u"By one"_s)}));
        EXPECT_TRUE(publish(two, {newsItem(16, u"two:%1"_s.arg(i), at(9, i), u"By two"_s),
                                  newsItem(16, u"one:%1"_s.arg(i), at(9, i), u"By one"_s)}));
    }
    EXPECT_EQ(wire.rows.size(), 10U);
    EXPECT_TRUE(publish(one, {}));
    EXPECT_EQ(rowsOf(*second, allNews), rowsOf(*store, allNews));
}

TEST_F(PublishSinkTest, AStoreHasNewsOfItsOwnOrOfAWire) {
    ASSERT_EQ(take(newsItem(16, u"own"_s, at(9, 0), u"Own"_s)), Take::TakenIn);
    PublishSink sink(*store, wire);
    EXPECT_FALSE(publish(sink, {newsItem(16, u"a"_s, at(9, 0), u"One"_s)}));
    EXPECT_EQ(take(newsItem(16, u"own:2"_s, at(9, 0), u"Own"_s)), Take::TakenIn);
    const auto copy = openAnother(u"copy"_s);
    PublishSink another(*copy, wire);
    ASSERT_TRUE(publish(another, {newsItem(16, u"a"_s, at(9, 0), u"One"_s)}));
    StoreWriter importer(*copy);
    ASSERT_TRUE(importer.begin());
    EXPECT_EQ(importer.take(newsItem(16, u"own"_s, at(9, 0), u"Own"_s)).value().take, Take::Rejected);
}

}  // namespace wirepane

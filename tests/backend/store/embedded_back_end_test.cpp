// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"

#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "tests/backend/store/listener.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/backend/store/take_all.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class EmbeddedBackEndTest : public StoreFixture {
public:
    EmbeddedBackEndTest() : backEnd(connectionsTo(store->path())) {
        host_clock::startAt(at(12, 0));
        backEnd.attach(&listener);
    }
    ~EmbeddedBackEndTest() override { backEnd.detach(&listener); }

protected:
    Take takeIn(const StoreItem& item) {
        const Result<TakeOutcome> outcome = backEnd.takeIn(item);
        EXPECT_TRUE(outcome);
        return outcome ? outcome.value().take : Take::Rejected;
    }
    // The titles of a table, in its order.
    QStringList titles(unsigned char service, const std::vector<CHeadlineTable>& table) {
        std::vector<CHeadline> headlines;
        backEnd.BKQNEWS_iGetHeadline(service, headlines, table);
        QStringList found;
        for (const CHeadline& headline : headlines)
            found += headline.title;
        return found;
    }
    QStringList byKey(unsigned char service, int kind, const QString& key) {
        std::vector<CHeadlineTable> table;
        const int count = backEnd.BKQNEWS_iGetHeadlineTable(service, table, kind, key);
        EXPECT_EQ(count, static_cast<int>(table.size()));
        return titles(service, table);
    }
    QStringList bySymbol(unsigned char service, const CSymbolInfo& symbol) {
        std::vector<CHeadlineTable> table;
        const int count = backEnd.BKQNEWS_iGetHeadlineTable(table, service, symbol);
        EXPECT_EQ(count, static_cast<int>(table.size()));
        return titles(service, table);
    }

    EmbeddedBackEnd backEnd;
    Listener listener;
};

TEST_F(EmbeddedBackEndTest, TablesComeNewestFirstWithinTheirRange) {
    const auto put = [&](unsigned char service, const QString& title, std::int64_t time,
                         std::vector<CSymbolInfo> related, std::int32_t category) {
        NewsItem item = newsItem(service, title, time, title);
        item.related = std::move(related);
        item.categoryId = category;
        takeIn(item);
    };
    constexpr std::int64_t day = 86400;
    put(1, u"noon"_s, at(11, 59), {{16, u"6214"_s}, {0, u"6214"_s}}, 2);
    put(1, u"open"_s, at(9, 0), {{0, u"6214"_s}}, 2);
    put(1, u"open, later number"_s, at(9, 0), {{22, u"6214"_s}}, 1);
    put(1, u"yesterday"_s, at(9, 0) - day, {{16, u"6214"_s}}, 2);
    put(1, u"255 days ago"_s, at(0, 0) - 255 * day, {{16, u"6214"_s}}, 2);
    put(1, u"256 days ago"_s, at(23, 59) - 256 * day, {{16, u"6214"_s}}, 2);
    put(1, u"tomorrow"_s, at(0, 0) + day, {{16, u"6214"_s}}, 2);
    put(16, u"other service"_s, at(9, 0), {{16, u"6214"_s}}, 2);

    EXPECT_EQ(byKey(1, 0, u"20260302"_s), (QStringList{u"noon"_s, u"open, later number"_s, u"open"_s}));
    EXPECT_EQ(byKey(1, 0, u"20250619"_s), QStringList{u"256 days ago"_s});
    const QStringList inRange{u"tomorrow"_s, u"noon"_s, u"open"_s, u"yesterday"_s, u"255 days ago"_s};
    EXPECT_EQ(byKey(1, 1, u"2"_s), inRange);
    EXPECT_EQ(bySymbol(1, {16, u"6214"_s}), inRange);
    EXPECT_EQ(bySymbol(1, {22, u"6214"_s}), (QStringList{u"noon"_s, u"open, later number"_s, u"open"_s}));
    for (const QString& key : {u"2026030"_s, u"20260230"_s, u"+2026302"_s, QString(), u"SEARCH"_s})
        EXPECT_EQ(byKey(1, 0, key), QStringList{}) << key.toStdString();
    EXPECT_EQ(byKey(1, 1, u"x"_s), QStringList{});
    EXPECT_EQ(byKey(1, 3, u"SEARCH"_s), QStringList{});
    EXPECT_EQ(byKey(99, 0, u"20260302"_s), QStringList{});
    EXPECT_EQ(bySymbol(1, {16, QString()}), QStringList{});
    EXPECT_EQ(backEnd.BKQNEWS_cszGetCurrDateByService(1), u"20260302"_s);
}

TEST_F(EmbeddedBackEndTest, KnowsTheNewestOfAllServicesAtThePresentMoment) {
    EXPECT_EQ(backEnd.newestTime(), 0);
    takeIn(newsItem(16, u"a"_s, at(12, 0), u"a"_s));
    takeIn(newsItem(1, u"b"_s, at(9, 0), u"b"_s));
    takeIn(newsItem(1, u"c"_s, at(12, 1), u"dated ahead"_s));
    EXPECT_EQ(backEnd.newestTime(), at(12, 0));
    EXPECT_TRUE(backEnd.hasNewsOn(1, QDate(2026, 3, 2)));
    EXPECT_FALSE(backEnd.hasNewsOn(1, QDate(2026, 3, 1)));
}

TEST_F(EmbeddedBackEndTest, HeadlinesComeInTheOrderAskedForAndOnlyOfTheService) {
    takeIn(newsItem(1, u"a"_s, at(9, 0), u"A"_s));
    takeIn(newsItem(1, u"b"_s, at(9, 1), u"B"_s));
    takeIn(newsItem(2, u"c"_s, at(9, 0), u"C"_s));
    const std::vector<CHeadlineTable> asked{{at(9, 1), 2, 1, 0, 0},
                                            {at(9, 0), 1, 2, 0, 0},
                                            {at(9, 5), 9, 1, 0, 0},
                                            {at(9, 0), 1, 1, 0, 0},
                                            {at(9, 1), 2, 1, 0, 0}};
    EXPECT_EQ(titles(1, asked), (QStringList{u"B"_s, u"A"_s, u"B"_s}));
    // What another program writes shows as soon as it is told, also in what was looked up before.
    NewsItem again = newsItem(1, u"b"_s, at(9, 1), u"B, corrected"_s);
    again.version = 1;
    takeNews(again);
    EXPECT_EQ(titles(1, asked), (QStringList{u"B"_s, u"A"_s, u"B"_s}));
    backEnd.checkForNews();
    EXPECT_EQ(titles(1, asked), (QStringList{u"B, corrected"_s, u"A"_s, u"B, corrected"_s}));
}

TEST_F(EmbeddedBackEndTest, ReceiversAreToldOfWhatChangedAndOfNothingElse) {
    NewsItem item = newsItem(16, u"x"_s, at(11, 0), u"Plant%1 shut"_s.arg(QChar(0xD800)));
    item.category = u"Companies"_s;
    item.related = {{16, u"6214"_s}, {16, u"1101"_s}};
    EXPECT_EQ(takeIn(item), Take::TakenIn);
    EXPECT_EQ(takeIn(item), Take::AlreadyThere);
    item.story = u"The plant.@@@@It shut."_s;
    EXPECT_EQ(takeIn(item), Take::TakenIn);
    item.version = 1;
    item.title = u"Plant reopened"_s;
    item.time = at(11, 30);
    item.related.clear();
    EXPECT_EQ(takeIn(item), Take::TakenIn);
    EXPECT_EQ(takeIn(newsItem(16, u"y"_s, at(11, 0), {})), Take::Rejected);
    EXPECT_EQ(takeIn(SymbolItem{16, u"6214"_s, u"Sample"_s, 1}), Take::TakenIn);
    EXPECT_EQ(takeIn(SymbolItem{16, u"6214"_s, u"Sample"_s, 1}), Take::AlreadyThere);
    EXPECT_EQ(listener.heard,
              (QStringList{u"headline 16/1 Plant\uFFFD shut [2] 6214"_s, u"story 1"_s,
                           u"headline 16/1 Plant reopened [2] "_s, u"gone 16/1 11:00"_s, u"symbol 6214"_s}));

    const CHeadlineTable moved{at(11, 30), 1, 16, 0, 0};
    CStory story;
    ASSERT_TRUE(backEnd.BKQNEWS_bGetStory(story, moved));
    EXPECT_EQ(story.text, u"The plant.@@@@It shut."_s);
    EXPECT_EQ(keyOf(story.entry), keyOf(moved));
    const CHeadlineTable old{at(11, 0), 1, 16, 0, 0};
    EXPECT_EQ(titles(16, {old, moved}), QStringList{u"Plant reopened"_s});
    story.text = u"kept"_s;
    EXPECT_FALSE(backEnd.BKQNEWS_bGetStory(story, old));
    EXPECT_EQ(story.text, u"kept"_s);

    CNewsSymLst symbols{{{1, u"kept"_s}}};
    EXPECT_FALSE(backEnd.BKNEWS_GetSymbolListBySeqNo(symbols, old));
    EXPECT_EQ(symbols.symbols.size(), 1u);
    EXPECT_TRUE(backEnd.BKNEWS_GetSymbolListBySeqNo(symbols, moved));
    EXPECT_TRUE(symbols.symbols.empty());
}

TEST_F(EmbeddedBackEndTest, ServicesAndCategoriesAreThoseOfTheStore) {
    takeIn(newsItem(77, u"a"_s, at(9, 0), u"A"_s));
    std::vector<unsigned char> services;
    EXPECT_TRUE(backEnd.BKQNEWS_bGetAllNewsService(services));
    EXPECT_EQ(services, (std::vector<unsigned char>{1, 2, 16, 22, 52, 122, 77}));
    QString name = u"kept"_s;
    EXPECT_FALSE(backEnd.BKQNEWS_bGetFullNameByService(name, 99));
    EXPECT_EQ(name, u"kept"_s);
    EXPECT_TRUE(backEnd.BKQNEWS_bGetShortNameByService(name, 16));
    EXPECT_EQ(name, u"Exchange"_s);
    EXPECT_NE(backEnd.BKQCheckAuthSupport(77), 0);
    EXPECT_EQ(backEnd.BKQCheckAuthSupport(99), 0);

    std::vector<QString> ids;
    std::vector<QString> names;
    EXPECT_TRUE(backEnd.bNewsAPI_GetNewsCatId(52, ids, names));
    EXPECT_EQ(ids, (std::vector<QString>{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
    EXPECT_EQ(names, (std::vector<QString>{u"Issue"_s, u"Expiry"_s, u"Adjustment"_s, u"Trading"_s}));
    EXPECT_FALSE(backEnd.bNewsAPI_GetNewsCatId(77, ids, names));
    EXPECT_TRUE(ids.empty() && names.empty());
    EXPECT_TRUE(takeIn(CategoryItem{2, 3, u"Announcements"_s, u"#102030"_s}) == Take::TakenIn);
    EXPECT_EQ(backEnd.category(3)->colour, u"#102030"_s);
    EXPECT_NE(backEnd.category(3, 52)->colour, u"#102030"_s);
    EXPECT_FALSE(backEnd.category(1000).has_value());
}

TEST_F(EmbeddedBackEndTest, RequestsAndRegistrationsAreWrittenDown) {
    byKey(1, 0, u"20260302"_s);
    bySymbol(2, {16, u"6214"_s});
    std::vector<Request> asked = backEnd.takeRequests();
    ASSERT_EQ(asked.size(), 2u);
    EXPECT_EQ(asked[0].arguments, (QVariantList{1, 0, u"20260302"_s}));
    EXPECT_EQ(asked[1].arguments, (QVariantList{2, 16, u"6214"_s}));
    for (int i = 0; i <= 10'000; ++i)
        byKey(1, 1, QString::number(i));
    asked = backEnd.takeRequests();
    ASSERT_EQ(asked.size(), 10'000u);
    EXPECT_EQ(asked.front().arguments.last(), u"1"_s);
    EXPECT_TRUE(backEnd.takeRequests().empty());

    backEnd.registerSymbols(&listener, {{16, {}}, {1, {}}, {2, u"code"_s}}, {});
    backEnd.registerSymbols(&listener, {{52, {}}}, {{1, {}}});
    EXPECT_EQ(backEnd.registeredServices(&listener), (std::vector<unsigned char>{16, 52}));
    backEnd.detach(&listener);
    EXPECT_TRUE(backEnd.registeredServices(&listener).empty());
}

TEST_F(EmbeddedBackEndTest, RequestsAreAnsweredFromTheEventLoop) {
    NewsItem item = newsItem(1, u"a"_s, at(9, 0), u"A"_s);
    item.story = u"Story"_s;
    item.related = {{16, u"6214"_s}};
    item.categoryId = 2;
    takeIn(item);
    const CHeadlineTable entry{at(9, 0), 1, 1, 0, 0};
    listener.heard.clear();
    EXPECT_TRUE(backEnd.BKQNews_bReRequestHeadlineStory(entry));
    EXPECT_TRUE(backEnd.BKQNews_bReRequestHeadlineStory({at(9, 0), 2, 1, 0, 0}));
    EXPECT_TRUE(backEnd.BKNEWS_bReRequestHeadlineTable(1, 0, u"20260302"_s));
    EXPECT_TRUE(backEnd.BKNEWS_bReRequestHeadlineTable(1, 1, u"9"_s));
    EXPECT_TRUE(backEnd.BKNEWS_bReRequestHeadlineTable(1, CSymbolInfo{16, u"6214"_s}));
    EXPECT_FALSE(backEnd.BKNEWS_bReRequestHeadlineTable(1, 3, u"SEARCH"_s));
    std::vector<CHeadline> headlines;
    EXPECT_TRUE(backEnd.BKQNEWS_bReCoverHeadline(1, headlines, {entry}));
    EXPECT_FALSE(backEnd.BKQNEWS_bReCoverHeadline(2, headlines, {entry}));
    EXPECT_TRUE(backEnd.BKQNEWS_bReCoverHeadline(1, headlines, {{at(9, 0), 2, 1, 0, 0}, entry}));
    EXPECT_EQ(headlines.size(), 2u);
    EXPECT_EQ(listener.heard, QStringList{});
    QCoreApplication::processEvents();
    EXPECT_EQ(listener.heard,
              (QStringList{u"story 1"_s, u"story 2"_s, u"date table 1 20260302 0"_s,
                           u"category table 1 9 -1"_s, u"symbol table 1 6214 0"_s, u"1 headlines"_s}))
        << "also what cannot be met";
    QStringList operations;
    for (const Request& request : backEnd.takeRequests())
        operations += request.operation;
    EXPECT_EQ(operations.size(), 9);
    EXPECT_EQ(operations.count(u"BKNEWS_bReRequestHeadlineTable"_s), 4);
}

TEST_F(EmbeddedBackEndTest, ChineseIsConvertedToSimplifiedCharacters) {
    QString out;
    backEnd.LangConvertToSimplifiedChinese(u"台灣證券 新聞 Q1 \U00020000"_s, out);
    EXPECT_EQ(out, u"台湾证券 新闻 Q1 \U00020000"_s);
    EXPECT_FALSE(backEnd.LangIsConvertToSimplified(1));
    backEnd.setConvertsToSimplified(true);
    EXPECT_TRUE(backEnd.LangIsConvertToSimplified(1));
}

TEST_F(EmbeddedBackEndTest, ASearchIsAnsweredPerServiceWithItsTable) {
    takeIn(newsItem(1, u"a"_s, at(9, 0), u"Copper rises"_s));
    takeIn(newsItem(1, u"b"_s, at(9, 1), u"Copper falls"_s));
    takeIn(newsItem(2, u"c"_s, at(9, 2), u"Tin"_s));
    listener.heard.clear();
    CSearch condition;
    condition.keywords = {u"copper"_s};
    const int kind = static_cast<int>(TableKind::Search);
    EXPECT_FALSE(backEnd.BKQNEWS_bSearchNews(1, 0, condition));
    backEnd.setConnected(false);
    backEnd.hold(Held::Search, true);
    EXPECT_TRUE(backEnd.BKQNEWS_bSearchNews(1, kind, condition));
    EXPECT_TRUE(backEnd.BKQNEWS_bSearchNews(2, kind, condition));
    EXPECT_FALSE(QTest::qWaitFor([&] { return !listener.heard.isEmpty(); }, 300));
    EXPECT_EQ(byKey(1, kind, u"SEARCH"_s), QStringList());
    backEnd.hold(Held::Search, false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.heard.size() == 2; }));
    EXPECT_EQ(listener.heard, QStringList({u"search copper 1"_s, u"search copper 2"_s}));
    EXPECT_EQ(byKey(1, kind, u"SEARCH"_s), QStringList({u"Copper falls"_s, u"Copper rises"_s}));
    EXPECT_EQ(byKey(2, kind, u"SEARCH"_s), QStringList());
}

}  // namespace

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/backend/store/take_all.h"

#include <QCoreApplication>
#include <QStringList>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString textOf(const CQuoteMemory& quote) {
    return u"%1:%2 %3 %4 %5"_s.arg(quote.symbol.market)
        .arg(quote.symbol.code)
        .arg(quote.last)
        .arg(quote.change)
        .arg(quote.volume);
}

// Writes down the quotes and related symbols that it is told of.
class QuoteListener : public NewsReceiver {
public:
    void vRecvNewMemory(const CQuoteMemory* quote) override {
        heard += u"new "_s + textOf(*quote);
        if (onNew)
            onNew();
    }
    void vRecvMemoryRecovery(const CQuoteMemory* quote) override { heard += u"known "_s + textOf(*quote); }
    void vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>& quotes) override {
        for (const CQuoteMemory& quote : quotes)
            heard += u"known of many "_s + textOf(quote);
    }
    void RespStory(const CHeadlineTable& entry) override { heard += u"story %1"_s.arg(entry.sequence); }
    void vRecvNewsRelateSymbolListRecovery(const CNewsSymlistInfo* info) override {
        QString text = u"related to %1:"_s.arg(info->headline.sequence);
        for (const CSymbolInfo& symbol : info->list.symbols)
            text += u" %1:%2"_s.arg(symbol.market).arg(symbol.code);
        heard += text;
    }
    // What was heard since the last call, after the event loop has run.
    QStringList take() {
        QCoreApplication::processEvents();
        return std::exchange(heard, {});
    }

    QStringList heard;
    std::function<void()> onNew;
};

const CSymbolInfo first{16, u"2330"_s};
const CSymbolInfo second{22, u"00700"_s};

class QuotesTest : public StoreFixture {
protected:
    QuotesTest() {
        backEnd = std::move(EmbeddedBackEnd::open(pathOf(u"quotes.wirepane"_s)).value());
        backEnd->attach(&listener);
    }
    ~QuotesTest() override { backEnd->detach(&listener); }

    Take put(const CSymbolInfo& symbol, double last, double change, std::int64_t volume) {
        const auto taken = backEnd->takeIn(QuoteItem{symbol.market, symbol.code, last, change, volume});
        EXPECT_TRUE(taken);
        return taken.value().take;
    }

    std::unique_ptr<EmbeddedBackEnd> backEnd;
    QuoteListener listener;
};

TEST_F(QuotesTest, WhoRegistersGetsWhatIsKnownLaterAndThenEveryChange) {
    put(first, 600, 5, 100);
    EXPECT_EQ(listener.take(), QStringList());
    backEnd->registerSymbols(&listener, {first, {16, {}}, {16, u"none"_s}}, {});
    EXPECT_EQ(listener.heard, QStringList()) << "not during the call";
    EXPECT_EQ(listener.take(), QStringList(u"known 16:2330 600 5 100"_s));

    EXPECT_EQ(put(first, 601.5, 6.5, 120), Take::TakenIn);
    EXPECT_EQ(put(first, 601.5, 6.5, 120), Take::AlreadyThere);
    put(second, 300, -2, 7);
    EXPECT_EQ(listener.take(), QStringList(u"new 16:2330 601.5 6.5 120"_s)) << "the service is news alone";

    backEnd->registerSymbols(&listener, {first, second}, {});
    EXPECT_EQ(listener.take(),
              (QStringList{u"known of many 16:2330 601.5 6.5 120"_s, u"known of many 22:00700 300 -2 7"_s}));
    backEnd->registerSymbols(&listener, {}, {first});
    put(first, 1, 0, 1);
    put(second, 301, -1, 8);
    EXPECT_EQ(listener.take(), QStringList(u"new 22:00700 301 -1 8"_s));
    backEnd->registerSymbols(&listener, {first}, {});
    backEnd->unregisterSymbols(&listener);
    put(second, 302, 0, 9);
    EXPECT_EQ(listener.take(), QStringList()) << "nor what it asked for before it left";
}

TEST_F(QuotesTest, AReceiverThatLeavesWhileOthersAreToldIsNotToldAnyMore) {
    QuoteListener other;
    backEnd->attach(&other);
    for (QuoteListener* receiver : {&listener, &other})
        backEnd->registerSymbols(receiver, {first}, {});
    QCoreApplication::processEvents();
    listener.onNew = [&] { backEnd->detach(&other); };
    put(first, 10, 1, 1);
    EXPECT_EQ(listener.take().size(), 1);
    EXPECT_EQ(other.take(), QStringList());
}

TEST_F(QuotesTest, AReceiverThatTakesQuotesInHearsThemInTheirOrder) {
    backEnd->registerSymbols(&listener, {first, second}, {});
    QCoreApplication::processEvents();
    listener.onNew = [&] {
        listener.onNew = nullptr;
        put(second, 9, 0, 9);
    };
    ASSERT_TRUE(takeAll<QuoteItem>(
        *backEnd, {{first.market, first.code, 1, 0, 1}, {second.market, second.code, 2, 0, 2}}));
    EXPECT_EQ(listener.take(),
              (QStringList{u"new 16:2330 1 0 1"_s, u"new 22:00700 2 0 2"_s, u"new 22:00700 9 0 9"_s}));
}

TEST_F(QuotesTest, ABreakAndOtherProgramsLoseNoQuote) {
    backEnd->registerSymbols(&listener, {first, second}, {});
    QCoreApplication::processEvents();
    backEnd->setConnected(false);
    put(first, 10, 1, 1);
    put(first, 11, 2, 2);
    backEnd->checkForNews();
    EXPECT_EQ(listener.take(), QStringList());
    backEnd->setConnected(true);
    EXPECT_EQ(listener.take(), QStringList(u"new 16:2330 11 2 2"_s)) << "the last one alone";

    const auto other = EmbeddedBackEnd::open(pathOf(u"quotes.wirepane"_s));
    ASSERT_TRUE(other);
    ASSERT_TRUE(other.value()->takeIn(QuoteItem{second.market, second.code, 5, -1, 3}));
    EXPECT_EQ(listener.take(), QStringList());
    backEnd->checkForNews();
    EXPECT_EQ(listener.take(), QStringList(u"new 22:00700 5 -1 3"_s));
}

TEST_F(QuotesTest, NaNAndNumbersOutOfRangeAreRejected) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double endless = std::numeric_limits<double>::infinity();
    put(first, 10, 1, 1);
    const QuoteItem bad[] = {
        {16, u"2330"_s, nan, 0, 0},
        {16, u"2330"_s, endless, 0, 0},
        {16, u"2330"_s, -1, -2, 0},
        {16, u"2330"_s, 1e13, 0, 0},
        {16, u"2330"_s, 10, nan, 0},
        {16, u"2330"_s, 10, -endless, 0},
        {16, u"2330"_s, 10, 10.5, 0},
        {16, u"2330"_s, 10, 1, -1},
        {16, u"2330"_s, 10, 1, mostVolume + 1},
        {0, u"2330"_s, 10, 1, 0},
        {16, {}, 10, 1, 0},
        {16, QString(65, u'1'), 10, 1, 0},
    };
    for (const QuoteItem& item : bad) {
        const auto taken = backEnd->takeIn(item);
        ASSERT_TRUE(taken);
        EXPECT_EQ(taken.value().take, Take::Rejected) << item.last << ' ' << item.change;
        EXPECT_FALSE(sentence(taken.value().reason.value()).isEmpty());
    }
    EXPECT_EQ(put({1, u"free"_s}, 0, 0, 0), Take::TakenIn) << "worth nothing, but a quote";
    backEnd->registerSymbols(&listener, {first}, {});
    EXPECT_EQ(listener.take(), QStringList(u"known 16:2330 10 1 1"_s));
}

TEST_F(QuotesTest, RelatedSymbolsAreSentWithAStoryThatIsAskedForAgainOrComesLate) {
    NewsItem item;
    item.service = 1;
    item.identity = u"x:1"_s;
    item.time = 1772413200;
    item.title = u"Title"_s;
    item.sequence = 4;
    item.related = {{16, u"2330"_s}, {0, u"X"_s}};
    ASSERT_TRUE(backEnd->takeIn(item));
    ASSERT_TRUE(backEnd->takeStory({item.time, 4, 1}, u"Story"_s));
    const QStringList both{u"story 4"_s, u"related to 4: 16:2330 0:X"_s};
    EXPECT_EQ(listener.take(), both);
    ASSERT_TRUE(backEnd->BKQNews_bReRequestHeadlineStory({item.time, 4, 1, 0, 0}));
    EXPECT_EQ(listener.take(), both);
}

}  // namespace

}  // namespace wirepane

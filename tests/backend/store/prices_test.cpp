// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"
#include "backend/store/limits.h"
#include "backend/store/packed_prices.h"
#include "host/contract/clock.h"
#include "tests/backend/store/store_fixture.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cmath>
#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

CSymbolInfo share(const QString& code) {
    return {22, code};
}

std::string shown(const std::optional<PriceSince>& since) {
    if (!since)
        return "unknown";
    return u"%1 %2 %3"_s.arg(since->then).arg(since->now).arg(since->farthest).toStdString();
}

// The last price of each minute, as a list that is gone through from its beginning for each question.
class PlainPrices {
public:
    void put(std::int64_t moment, double price) { ofMinute[moment - moment % 60] = price; }
    std::optional<PriceSince> since(std::int64_t moment) const {
        std::optional<PriceSince> found;
        for (const auto& [minute, price] : ofMinute) {
            if (minute + 60 <= moment)
                found = PriceSince{price, price, price};
        }
        for (const auto& [minute, price] : ofMinute) {
            if (!found || minute + 60 <= moment)
                continue;
            found->now = price;
            if (std::abs(price - found->then) > std::abs(found->farthest - found->then))
                found->farthest = price;
        }
        return found;
    }

private:
    std::map<std::int64_t, double> ofMinute;
};

class PricesTest : public StoreFixture {
protected:
    PricesTest() {
        backEnd = std::move(EmbeddedBackEnd::open(pathOf(u"prices.wirepane"_s)).value());
        QCoreApplication::processEvents();
    }
    ~PricesTest() override { host_clock::startAt(QDateTime::currentSecsSinceEpoch()); }

    void put(std::int64_t moment, const CSymbolInfo& symbol, double price, std::int64_t volume = 0) {
        host_clock::startAt(moment);
        ASSERT_TRUE(backEnd->takeIn(QuoteItem{symbol.market, symbol.code, price, 0, volume}));
    }
    HeadlineKey publish(std::int64_t moment, const QString& code) {
        NewsItem item = newsItem(1, u"%1"_s.arg(++published), moment, u"Title"_s);
        if (!code.isEmpty())
            item.related = {share(code), share(u"other"_s)};
        item.sequence = published;
        EXPECT_TRUE(backEnd->takeIn(item));
        return {moment, published, 1};
    }

    std::unique_ptr<EmbeddedBackEnd> backEnd;
    int published = 0;
};

TEST_F(PricesTest, SinceAHeadlineAreThoseOfTheMinutesThatHadEnded) {
    const std::int64_t nine = at(9, 0);
    put(nine, share(u"1"_s), 10);
    put(nine + 50, share(u"1"_s), 11);
    const HeadlineKey inTheMinute = publish(nine + 55, u"1"_s);
    const HeadlineKey behind = publish(nine + 60, u"1"_s);
    const HeadlineKey ofNobody = publish(nine + 60, {});
    EXPECT_EQ(shown(backEnd->priceSince(inTheMinute)), "unknown");
    EXPECT_EQ(shown(backEnd->priceSince(behind)), "11 11 11");
    EXPECT_EQ(shown(backEnd->priceSince(ofNobody)), "unknown");
    const std::int64_t before = backEnd->priceChanges();
    put(nine + 130, share(u"1"_s), 8.5);
    EXPECT_NE(backEnd->priceChanges(), before);
    EXPECT_EQ(shown(backEnd->priceSince(behind)), "11 8.5 8.5");
    put(nine + 200, share(u"1"_s), 12);
    EXPECT_EQ(shown(backEnd->priceSince(behind)), "11 12 8.5");
    // Another day, on which the last price of the day before holds until the first of its own.
    const HeadlineKey nextDay = publish(nine + secondsOfDay, u"1"_s);
    EXPECT_EQ(shown(backEnd->priceSince(nextDay)), "12 12 12");
    put(nine + secondsOfDay + 60, share(u"1"_s), 20);
    EXPECT_EQ(shown(backEnd->priceSince(nextDay)), "12 20 20");
    EXPECT_EQ(shown(backEnd->priceSince(behind)), "11 20 20");

    EXPECT_EQ(backEnd->pricesOf(share(u"1"_s), nine, nine + 180),
              (std::vector<MinutePrice>{{nine, 11}, {nine + 120, 8.5}}));
    EXPECT_EQ(backEnd->pricesOf(share(u"1"_s), nine + 180, nine + 2 * secondsOfDay),
              (std::vector<MinutePrice>{{nine + 180, 12}, {nine + secondsOfDay + 60, 20}}));
}

TEST_F(PricesTest, AgreeWithAListOfAllQuotes) {
    std::mt19937 random(23);
    std::map<QString, PlainPrices> plain;
    std::vector<std::pair<HeadlineKey, QString>> headlines;
    std::int64_t moment = at(9, 30);
    for (int step = 0; step < 1500; ++step) {
        // Mostly seconds, at times hours, so that days and the nights between them are crossed.
        moment += random() % 40 == 0 ? random() % 40'000 : random() % 70;
        const QString code = QString::number(random() % 4);
        if (random() % 8 == 0) {
            headlines.emplace_back(publish(moment, code), code);
            continue;
        }
        // Of two, three and five decimals.
        const double scale = code == u"0"_s ? 1e5 : code == u"1"_s ? 1e3 : 1e2;
        const double price =
            std::round((50 + static_cast<double>(random() % 4000) / 100) * scale + 1) / scale;
        put(moment, share(code), price, step);
        plain[code].put(moment, price);
    }
    const auto compare = [&] {
        int known = 0;
        for (const auto& [key, code] : headlines) {
            const std::optional<PriceSince> expected = plain[code].since(key.time);
            EXPECT_EQ(shown(backEnd->priceSince(key)), shown(expected)) << key.time;
            known += expected ? 1 : 0;
        }
        EXPECT_GT(known, 100);
    };
    compare();
    backEnd.reset();
    backEnd = std::move(EmbeddedBackEnd::open(pathOf(u"prices.wirepane"_s)).value());
    compare();
}

TEST_F(PricesTest, OfDaysThatAreTooLongAgoLeave) {
    for (int day = 0; day < 6; ++day) {
        for (int symbol = 0; symbol < 3; ++symbol) {
            put(at(9, 0) + day * secondsOfDay, share(QString::number(symbol)), 10 + 2 * day);
            put(at(9, 1) + day * secondsOfDay, share(QString::number(symbol)), 11 + 2 * day);
        }
    }
    const auto kept = [&] {
        return backEnd->pricesOf(share(u"0"_s), at(0, 0), at(0, 0) + 10 * secondsOfDay).size();
    };
    EXPECT_EQ(kept(), 12);
    const std::int64_t later = at(9, 0) + (limits::priceDays + 10) * secondsOfDay;
    for (int symbol = 10; symbol < 20; ++symbol) {
        put(later, share(QString::number(symbol)), 1);
        put(later + 60, share(QString::number(symbol)), 2);
    }
    EXPECT_EQ(kept(), 1) << "the last quote alone";
}

TEST(PackedPricesTest, GiveWhatWasPackedAndTellDamage) {
    const std::int64_t day = 20'000;
    const std::int64_t midnight = day * secondsOfDay;
    const std::vector<MinutePrice> table[] = {
        {{midnight, 0.001}},
        {{midnight + 60, 350}, {midnight + 120, 349.8}, {midnight + 86'340, 1e12}},
        {{midnight + 600, 1.23456}, {midnight + 660, 1.234567}},
    };
    for (const std::vector<MinutePrice>& prices : table)
        EXPECT_EQ(unpackedPrices(packedPrices(prices), day), prices);
    EXPECT_EQ(packedPrices(table[1]).left(6), QByteArray::fromHex("0101d83601") + char(3));
    const QByteArray damaged[] = {"",
                                  QByteArray::fromHex("07"),                // decimals
                                  QByteArray::fromHex("0000"),              // half a price
                                  QByteArray::fromHex("0001020002"),        // a minute twice
                                  QByteArray::fromHex("00a00b02"),          // a minute of the next day
                                  QByteArray::fromHex("0001ffffffffffff"),  // a number without an end
                                  QByteArray::fromHex("00ffffffffffffffffffff0102")};
    for (const QByteArray& packed : damaged)
        EXPECT_EQ(unpackedPrices(packed, day), std::nullopt) << packed.toHex().toStdString();
}

}  // namespace
}  // namespace wirepane

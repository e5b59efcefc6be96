// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/price_columns.h"

#include "host/contract/cfg_io.h"
#include "host/contract/price_history.h"
#include "host/contract/view_options.h"
#include "tests/headline_list/list_fixture.h"

#include <map>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class PricedBackEnd : public FakeBackEnd, public PriceHistory {
public:
    std::optional<PriceSince> priceSince(const HeadlineKey& key) override {
        const auto found = prices.find(key.sequence);
        return found == prices.end() ? std::nullopt : std::optional(found->second);
    }
    std::vector<MinutePrice> pricesOf(const CSymbolInfo&, std::int64_t, std::int64_t) override { return {}; }
    std::int64_t priceChanges() const override { return 0; }

    std::map<int, PriceSince> prices;
};

class PriceColumnsTest : public testing::Test {
protected:
    PriceColumnsTest() {
        backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_PRICE_THEN"_s] = u"Then"_s;
        backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_LARGEST_MOVE"_s] = u"Most"_s;
        for (int number = 1; number <= 3; ++number)
            backEnd.add(1, 1'772'413'200 + number * 60, number, u"Title %1"_s.arg(number), 7);
        backEnd.prices = {{1, {10, 10.5, 8}}, {2, {0.25, 0.25, 0.25}}};
    }
    HeadlineList& opened(BKQuoteInterface& source) {
        lists = std::make_unique<HeadlineLists>(source, owner);
        HeadlineList& list = (*lists)[ListIndex::All];
        list.setGrid(createHeadlineSheet(&window, {0, 0, 600, 200}, owner.newsType, source));
        window.resize(700, 300);
        window.show();
        lists->rebuild(ListIndex::All, TableKind::ByDate, u"20260302"_s);
        return list;
    }
    static ViewOptions with(bool isOn) {
        MemoryCfgIO store;
        store.setViewInfo({}, u"PriceColumns"_s, isOn ? 2 : 1);
        return ViewOptions::read(store, {});
    }
    static QStringList prices(const HeadlineList& list) {
        QStringList rows;
        for (int row = 0; row < list.grid()->rowCount(); ++row)
            rows << list.text(row, 3) + u'|' + list.text(row, 4);
        return rows;
    }

    PricedBackEnd backEnd;
    FakeOwner owner;
    QWidget window;
    std::unique_ptr<HeadlineLists> lists;
};

TEST_F(PriceColumnsTest, StandBehindTheTitleWhereTheSettingsAskForThem) {
    HeadlineList& list = opened(backEnd);
    list.setOptions(with(false));
    EXPECT_EQ(list.grid()->model()->columnCount(), 3);
    EXPECT_EQ(prices(list), (QStringList{u"|"_s, u"|"_s, u"|"_s}));

    list.setOptions(with(true));
    EXPECT_EQ(prices(list), (QStringList{u"|"_s, u"0.25  0.00%|0.00%"_s, u"10.00  +5.00%|-20.00%"_s}));
    const QAbstractItemModel& model = *list.grid()->model();
    EXPECT_EQ(model.headerData(3, Qt::Horizontal).toString(), u"Then"_s);
    EXPECT_EQ(model.headerData(4, Qt::Horizontal).toString(), u"Most"_s);
    const auto colourOf = [&](int row, int column) { return list.textColour(row, column); };
    EXPECT_FALSE(colourOf(1, 3).isValid()) << "neither risen nor fallen";
    EXPECT_TRUE(colourOf(2, 3).isValid());
    EXPECT_NE(colourOf(2, 3), colourOf(2, 4)) << "risen, and fallen before";
    // The title has what the others leave.
    int all = 0;
    for (int column = 0; column < 5; ++column)
        all += list.grid()->colWidth(column);
    EXPECT_GT(list.grid()->colWidth(3), 0);
    EXPECT_LE(all, std::max(list.grid()->viewport()->width(), all - list.grid()->colWidth(2) + 300));

    list.setOptions(with(false));
    EXPECT_EQ(list.grid()->colWidth(3) + list.grid()->colWidth(4), 0);
    EXPECT_EQ(prices(list), (QStringList{u"|"_s, u"|"_s, u"|"_s}));
}

TEST_F(PriceColumnsTest, AreNotThereWithoutAHistoryOfPrices) {
    FakeBackEnd plain;
    HeadlineList& list = opened(plain);
    list.setOptions(with(true));
    EXPECT_EQ(list.grid()->model()->columnCount(), 3);
    lists.reset();
}

}  // namespace

}  // namespace wirepane

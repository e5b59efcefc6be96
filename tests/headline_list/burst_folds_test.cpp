// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Bursts of one topic: what folds under what, and what of it a list shows.
#include "headline_list/burst_folds.h"

#include "host/contract/cfg_io.h"
#include "host/contract/clock.h"
#include "host/contract/view_options.h"
#include "tests/headline_list/list_fixture.h"

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

constexpr int most = 3;  // a minute

class BurstFoldsTest : public testing::Test {
protected:
    // Comes `ms` after the one before it. Result: its key.
    HeadlineKey come(const QString& title, std::int32_t topic = 7, int ms = 100, const QString& symbol = {}) {
        now += ms;
        const HeadlineKey key{1000 + now, ++number, 1};
        folds.note({key, topic, symbol, title}, now, most);
        follow();
        return key;
    }
    void follow() {
        const BurstFolds::Changes changes = folds.takeChanges();
        for (const HeadlineKey& key : changes.hide)
            hidden[key.sequence] = true;
        for (const HeadlineKey& key : changes.show)
            hidden.erase(key.sequence);
    }
    std::vector<int> outOfSight() const {
        std::vector<int> numbers;
        for (const auto& [sequence, isHidden] : hidden)
            numbers.push_back(sequence);
        return numbers;
    }

    BurstFolds folds;
    std::map<int, bool> hidden;
    std::int64_t now = 0;
    std::int32_t number = 0;
};

TEST_F(BurstFoldsTest, FoldsWhatIsBeyondTheRateUnderTheNewest) {
    HeadlineKey newest;
    for (int i = 1; i <= 6; ++i)
        newest = come(u"Delayed trains at platform %1"_s.arg(i));
    EXPECT_EQ(outOfSight(), (std::vector<int>{3, 4, 5})) << "the first three are within the rate";
    EXPECT_EQ(folds.foldAt(newest).count, 3);
    const HeadlineKey other = come(u"Delayed trains at platform 1"_s, 8);
    EXPECT_EQ(folds.foldAt(other).count, 0) << "another topic";
    const HeadlineKey quiet = come(u"Delayed trains at platform 7"_s, 7, 61'000);
    EXPECT_EQ(folds.foldAt(quiet).count, 0);
    EXPECT_EQ(folds.foldAt(newest).count, 3) << "the burst is over, and stays as it is";
}

TEST_F(BurstFoldsTest, NeverFoldsTheFirstThatTellsOfAFact) {
    struct Case {
        const char* what;
        QString title;
        QString symbol;
        bool folds;
    };
    const Case cases[] = {
        {"the same with other figures", u"Delayed trains at platform 99"_s, u"A"_s, true},
        {"a symbol of its own", u"Delayed trains at platform 5"_s, u"B"_s, false},
        {"words of its own", u"Central bank cuts its rate by surprise"_s, u"A"_s, false},
        {"the same, longer", u"Update: delayed trains at the platform, passengers wait"_s, u"A"_s, true},
        {"another name", u"Punctual trains at platform 5"_s, u"A"_s, false},
        {"ideographs of its own", u"央行宣布降息一碼"_s, u"A"_s, false},
        {"the same in ideographs", u"央行宣布降息一碼，市場反應"_s, u"A"_s, true},
        {"no words", u"1,234.5"_s, u"A"_s, false},
    };
    for (int i = 0; i < 5; ++i)
        come(u"Delayed trains at platform %1"_s.arg(i), 7, 100, u"A"_s);
    for (const Case& test : cases) {
        const HeadlineKey key = come(test.title, 7, 100, test.symbol);
        come(u"Delayed trains at platform 0"_s, 7, 100, u"A"_s);
        EXPECT_EQ(hidden.contains(key.sequence), test.folds) << test.what;
    }
}

TEST_F(BurstFoldsTest, UnfoldsFoldsAgainAndGoesOnBesideIt) {
    HeadlineKey newest;
    for (int i = 1; i <= 6; ++i)
        newest = come(u"Delayed trains"_s);
    EXPECT_TRUE(folds.turn(newest));
    follow();
    EXPECT_TRUE(outOfSight().empty());
    EXPECT_TRUE(folds.foldAt(newest).isOpen);
    come(u"Delayed trains"_s);
    const HeadlineKey later = come(u"Delayed trains"_s);
    EXPECT_EQ(outOfSight(), std::vector<int>{7}) << "what was unfolded stays unfolded";
    EXPECT_EQ(folds.foldAt(later).count, 1);
    EXPECT_TRUE(folds.turn(newest));
    follow();
    EXPECT_EQ(outOfSight(), (std::vector<int>{3, 4, 5, 7}));
    EXPECT_FALSE(folds.turn({1, 1, 1})) << "it is in no fold";
}

TEST_F(BurstFoldsTest, LosesNothingWhenHeadlinesGo) {
    std::vector<HeadlineKey> keys;
    for (int i = 1; i <= 6; ++i)
        keys.push_back(come(u"Delayed trains"_s));
    folds.forget(keys[5]);
    follow();
    EXPECT_EQ(outOfSight(), (std::vector<int>{3, 4})) << "the next one is the head";
    EXPECT_EQ(folds.foldAt(keys[4]).count, 2);
    folds.letGo(keys[3], {9, 9, 1});
    EXPECT_EQ(folds.takeChanges().show.size(), 2U) << "what stands in its row now is seen";
    folds.forget(keys[2]);
    EXPECT_EQ(folds.foldAt(keys[4]).count, 0);
    EXPECT_FALSE(folds.turn(keys[4]));
}

TEST_F(BurstFoldsTest, PutsWhatComesLateUnderTheOneThatIsNewest) {
    for (int i = 1; i <= 5; ++i)
        come(u"Delayed trains"_s);
    now += 10;
    const HeadlineKey late{1, 99, 1};
    folds.note({late, 7, {}, u"Delayed trains"_s}, now, most);
    EXPECT_EQ(folds.takeChanges().hide, std::vector<HeadlineKey>{late});
}

// --- In a list ---

class FoldedRows : public HeadlineListTest {
protected:
    FoldedRows() {
        MemoryCfgIO stored;
        stored.setViewInfo({}, u"FoldBursts"_s, most);
        list(ListIndex::All).setOptions(ViewOptions::read(stored, {}));
        list(ListIndex::All).refill();
    }
    void come(int count) {
        for (int i = 0; i < count; ++i, ++next)
            list(ListIndex::All)
                .vProcessNewHeadline({1, host_clock::now() - 100 + next, next, u"Delayed trains"_s, 0, 7, 0},
                                     false);
    }
    std::vector<int> inSight() {
        std::vector<int> rows;
        const CSuperSheetWnd& grid = *list(ListIndex::All).grid();
        for (int row = 0; row < grid.rowCount(); ++row) {
            if (grid.isInSight(row))
                rows.push_back(row);
        }
        return rows;
    }
    int next = 1;
};

TEST_F(FoldedRows, StayRowsOfTheirEntries) {
    come(6);
    HeadlineList& all = list(ListIndex::All);
    EXPECT_EQ(inSight(), (std::vector<int>{0, 4, 5}));
    EXPECT_EQ(all.headlineTable().size(), 6);
    EXPECT_EQ(all.grid()->rowCount(), 6);
    EXPECT_EQ(all.mark(0, titleColumn), u"+3"_s);
    EXPECT_TRUE(all.isFold(0));
    EXPECT_FALSE(all.isFold(5));
    EXPECT_EQ(all.textOfRows({0, 1, 2, 3, 4, 5}).count(u'\n'), 5) << "nothing is dropped";
    EXPECT_TRUE(all.turnFold(0));
    EXPECT_EQ(inSight().size(), 6U);
    EXPECT_TRUE(all.turnFold(2)) << "from a row among them";
    EXPECT_EQ(inSight().size(), 3U);
    all.grid()->setActiveSelection(2, -1);
    EXPECT_EQ(inSight().size(), 6U) << "whoever goes to a row sees it";
}

TEST_F(FoldedRows, LeaveTheRowThatIsReadInSight) {
    come(3);
    list(ListIndex::All).grid()->setActiveSelection(0, -1);
    come(4);
    EXPECT_EQ(inSight(), (std::vector<int>{0, 4, 5, 6})) << "row 4 is the one that is read";
    EXPECT_EQ(list(ListIndex::All).grid()->cptGetFocusNdx().y(), 4);
    EXPECT_EQ(list(ListIndex::All).mark(0, titleColumn), u"+4"_s);
    list(ListIndex::All).grid()->setActiveSelection(0, -1);
    EXPECT_EQ(inSight(), (std::vector<int>{0, 5, 6})) << "he has gone on";
}

TEST_F(FoldedRows, WaitWhileTheListIsHeld) {
    list(ListIndex::All).hold(true);
    come(6);
    EXPECT_EQ(inSight().size(), 6U);
    list(ListIndex::All).hold(false);
    EXPECT_EQ(inSight(), (std::vector<int>{0, 4, 5}));
}

TEST_F(FoldedRows, OutliveReadingTheListInPlaceAndNoOtherReading) {
    come(6);
    HeadlineList& all = list(ListIndex::All);
    const HeadlineTable before = all.headlineTable();
    all.holdPlace();
    all.setTable(before);
    all.refill();
    EXPECT_EQ(inSight(), (std::vector<int>{0, 4, 5}));
    all.refill();
    EXPECT_EQ(inSight().size(), 6U);
    EXPECT_FALSE(all.isFold(0));
}

TEST_F(FoldedRows, ComeBackWithWhatTakesTheirPlace) {
    come(6);
    HeadlineList& all = list(ListIndex::All);
    EXPECT_EQ(inSight(), (std::vector<int>{0, 4, 5}));
    CHeadline again{1, all.headlineTable().at(2).time, 4, u"Delayed trains, corrected"_s, 0, 7, 0};
    all.vProcessNewHeadline(again, false);
    EXPECT_EQ(inSight(), (std::vector<int>{0, 1, 4, 5})) << "it was sent again, and stands at the top";
    again = {1, all.headlineTable().at(2).time + 1, 5, u"Delayed trains, at last"_s, 0, 7, 0};
    all.replaceHeadline(2, again);
    EXPECT_EQ(inSight(), (std::vector<int>{0, 1, 2, 4, 5}));
    all.takeOut(1);
    EXPECT_EQ(inSight(), (std::vector<int>{0, 1, 2, 3, 4})) << "the head has gone";
}

}  // namespace
}  // namespace wirepane

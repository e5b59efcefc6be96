// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Pushed headlines in one list: where they go, what the rows show, what stays selected.
#include "headline_list/news_key.h"
#include "headline_list/relation_matcher.h"
#include "tests/headline_list/list_fixture.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QDateTime>
#include <QScrollBar>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <tuple>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

CHeadline headline(std::int64_t time, std::int32_t sequence, const QString& title,
                   unsigned char service = 1) {
    return {service, time, sequence, title, 0, 7, 0};
}

QDate dayOf(std::int64_t time) {
    return QDateTime::fromSecsSinceEpoch(time).date();
}

// A list as it is described: a plain sequence, searched from its top.
class PlainList {
public:
    struct Row {
        HeadlineKey key;
        int id;  // stays with the headline, also when it is sent again
    };

    void append(const HeadlineKey& key) { rows.push_back({key, nextId++}); }

    HeadlinePlace push(const CHeadline& pushed) {
        const HeadlineKey key = keyOf(pushed);
        const auto hasNumber = [&](const Row& row) {
            return row.key.service == key.service && row.key.sequence == key.sequence;
        };
        const auto known = std::find_if(rows.begin(), rows.end(), [&](const Row& row) {
            return hasNumber(row) && dayOf(row.key.time) == dayOf(key.time);
        });
        if (known == rows.end()) {
            const auto place = std::find_if(rows.begin(), rows.end(),
                                            [&](const Row& row) { return row.key.time < key.time; });
            const auto row = static_cast<int>(place - rows.begin());
            rows.insert(place, {key, nextId++});
            titles[tied(key)] = pushed.title;
            return {row, -1};
        }
        titles[tied(known->key)] = pushed.title;
        const auto old = std::find_if(rows.begin(), rows.end(), hasNumber);
        const int id = old == known ? known->id : nextId++;
        const auto oldRow = static_cast<int>(old - rows.begin());
        const HeadlineKey gone = old->key;
        rows.erase(old);
        rows.insert(rows.begin(), {key, id});
        if (std::none_of(rows.begin(), rows.end(), [&](const Row& row) { return row.key == gone; }))
            titles.erase(tied(gone));
        titles[tied(key)] = pushed.title;
        return {0, oldRow};
    }

    QString titleOf(const Row& row) const {
        const auto it = titles.find(tied(row.key));
        return it == titles.end() ? QString() : it->second;
    }

    std::vector<Row> rows;

private:
    static std::tuple<std::int64_t, std::int32_t, unsigned char> tied(const HeadlineKey& key) {
        return {key.time, key.sequence, key.service};
    }
    std::map<std::tuple<std::int64_t, std::int32_t, unsigned char>, QString> titles;
    int nextId = 0;
};

class Push : public HeadlineListTest {
protected:
    const std::int64_t noon = localTime(2026, 3, 2, 12, 0);

    // Fills a list with headlines of one service, newest first, one a minute; the newest is of noon.
    HeadlineList& filled(ListIndex index, int count) {
        HeadlineList& result = list(index);
        TableRuns runs(1);
        for (int i = 0; i < count; ++i)
            runs.front().push_back({noon - 60 * i, 1000 - i, 1, 0, 0});
        result.setTable(runs);
        result.refill();
        return result;
    }
    static std::vector<int> sequences(const HeadlineList& of) {
        std::vector<int> result;
        for (int row = 0; row < of.headlineTable().size(); ++row)
            result.push_back(of.headlineTable().at(row).sequence);
        return result;
    }
};

}  // namespace

TEST_F(Push, GoesWhereItsTimeAndNumberSay) {
    struct Case {
        const char* what;
        CHeadline pushed;
        HeadlinePlace place;
        std::vector<int> sequences;
    };
    const Case cases[] = {
        {"newer than all", headline(noon + 1, 1, u"n"_s), {0, -1}, {1, 1000, 999, 998}},
        {"of the newest row's time", headline(noon, 1, u"n"_s), {1, -1}, {1000, 1, 999, 998}},
        {"between", headline(noon - 61, 1, u"n"_s), {2, -1}, {1000, 999, 1, 998}},
        {"of the oldest row's time", headline(noon - 120, 1, u"n"_s), {3, -1}, {1000, 999, 998, 1}},
        {"older than all", headline(0, 1, u"n"_s), {3, -1}, {1000, 999, 998, 1}},
        {"sent again", headline(noon - 60, 999, u"n"_s), {0, 1}, {999, 1000, 998}},
        {"sent again with an older time", headline(noon - 7200, 998, u"n"_s), {0, 2}, {998, 1000, 999}},
        {"the topmost sent again", headline(noon, 1000, u"n"_s), {0, 0}, {1000, 999, 998}},
        {"a number of another day", headline(noon + 86400, 998, u"n"_s), {0, -1}, {998, 1000, 999, 998}},
        {"a number of another service", headline(noon - 60, 999, u"n"_s, 2), {2, -1}, {1000, 999, 999, 998}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        HeadlineList& all = filled(ListIndex::All, 3);
        EXPECT_EQ(all.vProcessNewHeadline(c.pushed, false), c.place);
        EXPECT_EQ(sequences(all), c.sequences);
        EXPECT_EQ(all.text(c.place.row, titleColumn), u"n"_s);
        EXPECT_EQ(all.text(c.place.row, categoryColumn), u"Markets"_s);
        EXPECT_EQ(all.text(c.place.row, timeColumn),
                  QDateTime::fromSecsSinceEpoch(c.pushed.time).toString(u"HH:mm"));
        EXPECT_EQ(all.grid()->rowCount(), static_cast<int>(c.sequences.size()));
    }
    HeadlineList& unseen = lists[ListIndex::Symbol];
    EXPECT_EQ(unseen.vProcessNewHeadline(headline(noon, 1, u"n"_s), true), HeadlinePlace());
    EXPECT_TRUE(unseen.headlineTable().empty());
}

TEST_F(Push, AReplacedHeadlineStaysWhereItStandsOrLeaves) {
    HeadlineList& all = filled(ListIndex::All, 3);
    all.replaceHeadline(1, headline(noon - 3600, 999, u"replaced"_s));
    for (const int noRow : {-1, 3})
        all.replaceHeadline(noRow, headline(noon, 1, u"nowhere"_s));
    EXPECT_EQ(sequences(all), (std::vector{1000, 999, 998}));
    EXPECT_EQ(rows(all).at(1), u"11:00 | Markets | replaced"_s);
    const std::pair<int, HeadlinePlace> cases[] = {{-1, {}}, {3, {}}, {2, {-1, 2}}, {0, {-1, 0}}};
    for (const auto& [row, place] : cases)
        EXPECT_EQ(all.takeOut(row), place) << row;
    EXPECT_EQ(rows(all), QStringList{u"11:00 | Markets | replaced"_s});
}

// The day decides whether a headline is one sent again; which row of its number goes, the order does.
TEST_F(Push, OfTwoDaysRowsWithTheNumberTheUpperOneGoes) {
    HeadlineList& all = filled(ListIndex::All, 2);
    all.vProcessNewHeadline(headline(noon + 86400, 999, u"next day"_s), false);
    EXPECT_EQ(all.vProcessNewHeadline(headline(noon - 30, 999, u"again"_s), false), (HeadlinePlace{0, 0}));
    EXPECT_EQ(rows(all),
              (QStringList{u"11:59 | Markets | again"_s, u" |  | "_s, u"11:59 | Markets | again"_s}));
    EXPECT_EQ(dayOf(all.headlineTable().at(0).time), QDate(2026, 3, 2));
}

TEST_F(Push, RandomPushesGoWhereThePlainListSays) {
    std::mt19937 random(20260302);
    const auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    HeadlineList& all = filled(ListIndex::All, 40);
    CSuperSheetWnd& sheet = *all.grid();
    QAbstractItemModelTester tester(sheet.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    PlainList plain;
    for (int row = 0; row < all.headlineTable().size(); ++row)
        plain.append(keyOf(all.headlineTable().at(row)));
    std::set<int> chosen;
    for (const int row : {5, 9, 30}) {
        sheet.selectionModel()->setCurrentIndex(sheet.model()->index(row, 0),
                                                QItemSelectionModel::Select | QItemSelectionModel::Rows);
        chosen.insert(plain.rows[static_cast<std::size_t>(row)].id);
    }
    std::int64_t now = noon;
    for (int batch = 0; batch < 120; ++batch) {
        for (int i = below(12); i-- > 0;) {
            now += below(3) * 1200;
            const std::int64_t late = below(4) == 0 ? below(100'000) : 0;
            const int sequence = below(3) == 0 ? 961 + below(40) : below(60);
            const CHeadline pushed = headline(now - late, sequence, QString::number(1000 * batch + i),
                                              static_cast<unsigned char>(1 + below(2)));
            ASSERT_EQ(all.vProcessNewHeadline(pushed, false), plain.push(pushed)) << "batch " << batch;
        }
        ASSERT_EQ(all.headlineTable().size(), static_cast<int>(plain.rows.size()));
        ASSERT_EQ(sheet.rowCount(), all.headlineTable().size());
        std::set<int> stillThere;
        std::vector<int> selected;
        for (int row = 0; row < all.headlineTable().size(); ++row) {
            const PlainList::Row& expected = plain.rows[static_cast<std::size_t>(row)];
            ASSERT_EQ(keyOf(all.headlineTable().at(row)), expected.key)
                << "batch " << batch << " row " << row;
            ASSERT_EQ(sheet.model()->index(row, titleColumn).data().toString(), plain.titleOf(expected));
            if (chosen.count(expected.id) != 0)
                selected.push_back(row);
        }
        std::vector<int> rows;
        sheet.vGetAllSelectionNdx(rows);
        ASSERT_EQ(rows, selected) << "batch " << batch;
    }
    EXPECT_GT(all.headlineTable().size(), 200);
}

TEST_F(Push, AReaderFurtherDownKeepsTheRowsOnScreen) {
    HeadlineList& all = filled(ListIndex::All, 500);
    CSuperSheetWnd& sheet = *all.grid();
    sheet.verticalScrollBar()->setValue(200);
    sheet.setActiveSelection(202, -1);
    for (int i = 0; i < 3000; ++i)
        all.vProcessNewHeadline(headline(noon + i, 2000 + i, QString::number(i)), false);
    EXPECT_EQ(all.headlineTable().at(sheet.firstVisibleRow()).sequence, 800);
    EXPECT_EQ(all.headlineTable().at(sheet.cptGetFocusNdx().y()).sequence, 798);
    EXPECT_EQ(all.vGetShowedHeadlineTable().front().sequence, 800);
    sheet.resetScroll();
    all.vProcessNewHeadline(headline(noon + 9000, 9000, u"newest"_s), false);
    EXPECT_EQ(all.vGetShowedHeadlineTable().front().sequence, 9000);
}

// Thousands of pushes write thousands of rows, and only a screenful is kept: what is let go comes back from
// the back end as it was written, its form of time included.
TEST_F(Push, RowsOfTheRelationListKeepTheirFormOfTime) {
    HeadlineList& relation = filled(ListIndex::Relation, 20);
    backEnd.add(1, noon - 60, 999, u"built"_s, 7);
    const auto push = [&](int from, int end) {
        for (int i = from; i < end; ++i) {
            backEnd.add(1, noon + 60 * i, i, QString::number(i), 7);
            relation.vProcessNewHeadline(headline(noon + 60 * i, i, QString::number(i)), true);
        }
    };
    push(1, 4);
    relation.vFillHeadline();
    relation.vFillTempHeadline();
    EXPECT_EQ(
        rows(relation).mid(0, 5),
        (QStringList{u"03/02 12:03 | Markets | 3"_s, u"03/02 12:02 | Markets | 2"_s,
                     u"03/02 12:01 | Markets | 1"_s, u"12:00 | ... | ..."_s, u"11:59 | Markets | built"_s}));

    // The rows of a reader who is further down stay written while others are pushed.
    CSuperSheetWnd& sheet = *relation.grid();
    sheet.verticalScrollBar()->setValue(2);
    push(4, 1200);
    EXPECT_EQ(relation.text(sheet.firstVisibleRow(), titleColumn), u"1"_s);
    EXPECT_EQ(relation.text(sheet.firstVisibleRow() + 2, titleColumn), u"built"_s);
    EXPECT_EQ(relation.text(0, titleColumn), u"1199"_s);
    EXPECT_EQ(relation.text(1000, titleColumn), QString()) << "let go";
    sheet.verticalScrollBar()->setValue(1000);
    relation.vFillHeadline();
    EXPECT_EQ(relation.text(1000, 0), u"03/02 15:19"_s);
    relation.forgetWrittenCells();
    relation.vFillHeadline();
    EXPECT_EQ(relation.text(1000, 0), u"03/02 15:19"_s) << "also after a change of language";

    // A title that has changed meanwhile is written in the list's own form.
    relation.vUpdateHeadline(1000, headline(noon + 60 * 199, 199, u"corrected"_s), false);
    EXPECT_EQ(rows(relation).at(1000), u"15:19 | Markets | corrected"_s);
    relation.forgetWrittenCells();
    relation.vFillHeadline();
    EXPECT_EQ(relation.text(1000, 0), u"15:19"_s) << "and stays in it";
}

TEST_F(Push, RowsAreWrittenFromTheBackEndByEntryAndAtTheTop) {
    HeadlineList& all = filled(ListIndex::Relation, 300);
    for (const int i : {0, 1, 100})
        backEnd.add(1, noon - 60 * i, 1000 - i, u"RATE %1"_s.arg(i), 7);
    all.vUpdateHeadline({all.headlineTable().at(1), all.headlineTable().at(100), {noon, 77, 1, 0, 0}});
    EXPECT_EQ(all.text(0, titleColumn), QString());
    EXPECT_EQ(all.text(1, titleColumn), u"RATE 1"_s);
    EXPECT_EQ(all.text(100, titleColumn), u"RATE 100"_s);
    const RelationMatcher oil(std::vector<CNewsKey>{{1, {7}, {u"OIL"_s}}});
    const RelationMatcher rate(std::vector<CNewsKey>{{1, {7}, {u"RATE"_s}}});
    all.vUpdataTopHeadline(false, &oil);
    EXPECT_EQ(all.text(0, titleColumn), QString());
    all.vUpdataTopHeadline(true, &rate);
    EXPECT_EQ(all.text(0, 0), u"03/02 12:00"_s);
    all.vDeleteHeadline(0);
    all.vDeleteHeadline(299);
    EXPECT_EQ(all.grid()->rowCount(), 299);
    EXPECT_EQ(all.text(0, titleColumn), u"RATE 1"_s);
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/explanation.h"

#include "headline_list/relation_matcher.h"
#include "host/contract/clock.h"
#include "tests/headline_list/list_fixture.h"
#include "tests/news_view/view_fixture.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString today = u"20260302"_s;

QString nameOf(StandingCheck check) {
    static const QStringList names{u"told"_s,   u"service"_s, u"day"_s,    u"topic"_s,
                                   u"symbol"_s, u"keySets"_s, u"filter"_s, u"search"_s};
    return names.at(static_cast<int>(check));
}

// "row 3: told, service 1, day 20260302", "not read, -: told, not topic 2 (8)".
QString textOf(const HeadlineStanding& standing) {
    QStringList checks;
    for (const CheckedStanding& checked : standing.checks) {
        QString text = (checked.passed ? QString() : u"not "_s) + nameOf(checked.check);
        if (!checked.wanted.isEmpty())
            text += u' ' + checked.wanted;
        if (!checked.has.isEmpty() && checked.has != checked.wanted)
            text += u" ("_s + checked.has + u')';
        checks.append(text);
    }
    return (standing.wasRead ? QString() : u"not read, "_s) +
           (standing.row < 0 ? u"-"_s : u"row %1"_s.arg(standing.row)) + u": "_s + checks.join(u", "_s);
}

// The lists of a view on the morning of 2 March 2026: services 1 and 2 are ticked, 7 is the category.
class ExplanationTest : public HeadlineListTest {
protected:
    ExplanationTest() {
        host_clock::startAt(localTime(2026, 3, 2, 9, 30));
        backEnd.add(1, localTime(2026, 3, 2, 9, 0), 1, u"RATE cut"_s, 7, u"2330"_s);
        backEnd.add(2, localTime(2026, 3, 2, 9, 10), 2, u"OIL"_s, 8);
        backEnd.add(16, localTime(2026, 3, 2, 9, 20), 3, u"RATE of 16"_s, 7, u"2330"_s);
        backEnd.add(1, localTime(2026, 3, 1, 9, 0), 4, u"RATE of the day before"_s, 7, u"2330"_s);
        backEnd.add(52, localTime(2026, 3, 2, 9, 25), 5, u"Warrant"_s, 7);
        for (const ListKind& kind : listKinds)
            list(kind.index);
    }

    void readAll(RelationFilter filter) {
        lists.rebuild(ListIndex::All, TableKind::ByDate, today, filter);
        lists.rebuild(ListIndex::Category, TableKind::ByCategory, u"7"_s, filter);
        lists.rebuildSymbol({16, u"2330"_s}, filter);
        lists.rebuild(ListIndex::Relation, TableKind::ByDate, today, &keySets);
        lists.rebuildWarrant(today);
    }

    ExplainedView view() {
        ExplainedView result{backEnd, lists, owner.services, &keySets, today, u"7"_s, {}, {}};
        result.wasRead.fill(true);
        return result;
    }

    QString explained(const ExplainedView& of, ListIndex index, const HeadlineKey& key) {
        const std::vector<HeadlineStanding> standings = explainHeadline(of, key);
        return textOf(standings.at(static_cast<std::size_t>(index)));
    }

    const HeadlineKey rate{localTime(2026, 3, 2, 9, 0), 1, 1};
    const HeadlineKey oil{localTime(2026, 3, 2, 9, 10), 2, 2};
    const HeadlineKey unticked{localTime(2026, 3, 2, 9, 20), 3, 16};
    const HeadlineKey dayBefore{localTime(2026, 3, 1, 9, 0), 4, 1};
    const HeadlineKey warrant{localTime(2026, 3, 2, 9, 25), 5, 52};
    const HeadlineKey held{localTime(2026, 3, 2, 12, 0), 6, 1};  // no table has it
    RelationMatcher keySets{std::vector<CNewsKey>{{1, {7}, {u"RATE"_s}}}};
};

TEST_F(ExplanationTest, TellsWhatKeepsAHeadlineOutOfAList) {
    readAll(nullptr);
    struct Case {
        ListIndex list;
        HeadlineKey key;
        QString explanation;
    };
    const Case cases[] = {
        {ListIndex::All, rate, u"row 1: told, service (1), day 20260302"_s},
        {ListIndex::All, oil, u"row 0: told, service (2), day 20260302"_s},
        {ListIndex::All, unticked, u"-: told, not service (16)"_s},
        {ListIndex::All, dayBefore, u"-: told, service (1), not day 20260302 (20260301)"_s},
        {ListIndex::All, held, u"-: not told"_s},
        {ListIndex::Category, rate, u"row 0: told, service (1), topic 7"_s},
        {ListIndex::Category, dayBefore, u"row 1: told, service (1), topic 7"_s},
        {ListIndex::Category, oil, u"-: told, service (2), not topic 7 (8)"_s},
        {ListIndex::Symbol, rate, u"row 0: told, service (1), symbol 2330"_s},
        {ListIndex::Symbol, oil, u"-: told, service (2), not symbol 2330"_s},
        {ListIndex::Relation, rate, u"row 0: told, service (1), day 20260302, keySets ticked"_s},
        {ListIndex::Relation, oil, u"-: told, service (2), day 20260302, not keySets ticked"_s},
        {ListIndex::Relation, dayBefore, u"-: told, service (1), not day 20260302 (20260301)"_s},
        {ListIndex::Warrant, warrant, u"row 0: told, service 52, day 20260302"_s},
        {ListIndex::Warrant, rate, u"-: told, not service 52 (1)"_s},
        {ListIndex::Search, rate, u"-: told, service (1), not search"_s},
    };
    for (const Case& c : cases)
        EXPECT_EQ(explained(view(), c.list, c.key), c.explanation) << static_cast<int>(c.list);
}

TEST_F(ExplanationTest, TellsOfListsThatWereReadUnderTheKeySets) {
    readAll(&keySets);
    EXPECT_EQ(explained(view(), ListIndex::All, rate),
              u"row 0: told, service (1), day 20260302, filter ticked"_s);
    EXPECT_EQ(explained(view(), ListIndex::All, oil),
              u"-: told, service (2), day 20260302, not filter ticked"_s);
    EXPECT_EQ(explained(view(), ListIndex::Symbol, dayBefore),
              u"row 1: told, service (1), symbol 2330, filter ticked"_s);
    // And of the list of the key sets that was read without them.
    lists.rebuild(ListIndex::Relation, TableKind::ByDate, today, nullptr);
    EXPECT_EQ(explained(view(), ListIndex::Relation, oil), u"row 0: told, service (2), day 20260302"_s);
    keySets = {};
    lists.rebuild(ListIndex::Relation, TableKind::ByDate, today, &keySets);
    EXPECT_EQ(explained(view(), ListIndex::Relation, rate),
              u"-: told, service (1), day 20260302, not keySets"_s);
}

TEST_F(ExplanationTest, TellsWhatIsNotChosenAndNotReadYet) {
    ExplainedView fresh = view();
    fresh.wasRead.fill(false);
    fresh.categoryId.reset();
    EXPECT_EQ(explained(fresh, ListIndex::All, rate), u"not read, -: told, service (1), day 20260302"_s);
    EXPECT_EQ(explained(fresh, ListIndex::Category, rate),
              u"not read, -: told, service (1), not topic (7)"_s);
    EXPECT_EQ(explained(fresh, ListIndex::Symbol, rate), u"not read, -: told, service (1), not symbol"_s);

    // What was found stands there, and a list without a grid is not told of.
    fresh.wasSearched.fill(true);
    lists[ListIndex::Search].setTable(TableRuns{{{rate.time, rate.sequence, rate.service, 0, 0}}});
    EXPECT_EQ(explained(fresh, ListIndex::Search, rate),
              u"not read, row 0: told, service (1), search found"_s);
    EXPECT_EQ(explained(fresh, ListIndex::WarningTerm, rate),
              u"not read, -: told, service (1), not search found"_s);
    delete lists[ListIndex::WarningTerm].grid();
    EXPECT_EQ(explainHeadline(fresh, rate).size(), 6u);
}

// The view explains with its own ticks, day, topic and lists.
TEST_F(NewsViewTest, ExplainsAsItStands) {
    addNews(1, 9, 0, 1, 2);
    addNews(2, 9, 10, 2);
    open({{u"Sheet0ServiceCheck1"_s, true}, {u"CategoryID"_s, u"2"_s}});
    const auto explained = [this](int list, unsigned char service) {
        const int minute = service == 1 ? 0 : 10;
        for (const HeadlineStanding& standing :
             view->explain({localTime(2026, 3, 2, 9, minute), service, service})) {
            if (standing.list == list)
                return textOf(standing);
        }
        return QString();
    };
    EXPECT_EQ(explained(0, 1), u"row 0: told, service (1), day 20260302"_s);
    EXPECT_EQ(explained(0, 2), u"-: told, not service (2)"_s);
    EXPECT_EQ(explained(1, 1), u"not read, -: told, service (1), not topic (2)"_s);
    view->showEachList();
    EXPECT_EQ(state(u"mode"_s), 0) << "the list that was on show is so again";
    EXPECT_EQ(explained(1, 1), u"row 0: told, service (1), topic 2"_s);
    EXPECT_EQ(explained(3, 1), u"-: told, service (1), not search"_s);
}

}  // namespace

}  // namespace wirepane

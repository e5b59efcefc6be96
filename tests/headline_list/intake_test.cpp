// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/intake.h"

#include "headline_list/date_pager.h"
#include "headline_list/outages.h"
#include "host/contract/fixed_services.h"

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Every list is there, has been shown and wants what the cases push, unless a case says otherwise.
struct OpenState : IntakeState {
    std::vector<ServiceEntry> ticked{{1, true}, {2, false}, {warrantService, false}, {2, true}};
    std::vector<CNewsKey> wanted{{1, {7}, {}}};
};

OpenState openState() {
    OpenState state;
    state.connected = true;
    state.hasDatePicker = true;
    state.pickedDate = QDate(2026, 3, 2);
    state.newsDay = QDate(2026, 3, 2);
    state.exists.fill(true);
    state.shown.fill(true);
    state.categoryId = u"7"_s;
    state.symbolCode = u"2330"_s;
    return state;
}

bool& of(std::array<bool, listCount>& flags, ListIndex list) {
    return flags[static_cast<std::size_t>(list)];
}

}  // namespace

TEST(Intake, AHeadlineGoesToEveryListThatWantsIt) {
    const IntakeTarget all{ListIndex::All, false};
    const IntakeTarget category{ListIndex::Category, true};
    const IntakeTarget symbol{ListIndex::Symbol, true};
    const IntakeTarget relation{ListIndex::Relation, true};
    const IntakeTarget warrant{ListIndex::Warrant, true};
    struct Case {
        const char* what;
        unsigned char service;
        std::function<void(OpenState&)> change;
        std::vector<IntakeTarget> targets;
        QString categoryId = u"7"_s;
    };
    const auto nothing = [](OpenState&) {};
    const Case cases[] = {
        {"all of them", 1, nothing, {all, category, symbol, relation}},
        {"not connected", 1, [](auto& s) { s.connected = false; }, {}},
        {"no date picker", 1, [](auto& s) { s.hasDatePicker = false; }, {}},
        {"another day is picked",
         1,
         [](auto& s) { s.pickedDate = QDate(2026, 3, 1); },
         {category, symbol, relation}},
        {"no day is known",
         1,
         [](auto& s) { s.pickedDate = s.newsDay = QDate(); },
         {category, symbol, relation}},
        {"a service that is not ticked", 2, nothing, {}},
        {"an unknown service", 9, nothing, {}},
        {"the first entry of a service decides",
         2,
         [](auto& s) {
             s.ticked.front() = {2, true};
         },
         {all, category, symbol, relation}},
        {"warrants, not ticked", warrantService, nothing, {warrant}},
        {"warrants, ticked",
         warrantService,
         [](auto& s) { s.ticked[2].selected = true; },
         {warrant, category, symbol, relation}},
        {"warrants, never shown", warrantService, [](auto& s) { s.shown.fill(false); }, {warrant}},
        {"warrants, another day", warrantService, [](auto& s) { s.newsDay = QDate(2026, 3, 3); }, {}},
        {"nothing shown yet", 1, [](auto& s) { s.shown.fill(false); }, {}},
        {"all news not shown",
         1,
         [](auto& s) { of(s.shown, ListIndex::All) = false; },
         {category, symbol, relation}},
        {"category list not shown",
         1,
         [](auto& s) { of(s.shown, ListIndex::Category) = false; },
         {all, symbol, relation}},
        {"symbol list missing",
         1,
         [](auto& s) { of(s.exists, ListIndex::Symbol) = false; },
         {all, category, relation}},
        {"relation list missing",
         1,
         [](auto& s) { of(s.exists, ListIndex::Relation) = false; },
         {all, category, symbol}},
        {"no category chosen", 1, [](auto& s) { s.categoryId.reset(); }, {all, symbol, relation}},
        {"another category's text", 1, nothing, {all, symbol, relation}, u"07"_s},
        {"a category that is not the condition's", 1, nothing, {all, symbol}, u"8"_s},
        {"no symbol chosen", 1, [](auto& s) { s.symbolCode.reset(); }, {all, category, relation}},
        {"the symbol in other letters",
         1,
         [](auto& s) { s.symbolCode = u"233"_s; },
         {all, category, relation}},
        {"no condition", 1, [](auto& s) { s.wanted.clear(); }, {all, category, symbol}},
        {"the symbol is a condition's word",
         1,
         [](auto& s) {
             s.wanted = {{1, {7}, {u"2330"_s}}};
         },
         {all, category, symbol, relation}},
    };
    const QString symbolCode = u"2330"_s;
    for (const Case& c : cases) {
        OpenState state = openState();
        c.change(state);
        state.services = state.ticked;
        const RelationMatcher wanted(state.wanted);
        state.relation = &wanted;
        CHeadline headline;
        headline.service = c.service;
        headline.title = u"Rates rise"_s;
        EXPECT_EQ(listsFor({headline, c.categoryId, symbolCode}, state), c.targets) << c.what;
    }
}

TEST(Intake, AListKeepsAReplacedHeadlineThatItStillWants) {
    struct Case {
        const char* what;
        ListIndex list;
        QString categoryId;
        QString symbolCode;
        NamedSymbols named;
        bool kept;
    };
    const Case cases[] = {
        {"all news", ListIndex::All, u"8"_s, u"2317"_s, {}, true},
        {"the category", ListIndex::Category, u"7"_s, u"2317"_s, {}, true},
        {"another category", ListIndex::Category, u"8"_s, u"2330"_s, {{{16, u"2330"_s}}}, false},
        {"the key sets' category", ListIndex::Relation, u"7"_s, u"2317"_s, {}, true},
        {"a category of no key set", ListIndex::Relation, u"8"_s, u"2330"_s, {}, false},
        {"the main symbol", ListIndex::Symbol, u"8"_s, u"2330"_s, {}, true},
        {"another, and no others known", ListIndex::Symbol, u"7"_s, u"2317"_s, {}, false},
        {"named among others",
         ListIndex::Symbol,
         u"7"_s,
         u"2317"_s,
         {{{16, u"2317"_s}, {16, u"2330"_s}}},
         true},
        {"named without a market", ListIndex::Symbol, u"7"_s, u"2317"_s, {{{0, u"2330"_s}}}, true},
        {"named in another market", ListIndex::Symbol, u"7"_s, u"2317"_s, {{{22, u"2330"_s}}}, false},
        {"others named", ListIndex::Symbol, u"7"_s, u"2317"_s, {{{16, u"2317"_s}}}, false},
    };
    OpenState state = openState();
    state.symbolMarket = 16;
    const RelationMatcher wanted(state.wanted);
    state.relation = &wanted;
    const CHeadline headline;
    for (const Case& c : cases)
        EXPECT_EQ(keeps(c.list, {headline, c.categoryId, c.symbolCode}, c.named, state), c.kept) << c.what;
    state.categoryId.reset();
    state.symbolCode.reset();
    for (const ListIndex list : {ListIndex::Category, ListIndex::Symbol})
        EXPECT_TRUE(keeps(list, {headline, u"8"_s, u"2317"_s}, {}, state)) << "nothing is chosen";
}

TEST(DatePager, ADayIsCheckedAgainstTheRangeAndPicked) {
    const QDate today(2026, 3, 2);
    const QDate inForce(2026, 2, 27);
    struct Case {
        QDate wanted;
        int range;
        DateCheck check;
    };
    const Case cases[] = {
        {today, 7, DateCheck::Accepted},
        {today.addDays(1), 7, DateCheck::TooLate},
        {QDate(2026, 2, 23), 7, DateCheck::Accepted},
        {QDate(2026, 2, 22), 7, DateCheck::TooEarly},
        {inForce, 7, DateCheck::Same},
        {inForce, 2, DateCheck::TooEarly},
        {today, 0, DateCheck::Accepted},
        {today.addDays(-1), 0, DateCheck::TooEarly},
        {QDate(2025, 6, 20), 255, DateCheck::Accepted},
        {QDate(2025, 6, 19), 255, DateCheck::TooEarly},
    };
    for (const Case& c : cases) {
        DatePager pager(inForce);
        pager.setRange(c.range);
        EXPECT_EQ(pager.pick(c.wanted, today), c.check)
            << c.wanted.toString(Qt::ISODate).toStdString() << " range " << c.range;
        EXPECT_EQ(pager.pickedDate(), c.check == DateCheck::Accepted ? c.wanted : inForce);
        EXPECT_EQ(pager.currentNewsDay(), inForce);
    }
}

TEST(DatePager, ANumberNamesADayOrNone) {
    const std::pair<std::int32_t, QDate> cases[] = {{20240229, {2024, 2, 29}},
                                                    {20260231, {2026, 3, 3}},
                                                    {19000101, {1900, 1, 1}},
                                                    {18991231, {}},
                                                    {20261231, {2026, 12, 31}},
                                                    {20261301, {}},
                                                    {20260001, {}},
                                                    {20260100, {}},
                                                    {20260132, {}},
                                                    {-1, {}}};
    const auto dayOrNone = [](std::int32_t number) {
        try {
            return dayOfNumber(number);
        } catch (const std::invalid_argument&) {
            return QDate();
        }
    };
    for (const auto& [number, day] : cases)
        EXPECT_EQ(dayOrNone(number), day) << number;
}

TEST(DatePager, ATickedServiceBeginsANewDay) {
    const std::vector<ServiceEntry> services{
        {1, true, 20260302}, {2, false, 20260302}, {1, true, 20260301}, {2, true, 20260302}};
    const std::pair<CMarketStatus, int> cases[] = {{{1, 20260303}, 0},
                                                   {{1, 20260302}, 2},
                                                   {{2, 20260303}, -1},
                                                   {{2, 20260302}, -1},
                                                   {{9, 20260303}, -1}};
    for (const auto& [status, entry] : cases)
        EXPECT_EQ(entryOfNewDay(services, status), entry) << int(status.service) << ' ' << status.date;
}

// Seconds; an outage lasts until the connection is back, which is itself no part of it.
TEST(Outages, HoldTheTimesWithoutAConnection) {
    Outages outages;
    const auto held = [&] {
        std::string result;
        for (const int time : {9, 10, 19, 20, 29, 30, 40})
            result += outages.holds(time) ? 'x' : '.';
        return result;
    };
    outages.restored(5);
    EXPECT_EQ(outages.ended(), 0U);
    outages.lost(10);
    outages.lost(15);
    EXPECT_EQ(outages.lostSince(), 10);
    EXPECT_EQ(held(), ".xxxxxx");
    outages.restored(20);
    EXPECT_EQ(held(), ".xx....");
    outages.lost(30);
    EXPECT_EQ(held(), ".xx..xx");
    outages.restored(40);
    outages.restored(50);
    EXPECT_EQ(held(), ".xx..x.");
    EXPECT_EQ(outages.ended(), 2U);
}

}  // namespace wirepane

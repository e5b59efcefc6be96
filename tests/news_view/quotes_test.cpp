// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/super_sheet_wnd.h"
#include "host/views/news_control_ids.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"
#include "tests/news_view/view_fixture.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const CSymbolInfo chips{16, u"2330"_s};
const CSymbolInfo foods{16, u"6214"_s};

class RelatedQuotesTest : public NewsViewTest {
protected:
    RelatedQuotesTest() {
        for (int i = 1; i <= 3; ++i)
            addNews(1, 9, i, i);
        backEnd.related[{1, 3}] = {chips, {0, u"00700"_s}};
        backEnd.related[{1, 2}] = {foods};
    }

    CNewsRelateSymbolQuoteView* quotes() const {
        return qobject_cast<CNewsRelateSymbolQuoteView*>(
            dlgItem(view.get(), ids::firstChildView + ids::relatedQuotes));
    }
    // "2330 Aster Chips --", a row each: code, name, last.
    QStringList rows() const {
        QStringList all;
        const QVariantList listed = state(u"quotes"_s).toList();
        for (const QVariant& row : listed)
            all += row.toStringList().mid(0, 3).join(u' ');
        return all;
    }
    void selectRow(int row) { view->pGetCurrSheetView()->setActiveSelection(row, -1); }

    const QStringList ofNewest{u"2330 Aster Chips --"_s, u"00700 Harbour Holdings --"_s};
};

TEST_F(RelatedQuotesTest, StandsBesideTheStoryWhereThereIsOne) {
    for (const int newsType : {1, 2, 3}) {
        open({}, newsType);
        EXPECT_EQ(quotes(), nullptr) << newsType;
        view.reset();
    }
    open();
    const auto* pane = dlgItem(view.get(), ids::firstChildView + ids::storyPane);
    ASSERT_NE(quotes(), nullptr);
    EXPECT_EQ(quotes()->geometry().bottom() + 1, view->height());
    EXPECT_EQ(quotes()->height(), 120);
    EXPECT_EQ(pane->geometry().bottom() + 1, quotes()->y());
    view->SetStoryShowType(2);
    EXPECT_EQ(quotes()->geometry().right() + 1, view->width());
    EXPECT_EQ(pane->geometry().right() + 1, quotes()->x());
    view->SetStoryShowType(0);
    EXPECT_TRUE(quotes()->isHidden());
}

TEST_F(RelatedQuotesTest, ListsTheSymbolsOfTheShownHeadlineAndNoOthers) {
    open();
    EXPECT_EQ(rows(), QStringList()) << "no headline is shown";
    selectRow(0);
    EXPECT_EQ(rows(), ofNewest);
    std::swap(backEnd.related[{1, 3}], backEnd.related[{1, 2}]);
    view->ChangeNewsSymbolList();
    EXPECT_EQ(rows(), QStringList{u"6214 Lantern Foods --"_s});
    std::swap(backEnd.related[{1, 3}], backEnd.related[{1, 2}]);
    view->ChangeNewsSymbolList();
    EXPECT_EQ(backEnd.followed[view.get()], (QStringList{u"16:2330"_s, u"22:00700"_s}));
    view->OnBtnPageDown();
    EXPECT_EQ(rows(), QStringList{u"6214 Lantern Foods --"_s});
    EXPECT_EQ(backEnd.followed[view.get()], QStringList{u"16:6214"_s});
    EXPECT_EQ(quotes()->currentDataState(), DataState::Normal);
    view->OnBtnPageDown();
    EXPECT_EQ(rows(), QStringList()) << "a headline without symbols";
    EXPECT_EQ(quotes()->currentDataState(), DataState::NotSupported);
    unsigned char market = 9;
    QString code = u"unchanged"_s;
    EXPECT_EQ(quotes()->GetCurrSymbolInfo(market, code), 0);
    EXPECT_EQ(code, u"unchanged");
    selectRow(0);
    view->SwitchFunction(static_cast<int>(ListIndex::Search));
    EXPECT_EQ(rows(), QStringList());
    EXPECT_EQ(quotes()->currentDataState(), DataState::Normal);
    EXPECT_EQ(backEnd.followed[view.get()], QStringList());
    view->SwitchFunction(static_cast<int>(ListIndex::All));
    EXPECT_EQ(rows(), ofNewest);
    view->GetSymbolNews(u"2330"_s);
    EXPECT_EQ(rows(), ofNewest) << "another list is shown, and its story with it";
    view->SwitchFunction(static_cast<int>(ListIndex::Symbol));
    EXPECT_EQ(rows(), QStringList());
}

TEST_F(RelatedQuotesTest, IsSortedAsItWasLeft) {
    const QStringList reversed{ofNewest[1], ofNewest[0]};
    const auto shownAt = [&](const QVariant& stored) {
        open({{u"QuoteSorting"_s, stored}});
        selectRow(0);
        return rows();
    };
    EXPECT_EQ(shownAt(-2), reversed);
    view->SaveViewInfo(&settings, u"Layout"_s, 0, 0);
    EXPECT_EQ(settings.values[u"QuoteSorting"_s], -2);
    EXPECT_EQ(shownAt(settings.values[u"QuoteSorting"_s]), reversed);
    quotes()->sortBy(QuoteColumn::Code);
    EXPECT_EQ(rows(), reversed);
    view->SaveViewInfo(&settings, u"Layout"_s, 0, 0);
    EXPECT_EQ(settings.values[u"QuoteSorting"_s], 1);
    for (const int nonsense : {0, 7, -7, std::numeric_limits<int>::min()})
        EXPECT_EQ(shownAt(nonsense), ofNewest) << nonsense;
}

TEST_F(RelatedQuotesTest, HandsOnWhatTheBackEndSays) {
    open();
    selectRow(0);
    const std::vector<CQuoteMemory> known{{chips, 600, 5, 1}, {foods, 1, 0, 1}};
    view->vRecvMultiSymbolMemoryRecovery(known);
    EXPECT_EQ(rows().front(), u"2330 Aster Chips 600.00");
    const CQuoteMemory other{{22, u"00700"_s}, 300, -5, 1};
    view->vRecvMemoryRecovery(&other);
    const CQuoteMemory changed{chips, 601, 6, 2};
    view->vRecvNewMemory(&changed);
    EXPECT_EQ(rows(), (QStringList{u"2330 Aster Chips 601.00"_s, u"00700 Harbour Holdings 300.00"_s}));

    CNewsSymlistInfo again{{localTime(2026, 3, 2, 9, 2), 2, 1}, {{chips}}};
    view->vRecvNewsRelateSymbolListRecovery(&again);
    EXPECT_EQ(rows().size(), 2) << "another headline's";
    again = {{localTime(2026, 3, 2, 9, 3), 3, 1}, {{foods, chips}}};
    view->vRecvNewsRelateSymbolListRecovery(&again);
    view->vRecvNewsRelateSymbolListRecovery(nullptr);
    EXPECT_EQ(rows(), (QStringList{u"6214 Lantern Foods --"_s, u"2330 Aster Chips 601.00"_s}));

    // The headline leaves the list; what stands in its place has its own symbols.
    view->headlineGone(again.headline);
    again = {{localTime(2026, 3, 2, 9, 2), 2, 1}, {{chips}}};
    view->vRecvNewsRelateSymbolListRecovery(&again);
    EXPECT_EQ(rows().size(), 2);

    backEnd.symbols[16][1].second = u"Aster Renamed"_s;
    view->vDoSymbolUpdate({{16, u"2330"_s}});
    EXPECT_EQ(rows().back(), u"2330 Aster Renamed 601.00");
    backEnd.followed.clear();
    view->vReRegisterSymbols();
    EXPECT_EQ(backEnd.followed[view.get()].size(), 2);
    const auto services = backEnd.registrations[view.get()];
    view->vUnregisterViewSymbol();
    EXPECT_EQ(backEnd.followed[view.get()], QStringList());
    EXPECT_EQ(backEnd.registrations[view.get()], services) << "its news goes on";
}

TEST_F(RelatedQuotesTest, TheUsersChoiceDrivesTheLinkGroupAndItsChoiceIsFollowed) {
    // Without the symbol mode, which would empty story and list for the news of a new symbol.
    open({{u"EnabledFunctions"_s, 0x09}});
    view->setLinkGroup(2);
    QStringList announced;
    QObject::connect(view.get(), &TRVQuoteBaseView::SendChangeSymbol, view.get(),
                     [&](unsigned char group, unsigned char market, const QString& code) {
                         announced += u"%1 %2:%3"_s.arg(group).arg(market).arg(code);
                     });
    selectRow(0);
    CSuperSheetWnd* sheet = quotes()->quoteSheet();
    focusGrid();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    ASSERT_TRUE(sheet->hasFocus());
    QTest::keyClick(sheet, Qt::Key_Down);
    QTest::keyClick(sheet, Qt::Key_Down);
    EXPECT_EQ(announced, (QStringList{u"2 16:2330"_s, u"2 22:00700"_s}));
    EXPECT_EQ(view->pGetCurrSheetView()->cptGetFocusNdx().y(), 0) << "the list of news does not move";
    EXPECT_EQ(rows(), ofNewest);
    unsigned char market = 0;
    QString code;
    EXPECT_EQ(quotes()->GetCurrSymbolInfo(market, code), 2);
    EXPECT_EQ(std::tie(market, code), std::make_tuple(22, u"00700"_s));
    QTest::keyClick(sheet, Qt::Key_F6);
    EXPECT_TRUE(view->pGetCurrSheetView()->hasFocus());

    view->ChangeSymbol(nullptr, 2, 16, u"2330"_s, {});
    quotes()->GetCurrSymbolInfo(market, code);
    EXPECT_EQ(code, u"2330") << "as long as it is listed";
    EXPECT_EQ(announced.size(), 2);
}

}  // namespace

}  // namespace wirepane

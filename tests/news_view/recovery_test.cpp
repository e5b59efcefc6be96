// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the user has sent again, and the back end's answers.
#include "host/views/news_control_ids.h"
#include "tests/news_view/view_fixture.h"
#include "tests/support/grid_cells.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class Recovery : public NewsViewTest {
protected:
    Recovery() {
        backEnd.services = {1, 2, 16, 52};
        backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_RECOVER"_s] = u"..."_s;
        backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_INVALID_DATE1"_s] = u"no news that day"_s;
    }

    QStringList requests(int command) {
        backEnd.asked.clear();
        EXPECT_TRUE(view->onCommand(command));
        return asked(u"again "_s);
    }

    using Answer = void (TRVNewsCtrlView::*)(const CHeadlineTableInfo*);
    // True when the answer made the view read tables.
    bool answer(Answer callback, unsigned char service, const QString& key, int status = 0) {
        backEnd.asked.clear();
        const CHeadlineTableInfo info{service, static_cast<signed char>(status), key};
        (view.get()->*callback)(&info);
        return !asked(u"table "_s).isEmpty();
    }
};

constexpr auto dateAnswer = &TRVNewsCtrlView::vRecvAllHeadlineTableRecovery;
constexpr auto categoryAnswer = &TRVNewsCtrlView::vRecvCatHeadlineTableRecovery;
constexpr auto symbolAnswer = &TRVNewsCtrlView::vRecvSymHeadlineTableRecovery;

}  // namespace

TEST_F(Recovery, SelectedRowsAwaitTheirHeadlines) {
    for (int sequence = 1; sequence <= 4; ++sequence)
        addNews(1, 9, sequence, sequence);
    openActive();
    EXPECT_EQ(requests(ids::recoverHeadline), QStringList()) << "nothing is selected";
    CSuperSheetWnd& sheet = *view->sheetOf(0);
    sheet.setActiveSelection(0, -1);
    for (const int row : {1, 3})
        sheet.selectionModel()->select(sheet.model()->index(row, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_EQ(requests(ids::recoverHeadline),
              (QStringList{u"again 1 [4 3 1]"_s, u"again 2 [4 3 1]"_s, u"again 16 [4 3 1]"_s}));
    EXPECT_EQ(titles(0), (QStringList{u"..."_s, u"..."_s, u"s1 9:02"_s, u"..."_s}));
    EXPECT_EQ(cellText(sheet, 0, "time"_L1), u"09:04"_s);
    EXPECT_EQ(cellText(sheet, 0, "category"_L1), u"..."_s);
    view->RespHeadLine({view->GetHeadlineTable(3), {0, 77, 1, 0, 0}});
    EXPECT_EQ(titles(0).back(), u"s1 9:01"_s);
    view->vRealUpdateView();
    EXPECT_EQ(titles(0).front(), u"s1 9:04"_s);
}

TEST_F(Recovery, TheFocusedRowsStoryIsAskedForAgain) {
    addNews(1, 9, 0, 1);
    addNews(1, 9, 1, 2);
    openActive();
    EXPECT_EQ(requests(ids::recoverStory), QStringList{u"again story 1 2"_s}) << "the first row stands in";
    view->sheetOf(0)->setActiveSelection(1, -1);
    EXPECT_EQ(requests(ids::recoverStory), QStringList{u"again story 1 1"_s});
    view->SwitchFunction(3);
    EXPECT_EQ(requests(ids::recoverStory), QStringList()) << "an empty list";
}

TEST_F(Recovery, AnAnswerIsTakenForWhatIsChosen) {
    openActive({{u"CategoryID"_s, u"2"_s}, {u"SymbolID"_s, u"2330"_s}});
    const std::pair<QString, QString> answers[] = {
        {u"20260302"_s, u"20260301"_s}, {u"2"_s, u"1"_s}, {u"2330"_s, u"6214"_s}};
    const Answer callbacks[] = {dateAnswer, categoryAnswer, symbolAnswer};
    for (const int mode : {0, 1, 2}) {
        view->SwitchFunction(mode);
        EXPECT_EQ(requests(ids::recoverHeadlineTable).size(), 3) << mode;
        EXPECT_TRUE(answer(callbacks[mode], 1, answers[mode].first)) << mode;
        EXPECT_FALSE(answer(callbacks[mode], 1, answers[mode].second)) << mode;
        (view.get()->*callbacks[mode])(nullptr);
    }
}

TEST_F(Recovery, AServiceWithoutDataIsNamed) {
    openActive();
    answer(dateAnswer, 1, u"20260302"_s, -1);
    EXPECT_EQ(state(u"caption"_s).toString(), u"Service 1 "_s);
    answer(dateAnswer, 2, u"20260302"_s, -1);
    EXPECT_EQ(tip(), u"Service 1 Service 2 no news that day"_s);
}

TEST_F(Recovery, AnEmptyListSaysSoUnasked) {
    backEnd.texts[u"IDS_NEWSCTRLVIEW_HINT_NO_NEWS"_s] = u"no news, press %1"_s;
    openActive();
    for (const int list : {0, 1, 2})
        EXPECT_EQ(view->sheetOf(list)->accessibleDescription(), u"no news, press F5"_s) << list;
    EXPECT_EQ(view->sheetOf(5)->accessibleDescription(), u"IDS_NEWSCTRLVIEW_HINT_NO_WARRANT_NEWS"_s);
}

TEST_F(Recovery, NewsOfABreakIsMarkedAndTheBreakIsShown) {
    addNews(1, 9, 10, 1);
    openActive();
    const auto colour = [this](int row) {
        return view->sheetOf(0)->model()->index(row, 0).data(Qt::ForegroundRole);
    };
    const auto picture = [this] { return view->grab(QRect(200, 20, 400, 40)).toImage(); };
    const QImage connected = picture();
    const auto at = [](int minute) { host_clock::startAt(localTime(2026, 3, 2, 9, minute)); };
    at(30);
    view->connectionChanged(false);
    EXPECT_NE(picture(), connected);
    at(35);
    view->connectionChanged(true);
    EXPECT_EQ(picture(), connected);
    push(1, 9, 29, 2);
    push(1, 9, 30, 3);
    push(1, 9, 34, 4);
    push(1, 9, 35, 5);
    EXPECT_EQ(titles(0),
              (QStringList{u"pushed 5"_s, u"pushed 4"_s, u"pushed 3"_s, u"pushed 2"_s, u"s1 9:10"_s}));
    const QVariant plain = colour(0);
    for (const int row : {1, 2})
        EXPECT_NE(colour(row), plain) << row;
    for (const int row : {3, 4})
        EXPECT_EQ(colour(row), plain) << row;
}

}  // namespace wirepane

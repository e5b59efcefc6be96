// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Paging through days, and following the back end's news day.
#include "host/controls/my_rich_edit.h"
#include "host/controls/s_date_time_ctrl.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "story/news_story_view.h"
#include "story/story_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class Dates : public NewsViewTest {
protected:
    Dates() {
        addNews(1, 9, 0, 1);
        addNews(2, 9, 10, 1);
        backEnd.add(1, localTime(2026, 3, 1, 8, 0), 7, u"yesterday"_s, 1);
        backEnd.add(1, localTime(2026, 3, 3, 8, 0), 1, u"tomorrow"_s, 1);
    }

    void openWithPicker(const QMap<QString, QVariant>& stored = {}) {
        openActive(stored);
        picker = qobject_cast<SDateTimeCtrl*>(dlgItem(view.get(), ids::datePicker));
        ASSERT_NE(picker, nullptr);
    }

    // What was read, the refresh of rows on screen left out.
    QStringList tablesRead() { return asked(u"table "_s); }

    void beginDay(unsigned char service, int date) {
        const CMarketStatus status{service, date};
        view->vRecvNewMarketStatus(&status);
    }

    SDateTimeCtrl* picker = nullptr;
};

}  // namespace

TEST_F(Dates, OnlyTheDateInForceWhenTheCalendarClosesCounts) {
    openWithPicker();
    view->OnDateTimeDropDown();
    picker->setDate({2026, 3, 1});
    picker->setDate({2026, 2, 20});
    EXPECT_EQ(tablesRead(), QStringList());
    picker->showDate({2026, 3, 1});
    view->OnDateTimeCloseUp();
    EXPECT_EQ(titles(0), QStringList{u"yesterday"_s});
    EXPECT_EQ(tablesRead().size(), 5) << "once, from the five ticked services";
}

TEST_F(Dates, PushesReachThePickedDayOnlyWhileItIsTheNewsDay) {
    openWithPicker();
    EXPECT_TRUE(view->bChangeDate({2026, 3, 1}));
    push(1, 9, 20, 5);
    EXPECT_EQ(titles(0), QStringList{u"yesterday"_s});
    EXPECT_TRUE(view->bChangeDate({2026, 3, 2}));
    push(1, 9, 21, 6);
    EXPECT_EQ(titles(0).front(), u"pushed 6"_s);
}

TEST_F(Dates, ANewDayDuringTheWarrantModeFollowsTheUsersChoice) {
    openWithPicker();
    view->SwitchFunction(5);
    backEnd.currentDates[1] = u"20260303"_s;
    beginDay(52, 20260303);
    EXPECT_EQ(state(u"newsDay"_s).toInt(), 20260302) << "the user has not ticked the warrant service";
    beginDay(1, 20260303);
    view->SwitchFunction(0);
    view->vRealUpdateView();
    EXPECT_EQ(titles(0), (QStringList{u"tomorrow"_s, u"s2 9:10"_s}));
}

TEST_F(Dates, GoingToARowShowsItsStory) {
    const CHeadlineTable first{localTime(2026, 3, 2, 9, 0), 1, 1, 0, 0};
    backEnd.addStory({first.time, u"the story"_s, first});
    openWithPicker();
    auto* pane = qobject_cast<NewsStoryView*>(dlgItem(view.get(), ids::firstChildView + ids::storyPane));
    ASSERT_NE(pane, nullptr);
    view->SwitchFunction(3);
    EXPECT_TRUE(view->bChangeNewsPos(0, 1));
    EXPECT_EQ(state(u"mode"_s).toInt(), 0);
    EXPECT_EQ(view->sheetOf(0)->cptGetFocusNdx().y(), 1);
    EXPECT_TRUE(static_cast<MyRichEdit*>(dlgItem(pane, story_ids::storyText))
                    ->literalText()
                    .contains(u"the story"_s));
    const std::pair<int, int> positions[] = {{0, 0}, {2, 2}, {3, 1}, {-4, 0}};
    for (const auto& [wanted, held] : positions) {
        view->bChangeNewsPos(0, wanted);
        EXPECT_EQ(pane->GetHeadLinePos(), held) << wanted;
    }
}

}  // namespace wirepane

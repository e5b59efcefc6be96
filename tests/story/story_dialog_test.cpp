// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/language_keys.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/s_button.h"
#include "host/controls/window_id.h"
#include "host/views/main_frame_window.h"
#include "story/story_ids.h"
#include "story/story_owner.h"
#include "story/trv_news_story.h"
#include "tests/support/fake_back_end.h"

#include <QLineEdit>
#include <QTest>
#include <QTextCursor>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int list = 3;

// A view of one list that writes down what the dialog asks of it.
class Owner : public StoryOwner {
public:
    int iGetHeadlineTableSize(int number) const override {
        return number == list ? static_cast<int>(entries.size()) : 0;
    }
    bool bGetHeadlineTable(CHeadlineTable& entry, int number, int row) const override {
        if (row < 0 || row >= iGetHeadlineTableSize(number))
            return false;
        entry = entries[static_cast<std::size_t>(row)];
        return true;
    }
    void vGetNewsActiveService(std::vector<unsigned char>& services) const override { services = {1, 2}; }
    bool bChangeNewsPos(int number, int row) override {
        asked.append(u"go %1 %2"_s.arg(number).arg(row));
        return true;
    }
    void OnPrintNews() override { asked.append(u"print"_s); }
    void OnSaveNews() override { asked.append(u"save"_s); }

    std::vector<CHeadlineTable> entries;
    QStringList asked;
};

class Frame : public CMainFrame {
public:
    QWidget* pGetWindow() override { return &window; }
    void OnStoryWindowClosed() override { ++closed; }

    QWidget window;
    int closed = 0;
};

MyRichEdit* edit(const QWidget& dialog, int id) {
    return qobject_cast<MyRichEdit*>(GetDlgItem(&dialog, id));
}

QString title(const QWidget& dialog) {
    return edit(dialog, story_ids::title)->szGetText();
}

QString story(const QWidget& dialog) {
    return edit(dialog, story_ids::storyText)->szGetText();
}

class StoryDialogTest : public testing::Test {
protected:
    StoryDialogTest() {
        backEnd.texts = {{u"IDS_NEWSCTRLVIEW_STRING_RECOVER"_s, u"Fetching"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_NO_NEWS_STORY"_s, u"No story"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_PS"_s, u"End."_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_WAIT_FOR_UPDATE"_s, u"Wait"_s}};
        for (int i = 1; i <= 3; ++i) {
            const CHeadlineTable entry{localTime(2026, 3, 2, 9, 10 - i), i, 1, 0, 0};
            owner.entries.push_back(entry);
            backEnd.add(1, entry.time, i, u"Title %1"_s.arg(i));
            backEnd.addStory({entry.time, u"Story %1@@@@rates"_s.arg(i), entry});
        }
        view.resize(400, 300);
    }
    void click(TRVNewsStory& dialog, int id) { QTest::mouseClick(GetDlgItem(&dialog, id), Qt::LeftButton); }

    FakeBackEnd backEnd;
    Owner owner;
    QWidget view;
};

}  // namespace

TEST_F(StoryDialogTest, PagesRoundAndRoundAndTakesTheSelectionAlong) {
    TRVNewsStory dialog(owner, &view);
    dialog.show();
    dialog.vSetStoryData(list, 1);
    EXPECT_EQ(title(dialog), u"2026/03/02 09:08:00 \r\nTitle 2"_s);
    EXPECT_EQ(story(dialog), u"2026/03/02 09:08:00 \r\nStory 2\r\nrates  \r\n\r\nEnd."_s);
    click(dialog, story_ids::nextButton);
    click(dialog, story_ids::nextButton);
    EXPECT_TRUE(title(dialog).endsWith(u"Title 1"_s)) << "after the last comes the first";
    click(dialog, story_ids::previousButton);
    EXPECT_TRUE(title(dialog).endsWith(u"Title 3"_s));
    EXPECT_EQ(owner.asked, (QStringList{u"go 3 2"_s, u"go 3 0"_s, u"go 3 2"_s}));
    owner.asked.clear();
    click(dialog, story_ids::printButton);
    click(dialog, story_ids::saveAsButton);
    EXPECT_EQ(owner.asked, (QStringList{u"go 3 2"_s, u"print"_s, u"go 3 2"_s, u"save"_s}));
    owner.asked.clear();
    owner.entries.clear();
    click(dialog, story_ids::nextButton);
    click(dialog, story_ids::previousButton);
    EXPECT_TRUE(owner.asked.isEmpty());
    EXPECT_TRUE(title(dialog).endsWith(u"Title 3"_s)) << "an empty list changes nothing";
}

TEST_F(StoryDialogTest, WaitsForItsStoryLikeThePane) {
    TRVNewsStory dialog(owner, &view);
    backEnd.storyAtHand = false;
    CSearch condition;
    condition.keywords = {u"RATES"_s};
    condition.keywordSearch = true;
    dialog.vSetStoryData(list, 0, condition);
    EXPECT_EQ(story(dialog), u"Fetching"_s);
    dialog.vStoryUpdateNotify(nullptr);
    EXPECT_FALSE(GetDlgItem(&dialog, story_ids::updateNotice)->isHidden());
    backEnd.storyAtHand = true;
    dialog.RespStory(owner.entries[1]);
    EXPECT_EQ(story(dialog), u"Fetching"_s) << "of another headline";
    dialog.RespStory(owner.entries[0]);
    EXPECT_EQ(story(dialog), u"2026/03/02 09:09:00 \r\nStory 1\r\nrates \r\n\r\nEnd."_s);
    EXPECT_EQ(edit(dialog, story_ids::storyText)->textCursor().selectedText(), u"rates"_s);
    EXPECT_TRUE(GetDlgItem(&dialog, story_ids::updateNotice)->isHidden());
}

TEST_F(StoryDialogTest, ItsPartsShareTheWindow) {
    TRVNewsStory dialog(owner, &view);
    dialog.resize(700, 500);
    dialog.show();
    const QRect titlePlace = edit(dialog, story_ids::title)->geometry();
    EXPECT_EQ(titlePlace.topLeft(), QPoint(10, 10));
    EXPECT_EQ(titlePlace.width(), 680);
    const int top = titlePlace.bottom() + 11;
    EXPECT_EQ(edit(dialog, story_ids::storyText)->geometry(), QRect(10, top, 680, 450 - top));
    int right = 690;
    for (const int id : {story_ids::previousButton, story_ids::nextButton, story_ids::saveAsButton,
                         story_ids::printButton}) {
        const QRect button = GetDlgItem(&dialog, id)->geometry();
        EXPECT_EQ(button.left() + button.width(), right);
        EXPECT_EQ(button.top(), 465);
        right = button.left() - 9;
    }
}

TEST_F(StoryDialogTest, ClosingGivesTheKeyboardBack) {
    QLineEdit other(&view);
    view.show();
    view.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    TRVNewsStory dialog(owner, &view);
    const auto open = [&] {
        other.setFocus();
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    };
    open();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.hasFocus(); }));
    open();
    dialog.close();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.hasFocus(); }));
}

TEST_F(StoryDialogTest, ABareWindowShowsWhatTheMainFrameGivesIt) {
    Frame frame;
    TRVNewsStory dialog(&frame);
    dialog.resize(600, 400);
    dialog.show();
    for (const int id :
         {story_ids::previousButton, story_ids::nextButton, story_ids::saveAsButton, story_ids::printButton})
        EXPECT_TRUE(GetDlgItem(&dialog, id)->isHidden());
    EXPECT_EQ(edit(dialog, story_ids::storyText)->geometry().bottom(), 389);
    dialog.vMainFrameShowHeadline(u"Breaking"_s);
    EXPECT_EQ(title(dialog), u"Breaking"_s);
    EXPECT_EQ(story(dialog), u"Fetching"_s);
    backEnd.simplified = true;
    dialog.vMainFrameShowStroy({localTime(2026, 3, 2, 9, 5, 7), u"新聞@@@@B\r\nC"_s, {}});
    EXPECT_EQ(story(dialog), u"2026/03/02 09:05:07 \r\n新聞\r\nBC  \r\n\r\nEnd."_s) << "not converted";
    dialog.vMainFrameShowStroy({0, {}, {}});
    EXPECT_EQ(story(dialog), u"Fetching"_s);
    dialog.OnBtnPageDown();
    dialog.OnBtnPrint();
    dialog.vShowData();
    EXPECT_EQ(title(dialog), u"Breaking"_s);
    dialog.close();
    EXPECT_EQ(frame.closed, 1);
}

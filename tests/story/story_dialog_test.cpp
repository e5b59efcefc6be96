// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/language_keys.h"
#include "host/contract/sync_info.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/s_button.h"
#include "host/controls/window_id.h"
#include "host/views/main_frame_window.h"
#include "story/story_ids.h"
#include "story/story_owner.h"
#include "story/story_size.h"
#include "story/trv_news_story.h"
#include "story/window_places.h"
#include "tests/support/fake_back_end.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QTextCursor>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int list = 3;

// A view of one list that writes down what the dialog asks of it.
class Owner : public StoryOwner {
public:
    int entryCount(ListIndex of) const override {
        return of == ListIndex(list) ? static_cast<int>(entries.size()) : 0;
    }
    std::optional<CHeadlineTable> entryOf(ListIndex of, int row) const override {
        if (row < 0 || row >= entryCount(of))
            return std::nullopt;
        return entries[static_cast<std::size_t>(row)];
    }
    void vGetNewsActiveService(std::vector<unsigned char>& services) const override { services = {1, 2}; }
    void goTo(ListIndex of, int row) override {
        if (onGo)
            onGo();
        asked.append(u"go %1 %2"_s.arg(static_cast<int>(of)).arg(row));
    }
    int rowOf(ListIndex of, const CHeadlineTable& headline) const override {
        for (int row = 0; row < entryCount(of); ++row) {
            if (keyOf(entries[static_cast<std::size_t>(row)]) == keyOf(headline))
                return row;
        }
        return -1;
    }
    void printHeadline(const CHeadlineTable& headline) override {
        asked.append(u"print %1"_s.arg(headline.sequence));
    }
    void saveHeadline(const CHeadlineTable& headline) override {
        asked.append(u"save %1"_s.arg(headline.sequence));
    }

    std::vector<CHeadlineTable> entries;
    QStringList asked;
    std::function<void()> onGo;
};

class Frame : public CMainFrame {
public:
    QWidget* frameWindow() override { return &window; }
    void onStoryWindowClosed() override { ++closed; }

    QWidget window;
    int closed = 0;
};

MyRichEdit* edit(const QWidget& dialog, int id) {
    return qobject_cast<MyRichEdit*>(dlgItem(&dialog, id));
}

QString title(const QWidget& dialog) {
    return edit(dialog, story_ids::title)->literalText();
}

QString story(const QWidget& dialog) {
    return edit(dialog, story_ids::storyText)->literalText();
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
    void click(TRVNewsStory& dialog, int id) { QTest::mouseClick(dlgItem(&dialog, id), Qt::LeftButton); }

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
    EXPECT_EQ(owner.asked, (QStringList{u"go 3 2"_s, u"print 3"_s, u"go 3 2"_s, u"save 3"_s}));
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
    EXPECT_FALSE(dlgItem(&dialog, story_ids::updateNotice)->isHidden());
    backEnd.storyAtHand = true;
    dialog.RespStory(owner.entries[1]);
    EXPECT_EQ(story(dialog), u"Fetching"_s) << "of another headline";
    dialog.RespStory(owner.entries[0]);
    EXPECT_EQ(story(dialog), u"2026/03/02 09:09:00 \r\nStory 1\r\nrates \r\n\r\nEnd."_s);
    EXPECT_EQ(edit(dialog, story_ids::storyText)->textCursor().selectedText(), u"rates"_s);
    EXPECT_TRUE(dlgItem(&dialog, story_ids::updateNotice)->isHidden());
}

TEST_F(StoryDialogTest, ItsHeadlineIsTheOneOnShowWhereverItStandsByNow) {
    TRVNewsStory dialog(owner, &view);
    backEnd.storyAtHand = false;
    dialog.vSetStoryData(list, 1);
    const CHeadlineTable shown = owner.entries[1];
    const CHeadlineTable pushed{shown.time + 600, 9, 1, 0, 0};
    backEnd.add(1, pushed.time, 9, u"Pushed"_s);
    owner.entries.insert(owner.entries.begin(), pushed);
    backEnd.storyAtHand = true;
    dialog.RespStory(owner.entries[1]);
    EXPECT_EQ(story(dialog), u"Fetching"_s) << "the headline that stands at its row by now is another one";
    dialog.RespStory(shown);
    EXPECT_TRUE(story(dialog).contains(u"Story 2"_s));
    dialog.OnBtnPrint();
    EXPECT_EQ(owner.asked, (QStringList{u"go 3 2"_s, u"print 2"_s}));
    owner.asked.clear();
    // What was asked for by its row is not on show yet.
    dialog.SetHeadLinePos(0);
    owner.entries.erase(owner.entries.begin() + 2);
    dialog.OnBtnSaveas();
    EXPECT_EQ(owner.asked, QStringList{u"save 2"_s}) << "it has left the list";
}

TEST_F(StoryDialogTest, PagingGoesOnFromThePositionThatNothingShifts) {
    TRVNewsStory dialog(owner, &view);
    dialog.vSetStoryData(list, 1);
    backEnd.add(1, owner.entries[0].time + 60, 9, u"Pushed"_s);
    owner.entries.insert(owner.entries.begin(), {owner.entries[0].time + 60, 9, 1, 0, 0});
    EXPECT_EQ(dialog.GetHeadLinePos(), 1);
    dialog.OnBtnPageUp();
    EXPECT_TRUE(title(dialog).endsWith(u"Pushed"_s));
    dialog.OnBtnPageDown();
    EXPECT_TRUE(title(dialog).endsWith(u"Title 1"_s));
    EXPECT_EQ(owner.asked, (QStringList{u"go 3 0"_s, u"go 3 1"_s}));
    // The owner finds the dialog where it goes.
    QString shown;
    owner.onGo = [&] { shown = title(dialog); };
    dialog.OnBtnPageDown();
    EXPECT_TRUE(shown.endsWith(u"Title 2"_s)) << shown.toStdString();
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
        const QRect button = dlgItem(&dialog, id)->geometry();
        EXPECT_EQ(button.left() + button.width(), right);
        EXPECT_EQ(button.top(), 465);
        right = button.left() - 9;
    }
    const int width = dlgItem(&dialog, story_ids::nextButton)->width();
    backEnd.texts[u"IDS_DIALOG-STORY_PRINT"_s] = u"Print in another language, and at length"_s;
    dialog.vLoadLanguageString();
    EXPECT_GT(dlgItem(&dialog, story_ids::nextButton)->width(), width) << "as wide as the widest";
}

TEST_F(StoryDialogTest, TheNoticeAndTheFontMoveTheParts) {
    struct Scheme : CSyncInfo {
        Scheme() { setSettingCFG(this); }
        QFont SYS_fntGetViewFont() override { return font; }
        QFont font;
    } scheme;
    scheme.font.setPixelSize(27);
    TRVNewsStory dialog(owner, &view);
    dialog.resize(700, 500);
    dialog.show();
    const auto expectSize = [&](int pixels) {
        for (const int id : {story_ids::title, story_ids::storyText, story_ids::updateNotice})
            EXPECT_EQ(static_cast<QWidget*>(dlgItem(&dialog, id))->font().pixelSize(), pixels);
    };
    expectSize(27);
    QFont font;
    font.setPixelSize(21);
    dialog.vSetFont(font);
    expectSize(21);
    const QRect titlePlace = edit(dialog, story_ids::title)->geometry();
    const QRect storyPlace = edit(dialog, story_ids::storyText)->geometry();
    EXPECT_EQ(titlePlace.height(), 2 * edit(dialog, story_ids::title)->fontMetrics().lineSpacing() + 10);
    dialog.vStoryUpdateNotify(nullptr);
    const QRect notice = dlgItem(&dialog, story_ids::updateNotice)->geometry();
    EXPECT_EQ(notice, QRect(10, 10, 680, QFontMetrics(font).height()));
    EXPECT_EQ(edit(dialog, story_ids::title)->geometry(), titlePlace.translated(0, notice.height()));
    EXPECT_EQ(edit(dialog, story_ids::storyText)->geometry(), storyPlace.adjusted(0, notice.height(), 0, 0));
    dialog.vSetStoryData(list, 0);
    EXPECT_EQ(edit(dialog, story_ids::title)->geometry(), titlePlace);
}

TEST_F(StoryDialogTest, HasNoKeysOfItsOwnAndNamesItsParts) {
    backEnd.texts[u"IDS_DIALOG-STORY_TITLE"_s] = u"A story"_s;
    TRVNewsStory dialog(owner, &view);
    EXPECT_EQ(dialog.windowTitle(), u"A story"_s);
    EXPECT_FALSE(edit(dialog, story_ids::title)->accessibleName().isEmpty());
    EXPECT_FALSE(edit(dialog, story_ids::storyText)->accessibleName().isEmpty());
    dialog.show();
    dialog.vSetStoryData(list, 0);
    QTest::keyClick(&dialog, Qt::Key_Return);
    QTest::keyClick(edit(dialog, story_ids::storyText), Qt::Key_Return);
    EXPECT_TRUE(owner.asked.isEmpty()) << owner.asked.join(u' ').toStdString();
    EXPECT_TRUE(dialog.isVisible());
    // Tab reads on from the story: print, save as, next, previous.
    const QWidget* last = dlgItem(&dialog, story_ids::printButton);
    for (const int id : {story_ids::saveAsButton, story_ids::nextButton, story_ids::previousButton}) {
        EXPECT_EQ(last->nextInFocusChain(), dlgItem(&dialog, id));
        last = dlgItem(&dialog, id);
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
        EXPECT_TRUE(dlgItem(&dialog, id)->isHidden());
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

TEST_F(StoryDialogTest, WithToolsIsTitledByItsHeadlineAndGoesItsOwnWayWhenPinned) {
    QStringList places;
    TRVNewsStory dialog(owner, &view);
    dialog.setStorySetting({true});
    dialog.addTools(places);
    dialog.show();
    dialog.vSetStoryData(list, 0);
    EXPECT_EQ(dialog.windowTitle(), edit(dialog, story_ids::storyText)->lead().headline);
    EXPECT_FALSE(dialog.windowTitle().isEmpty());
    // Next, previous, save as, then apart from them print.
    const auto place = [&dialog](int id) { return dlgItem(&dialog, id)->geometry(); };
    EXPECT_EQ(place(story_ids::previousButton).left() - place(story_ids::nextButton).right(), 4);
    EXPECT_EQ(place(story_ids::saveAsButton).left() - place(story_ids::previousButton).right(), 4);
    EXPECT_EQ(place(story_ids::printButton).left() - place(story_ids::saveAsButton).right(), 10);

    const auto tools = dialog.findChildren<QToolButton*>();
    ASSERT_EQ(tools.size(), 4);
    for (const QToolButton* tool : tools)
        EXPECT_FALSE(tool->toolTip().isEmpty() || tool->accessibleName().isEmpty());
    owner.asked.clear();
    tools.back()->click();
    EXPECT_TRUE(dialog.isPinned());
    click(dialog, story_ids::nextButton);
    EXPECT_TRUE(owner.asked.filter(u"go"_s).isEmpty());
    EXPECT_EQ(dialog.GetHeadLinePos(), 1);
    tools.front()->click();
    EXPECT_EQ(QApplication::clipboard()->text(), story(dialog).replace(u"\r\n"_s, u"\n"_s));

    dialog.setGeometry(20, 30, 500, 400);
    EXPECT_EQ(placeOn(places, dialog.screen()->name()), QRect(20, 30, 500, 400));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible() || dialog.isPinned());
}

TEST(WindowPlaces, LieBesideTheListAndAreKeptForEachScreen) {
    const QRect screen(0, 0, 1000, 600);
    const QSize size(300, 400);
    EXPECT_EQ(placeBeside({0, 50, 600, 500}, size, screen), QRect(608, 50, 300, 400));
    EXPECT_EQ(placeBeside({400, 50, 600, 500}, size, screen), QRect(92, 50, 300, 400));
    EXPECT_EQ(placeBeside(screen, {2000, 700}, screen), screen) << "no larger than the screen";
    QStringList places{u"broken"_s, u"1,2,x a"_s};
    keepPlace(places, u"left one"_s, {1, 2, 30, 40});
    keepPlace(places, u"b"_s, {-5, 6, 7, 8});
    keepPlace(places, u"left one"_s, {2, 2, 30, 40});
    EXPECT_EQ(placeOn(places, u"left one"_s), QRect(2, 2, 30, 40));
    EXPECT_EQ(placeOn(places, u"b"_s), QRect(-5, 6, 7, 8));
    EXPECT_FALSE(placeOn(places, u"a"_s));
}

}  // namespace wirepane

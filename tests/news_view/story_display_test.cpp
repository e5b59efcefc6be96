// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The story of a list's row, in the pane and in its window, without a view.
#include "news_view/story_display.h"

#include "host/controls/quote_static_ex.h"
#include "news_view/story_stage.h"
#include "news_view/view_layout.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"
#include "tests/news_view/fake_view.h"

#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr StoryShowType inWindow = StoryShowType::None;
constexpr StoryShowType atRight = StoryShowType::Right;

// Five headlines, 9:05 in row 0, in a view with a pane and a window for stories.
class StoryDisplayTest : public testing::Test {
protected:
    StoryDisplayTest() {
        for (std::int32_t i = 1; i <= 5; ++i)
            view.add(i);
        view.read();
        view.window.show();
        stage.setDialog(new TRVNewsStory(view, &view.window));
    }

    void givePane() {
        auto* pane = new NewsStoryView(&view.window);
        pane->vSetNewsParent(&view);
        pane->OnInitialUpdate();
        MemoryCfgIO settings;
        pane->InitialViewInfo(&settings, {}, 0, 0, {});
        stage.setPane(pane);
    }
    NewsStoryView& pane() { return *stage.storyPane(); }
    TRVNewsStory& window() { return *stage.storyDialog(); }
    void focus(int row) { view.grid()->setActiveSelection(row, -1); }
    // How often a story was read since this was called last.
    qsizetype storiesRead() {
        const qsizetype count = backEnd.asked.filter(u"story"_s).size();
        backEnd.asked.clear();
        return count;
    }

    FakeBackEnd backEnd;
    FakeView view{backEnd};
    StoryStage stage;
    QList<ListIndex> foundUnder;
    QStringList wentTo;
    StoryDisplay story{
        view,
        backEnd,
        {stage,
         [this](ListIndex list) {
             foundUnder.append(list);
             return CSearch();
         },
         [] { return QFont(); },
         [this](ListIndex list, int row) { wentTo.append(u"%1:%2"_s.arg(static_cast<int>(list)).arg(row)); },
         [](const CHeadlineTable&, bool) {}}};
};

}  // namespace

TEST_F(StoryDisplayTest, ShowTypesGoRoundAndThePaneNeedsToBeThere) {
    for (unsigned short type = 0; type < 5; ++type) {
        story.setShowType(storyShowTypeOf(type));
        EXPECT_EQ(static_cast<int>(story.showType()), type % 3);
        EXPECT_FALSE(story.paneShowsStories()) << "there is no pane";
        EXPECT_TRUE(story.hasStoryWindow());
    }
    givePane();
    EXPECT_TRUE(story.paneShowsStories());
    EXPECT_FALSE(story.hasStoryWindow());
    EXPECT_TRUE(story.hasOpenStory());
    story.setShowType(inWindow);
    EXPECT_FALSE(story.paneShowsStories());
    EXPECT_FALSE(story.hasOpenStory());
}

TEST_F(StoryDisplayTest, ThePaneReadsAStoryOncePerRow) {
    givePane();
    story.setShowType(atRight);
    view.grid()->resize(600, 60);
    focus(2);
    storiesRead();
    story.show();
    EXPECT_EQ(storiesRead(), 1);
    EXPECT_EQ(story.shownRow(), 2);
    EXPECT_GT(view.grid()->firstVisibleRow(), 0) << "its row is scrolled into sight";
    EXPECT_EQ(pane().GetHeadLinePos(), 2);
    EXPECT_EQ(foundUnder, QList<ListIndex>{ListIndex::All});
    EXPECT_FALSE(window().isVisible());
    story.show();
    EXPECT_EQ(storiesRead(), 0) << "it shows this row already";
    story.forget();
    EXPECT_EQ(story.shownRow(), -1);
    story.show();
    EXPECT_EQ(storiesRead(), 1);
    story.clear();
    EXPECT_EQ(story.shownRow(), -1);
    EXPECT_EQ(pane().headlinePointedAt(), std::nullopt);
}

TEST_F(StoryDisplayTest, TheWindowOpensAndGoesWithTheFocus) {
    givePane();
    story.setShowType(inWindow);
    focus(1);
    story.show();
    EXPECT_EQ(story.windowOnShow(), &window());
    EXPECT_TRUE(story.hasOpenStory());
    EXPECT_EQ(window().GetHeadLinePos(), 1);
    EXPECT_EQ(story.shownRow(), -1) << "that is the pane's";
    view.lists[ListIndex::All].setTable(TableRuns());
    view.lists[ListIndex::All].vFillHeadlineTable();
    story.show();
    EXPECT_EQ(story.windowOnShow(), nullptr) << "without a row there is no story";
}

TEST_F(StoryDisplayTest, ClicksGoWhereStoriesAreShown) {
    story.setShowType(inWindow);
    focus(1);
    EXPECT_FALSE(story.takeClick()) << "without a pane a click is nothing";
    givePane();
    EXPECT_TRUE(story.takeClick());
    EXPECT_EQ(wentTo, QStringList{u"0:1"_s});
    EXPECT_EQ(story.shownRow(), 1);
    EXPECT_EQ(story.windowOnShow(), nullptr) << "one click opens no window";
    story.takeDoubleClick();
    EXPECT_NE(story.windowOnShow(), nullptr);

    window().hide();
    story.setShowType(atRight);
    focus(3);
    EXPECT_TRUE(story.takeClick());
    EXPECT_EQ(story.shownRow(), 3);
    EXPECT_EQ(wentTo.size(), 1) << "the pane shows it";
    story.takeDoubleClick();
    EXPECT_FALSE(window().isVisible());
}

TEST_F(StoryDisplayTest, PagesGoRoundAndRound) {
    givePane();
    story.setShowType(atRight);
    focus(3);
    story.show();
    for (const int step : {1, 1, -1, -1})
        story.page(step);
    EXPECT_EQ(wentTo, (QStringList{u"0:4"_s, u"0:0"_s, u"0:4"_s, u"0:3"_s}));
    wentTo.clear();
    view.shown = ListIndex::Category;
    story.page(1);
    EXPECT_EQ(wentTo, QStringList()) << "an empty list has no pages";
}

TEST_F(StoryDisplayTest, TheFollowedRowIsTheReadersOwn) {
    givePane();
    story.setShowType(atRight);
    focus(1);
    story.follow(*view.grid(), ListIndex::Category);
    EXPECT_EQ(story.shownRow(), -1) << "another list than the shown one";
    story.follow(*view.grid(), ListIndex::All);
    EXPECT_EQ(story.shownRow(), 1);
    story.setShowType(inWindow);
    story.follow(*view.grid(), ListIndex::All);
    EXPECT_EQ(story.windowOnShow(), nullptr);
}

TEST_F(StoryDisplayTest, AListReadAnewKeepsTheStoryOfItsReader) {
    givePane();
    story.setShowType(atRight);
    focus(3);
    story.show();
    view.add(6);
    bool followed = true;
    EXPECT_TRUE(story.readInPlace(ListIndex::All, [&] {
        const bool hasRows = view.read();
        story.forget();
        story.follow(*view.grid(), ListIndex::All);
        followed = story.shownRow() >= 0;
        return hasRows;
    }));
    EXPECT_FALSE(followed) << "the reader has gone nowhere";
    EXPECT_EQ(pane().GetHeadLinePos(), 4);
    EXPECT_FALSE(story.readInPlace(ListIndex::Category, [] { return false; })) << "as it was read";
    EXPECT_EQ(pane().GetHeadLinePos(), 4) << "another list than the pane's";
    story.follow(*view.grid(), ListIndex::All);
    EXPECT_GE(story.shownRow(), 0) << "and afterwards rows are followed again";
}

TEST_F(StoryDisplayTest, ThePaneKeepsItsStoryWhileRowsComeAndGo) {
    struct Case {
        const char* what;
        ListIndex list;
        HeadlinePlace place;
        int position;
        bool listed;
    };
    const Case cases[] = {
        {"one came above", ListIndex::All, {0, -1}, 3, true},
        {"one came in its place", ListIndex::All, {2, -1}, 3, true},
        {"one came below", ListIndex::All, {3, -1}, 2, true},
        {"one went above", ListIndex::All, {-1, 1}, 1, true},
        {"one went below", ListIndex::All, {-1, 3}, 2, true},
        {"its own went", ListIndex::All, {-1, 2}, 2, false},
        {"its own moved to the top", ListIndex::All, {0, 2}, 0, true},
        {"one moved to the top from below", ListIndex::All, {0, 4}, 3, true},
        {"one moved to the top from above", ListIndex::All, {0, 1}, 2, true},
        {"nothing", ListIndex::All, {}, 2, true},
        {"in another list", ListIndex::Category, {0, -1}, 2, true},
    };
    givePane();
    story.setShowType(atRight);
    for (const Case& c : cases) {
        story.forget();
        focus(2);
        story.show();
        story.keepThrough(c.list, c.place);
        EXPECT_EQ(pane().GetHeadLinePos(), c.position) << c.what;
        EXPECT_EQ(pane().headlinePointedAt().has_value(), c.listed) << c.what;
    }
    story.setShowType(inWindow);
    const int before = pane().GetHeadLinePos();
    story.keepThrough(ListIndex::All, {0, -1});
    EXPECT_EQ(pane().GetHeadLinePos(), before) << "a pane that is not shown";
}

TEST_F(StoryDisplayTest, TheRowOfTheDisplayIsPointedAt) {
    givePane();
    story.setShowType(atRight);
    EXPECT_EQ(story.pointAt(3), 3);
    EXPECT_EQ(pane().GetHeadLinePos(), 3);
    EXPECT_EQ(story.pointAt(-1), 0);
    story.setShowType(inWindow);
    EXPECT_EQ(story.pointAt(2), 2);
    EXPECT_EQ(window().GetHeadLinePos(), 2);
    EXPECT_EQ(pane().GetHeadLinePos(), 0);
    stage.setDialog(nullptr);
    EXPECT_EQ(story.pointAt(2), -1) << "stories are shown nowhere";
}

TEST_F(StoryDisplayTest, AnswersReachTheDisplayThatIsToBeSeen) {
    givePane();
    backEnd.storyAtHand = false;
    const CHeadlineTable entry = view.entryAt(ListIndex::All, 1);
    for (const StoryShowType type : {inWindow, atRight}) {
        story.setShowType(type);
        focus(1);
        story.show();
        storiesRead();
        story.takeStory(entry);
        EXPECT_EQ(storiesRead(), 1) << static_cast<int>(type);
        story.takeStory(view.entryAt(ListIndex::All, 2));
        EXPECT_EQ(storiesRead(), 0) << "of another headline";
        if (type == inWindow)
            window().hide();
    }
    story.setShowType(inWindow);
    story.takeStory(entry);
    EXPECT_EQ(storiesRead(), 0) << "neither is to be seen";
}

TEST_F(StoryDisplayTest, AnUpdateIsToldWhereTheStoryIs) {
    givePane();
    const CHeadlineTable entry = view.entryAt(ListIndex::All, 0);
    CHeadlineTable unlisted = entry;
    unlisted.sequence = 99;
    const auto isTold = [](const QWidget& display) {
        return !display.findChild<CQuoteStaticEx*>()->isHidden();
    };
    story.setShowType(atRight);
    focus(0);
    story.show();
    story.takeUpdate(unlisted);
    EXPECT_FALSE(isTold(pane()));
    story.takeUpdate(entry);
    EXPECT_TRUE(isTold(pane()));
    story.setShowType(inWindow);
    story.show();
    story.takeUpdate(unlisted);
    EXPECT_FALSE(isTold(window()));
    story.takeUpdate(entry);
    EXPECT_TRUE(isTold(window()));
}

TEST_F(StoryDisplayTest, RelatedSymbolsAreThoseOfTheHeadlineShown) {
    givePane();
    auto* quotes = new CNewsRelateSymbolQuoteView(&view.window);
    ASSERT_TRUE(quotes->CreateView(&view.window, u"quotes"_s, 0, 0));
    stage.setQuotes(quotes);
    backEnd.related[{1, 4}] = {{16, u"2330"_s}};
    story.setShowType(atRight);
    focus(1);
    story.show();
    EXPECT_EQ(quotes->quoteTable().size(), 1);
    CNewsSymlistInfo info;
    info.headline = keyOf(view.entryAt(ListIndex::All, 2));
    info.list.symbols = {{16, u"1101"_s}, {16, u"1102"_s}};
    story.takeRelatedSymbols(info);
    EXPECT_EQ(quotes->quoteTable().size(), 1) << "of another headline";
    info.headline = keyOf(view.entryAt(ListIndex::All, 1));
    story.takeRelatedSymbols(info);
    EXPECT_EQ(quotes->quoteTable().size(), 2);
    const HeadlinePlace left = view.lists[ListIndex::All].takeOut(1);
    story.keepThrough(ListIndex::All, left);
    story.listRelatedSymbols();
    EXPECT_EQ(quotes->quoteTable().size(), 2) << "another headline stands at its row by now";
    story.clear();
    EXPECT_EQ(quotes->quoteTable().size(), 0);
    story.listRelatedSymbols();
    EXPECT_EQ(quotes->quoteTable().size(), 0) << "nothing is shown";
}

// While a window is pinned, the next story opens another one; both hear what comes for them.
TEST_F(StoryDisplayTest, OpensAnotherWindowBesideAPinnedOne) {
    QStringList places;
    const auto make = [&] {
        auto* dialog = new TRVNewsStory(view, &view.window);
        dialog->addTools(places);
        return dialog;
    };
    delete stage.storyDialog();
    stage.setDialog(make());
    stage.setDialogMaker(make);
    givePane();
    story.setShowType(atRight);
    focus(0);
    story.show();
    story.openWindow();
    TRVNewsStory* first = &window();
    EXPECT_TRUE(first->isVisible());
    story.openWindow();
    EXPECT_EQ(&window(), first) << "not pinned: it is used again";
    first->findChildren<QToolButton*>().back()->click();
    focus(2);
    story.show();
    story.openWindow();
    EXPECT_NE(&window(), first);
    EXPECT_NE(window().pos(), first->pos()) << "both are in sight";
    EXPECT_EQ(stage.windows().size(), 2U);
    EXPECT_EQ(first->GetHeadLinePos(), 0);
    EXPECT_EQ(window().GetHeadLinePos(), 2);
    stage.hideDialog();
    EXPECT_TRUE(window().isVisible()) << "the user closes it";
    first->reject();
    EXPECT_TRUE(QTest::qWaitFor([this] { return stage.windows().size() == 1; }));
}

}  // namespace wirepane

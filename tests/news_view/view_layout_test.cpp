// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/view_layout.h"

#include <gtest/gtest.h>

namespace wirepane {

namespace {

// A view of 1000 x 700 pixels with a font of 16 pixels: unit width 70, page buttons 64, control row 31..51.
LayoutInput ordinary() {
    LayoutInput in;
    in.client = QRect(0, 0, 1000, 700);
    in.fontHeight = 16;
    in.firstTabHeight = 20;
    in.serviceCount = 6;
    in.serviceComboText = 60;
    in.symbolComboText = 100;
    in.captionButtonWidth = 20;
    in.showType = StoryShowType::None;
    in.hasStoryPane = true;
    in.hasAllNewsGrid = true;
    return in;
}

}  // namespace

TEST(ViewLayout, ControlsOfAnOrdinaryView) {
    const ViewLayout out = layOut(ordinary());
    EXPECT_EQ(out.tabStrip, QRect(0, 0, 924, 22));
    EXPECT_EQ(out.showTypeButton, QRect(924, 0, 73, 22));
    EXPECT_EQ(out.serviceButton, QRect(4, 27, 76, 20));
    EXPECT_EQ(out.relationButton, QRect(82, 27, 70, 20));
    EXPECT_EQ(out.datePicker, QRect(84, 27, 102, 20));
    EXPECT_EQ(out.categoryCombo, QRect(84, 27, 122, 20));
    EXPECT_EQ(out.serviceCombo, QRect(84, 27, 80, 20));
    EXPECT_EQ(out.symbolCombo, QRect(168, 27, 125, 20));
    EXPECT_EQ(out.searchEdit, QRect(83, 27, 152, 20));
    EXPECT_EQ(out.searchButton, QRect(237, 27, 70, 20));
    EXPECT_EQ(out.dealsButton, QRect(309, 27, 76, 20));
    EXPECT_EQ(out.pageDown, QRect(717, 27, 64, 20));
    EXPECT_EQ(out.pageUp, QRect(784, 27, 64, 20));
    EXPECT_EQ(out.saveAs, QRect(851, 27, 70, 20));
    EXPECT_EQ(out.print, QRect(930, 27, 70, 20));
    EXPECT_EQ(out.grid, QRect(0, 55, 1000, 645));
    EXPECT_TRUE(out.storyPane.isEmpty());
}

TEST(ViewLayout, ALargerFontAndATitleMoveEverythingDown) {
    LayoutInput in = ordinary();
    in.fontHeight = 25;
    in.firstTabHeight = 0;
    in.titleHeight = 30;
    const ViewLayout out = layOut(in);
    EXPECT_EQ(out.tabStrip, QRect(0, 30, 888, 31));
    EXPECT_EQ(out.serviceButton, QRect(4, 66, 112, 29));
    EXPECT_EQ(out.datePicker, QRect(120, 66, 156, 29));
    EXPECT_EQ(out.grid, QRect(0, 103, 1000, 597));
}

TEST(ViewLayout, OneServiceNeedsNoButton) {
    LayoutInput in = ordinary();
    in.serviceCount = 1;
    const ViewLayout out = layOut(in);
    EXPECT_EQ(out.serviceButton.width(), 0);
    for (const QRect& control :
         {out.relationButton, out.datePicker, out.categoryCombo, out.serviceCombo, out.searchEdit})
        EXPECT_EQ(control.x(), 4);
    EXPECT_EQ(out.searchEdit.width(), 152);
}

TEST(ViewLayout, PageButtonsGiveWayFromTheLast) {
    struct Case {
        int width;
        int shown;
    };
    // The controls reach 385; each button needs 67 of what is left.
    const Case cases[] = {{1000, 4}, {665, 4}, {652, 3}, {586, 3}, {585, 2},
                          {519, 2},  {518, 1}, {452, 1}, {451, 0}, {200, 0}};
    for (const Case& c : cases) {
        LayoutInput in = ordinary();
        in.client.setWidth(c.width);
        const ViewLayout out = layOut(in);
        const int shown =
            !out.pageDown.isEmpty() + !out.pageUp.isEmpty() + !out.saveAs.isEmpty() + !out.print.isEmpty();
        EXPECT_EQ(shown, c.shown) << c.width;
        EXPECT_EQ(out.pageDown.isEmpty(), c.shown < 1) << c.width;
        EXPECT_EQ(out.print.isEmpty(), c.shown < 4) << c.width;
    }
}

TEST(ViewLayout, TheStoryTakesItsShare) {
    constexpr StoryShowType right = StoryShowType::Right, below = StoryShowType::Below;
    struct Case {
        const char* what;
        StoryShowType type;
        int height;
        bool quotes;
        QRect grid, pane, relatedQuotes;
    };
    const QRect half(0, 55, 500, 645);
    const QRect upper(0, 55, 1000, 745);
    const Case cases[] = {
        {"right", right, 700, false, half, {510, 55, 490, 645}, {}},
        {"right with quotes", right, 700, true, half, {510, 55, 490, 525}, {510, 580, 490, 120}},
        {"low", right, 355, true, {0, 55, 500, 300}, {510, 55, 490, 200}, {510, 255, 490, 100}},
        {"below", below, 1000, false, upper, {0, 800, 1000, 200}, {}},
        {"below, low", below, 500, false, {0, 55, 1000, 295}, {0, 350, 1000, 150}, {}},
        {"below with quotes", below, 1000, true, upper, {0, 800, 500, 200}, {500, 800, 500, 200}},
    };
    LayoutInput in = ordinary();
    for (const Case& c : cases) {
        in.client.setHeight(c.height);
        in.showType = c.type;
        in.hasRelatedQuotes = c.quotes;
        const ViewLayout out = layOut(in);
        EXPECT_EQ(out.grid, c.grid) << c.what;
        EXPECT_EQ(out.storyPane, c.pane) << c.what;
        EXPECT_EQ(out.relatedQuotes, c.relatedQuotes) << c.what;
        EXPECT_EQ(out.storyHidesHeadline, c.type == right) << c.what;
    }
    in = ordinary();
    in.showType = right;
    in.newsType = NewsType::TwoColumns;
    const ViewLayout out = layOut(in);
    EXPECT_EQ(out.grid, QRect(0, 55, 1000, 645)) << "no pane for this news type";
    EXPECT_TRUE(out.storyPane.isEmpty() && out.relatedQuotes.isEmpty());
    EXPECT_FALSE(out.storyHidesHeadline);
}

TEST(ViewLayout, SymbolAndWarrantGridsUseTheFreeRow) {
    LayoutInput in = ordinary();
    EXPECT_EQ(layOut(in).gridWithoutControls, layOut(in).grid);
    in.hasAllNewsGrid = false;
    EXPECT_EQ(layOut(in).gridWithoutControls, QRect(0, 24, 1000, 676));
}

TEST(ViewLayout, AlignedControlsKeepOneEdgeAtEitherSideWhateverTheTextsNeed) {
    LayoutInput in = ordinary();
    in.aligned = true;
    in.needs = {90, 120, 80, 110, 96, {70, 70, 90, 75}};
    const auto edge = [](const QRect& place) { return place.x() + place.width(); };
    for (const int width : {1000, 700, 480, 340}) {
        in.client.setWidth(width);
        const ViewLayout out = layOut(in);
        EXPECT_EQ(out.serviceButton, QRect(8, 27, 90, 20)) << width;
        EXPECT_EQ(edge(out.showTypeButton), width - 8) << width;
        EXPECT_EQ(out.datePicker.x(), 102) << width;
        EXPECT_EQ(out.searchEdit.x(), 102) << width;
        EXPECT_EQ(out.dealsButton.width(), 110) << width;
        const QRect last = out.print.isEmpty() ? out.pageDown : out.print;
        EXPECT_EQ(edge(last), last.isEmpty() ? 0 : width - 8) << width;
        // Texts where they have room, else the icons alone.
        EXPECT_EQ(out.saveAs.width(), width == 1000 ? 90 : out.saveAs.isEmpty() ? 0 : 28) << width;
    }
}

TEST(ViewLayout, NoSizeIsTooSmall) {
    for (const int size : {0, 1, 20, 60}) {
        LayoutInput in = ordinary();
        in.client = QRect(0, 0, size, size);
        for (const StoryShowType type : {StoryShowType::None, StoryShowType::Right, StoryShowType::Below}) {
            in.showType = type;
            in.hasRelatedQuotes = true;
            const ViewLayout out = layOut(in);
            for (const QRect& rectangle : {out.tabStrip, out.grid, out.storyPane, out.relatedQuotes})
                EXPECT_TRUE(rectangle.width() >= 0 && rectangle.height() >= 0) << size;
        }
    }
}

TEST(ViewLayout, EdgesOfPanesGoWhereTheUserMovedThem) {
    LayoutInput in = ordinary();
    in.hasRelatedQuotes = true;
    for (const StoryShowType type : {StoryShowType::Right, StoryShowType::Below}) {
        in.showType = type;
        in.movable = false;
        const QRect stated = layOut(in).grid;
        in.movable = true;
        in.shares = {};
        EXPECT_EQ(layOut(in).grid, stated);
        const bool right = type == StoryShowType::Right;
        in.shares.set(right ? PaneEdge::ListRight : PaneEdge::ListBelow, 700);
        in.shares.set(right ? PaneEdge::QuotesRight : PaneEdge::QuotesBelow, 600);
        const ViewLayout out = layOut(in);
        EXPECT_EQ(right ? out.grid.width() : out.grid.height(), right ? 700 : 451);
        EXPECT_EQ(right ? out.storyPane.height() : out.storyPane.width(), right ? 387 : 600);
        EXPECT_FALSE(out.grid.intersects(out.storyPane) || out.storyPane.intersects(out.relatedQuotes));
        EXPECT_FALSE(out.listEdge.isEmpty() || out.quotesEdge.isEmpty());
        // Of a window that is made small neither side goes out of sight.
        LayoutInput small = in;
        small.client = QRect(0, 0, 260, 420);
        EXPECT_GE(layOut(small).storyPane.width(), 99);
        EXPECT_GE(layOut(small).storyPane.height(), 99);
    }
    for (const QString& kept : {in.shares.keptText(), QStringLiteral("700,x,99999,-3"), QString()}) {
        const PaneShares shares = PaneShares::restored(kept);
        EXPECT_EQ(PaneShares::restored(shares.keptText()).shares, shares.shares);
        EXPECT_GE(shares.of(PaneEdge::QuotesBelow), 0);
        EXPECT_LE(shares.of(PaneEdge::QuotesRight), 950);
    }
}

}  // namespace wirepane

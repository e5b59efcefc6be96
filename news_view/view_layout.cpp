// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/view_layout.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr int margin = 4;
constexpr int alignedMargin = 8;
constexpr int iconAlone = 28;  // the width of a button that shows no text
constexpr int paneMargin = 10;

QRect between(int left, int top, int right, int bottom) {
    return {left, top, std::max(0, right - left), std::max(0, bottom - top)};
}

// A width that the design gives in twentieths of the font height.
int widthOf(int fontHeight, int twentieths) {
    return fontHeight * twentieths / 20;
}

struct Frame {
    int left, top, right, bottom;
};

// The tab strip with the show-type button at its right end; returns the height of the band.
int layOutTabs(const LayoutInput& in, const Frame& frame, int unit, ViewLayout& out) {
    const int height = in.firstTabHeight > 0 ? in.firstTabHeight + 2 : in.fontHeight + 6;
    if (in.aligned) {
        const int right = frame.right - alignedMargin;
        const int left = right - std::max(unit, in.needs.showType);
        const int buttonHeight = std::min(in.fontHeight + 4, height);
        out.tabStrip = between(frame.left, frame.top, left - margin, frame.top + height);
        out.showTypeButton = QRect(left, frame.top + (height - buttonHeight) / 2, right - left, buttonHeight);
        return height;
    }
    const int stripRight = frame.right - 6 - unit;
    out.tabStrip = between(frame.left, frame.top, stripRight, frame.top + height);
    out.showTypeButton = between(stripRight, frame.top, frame.right - 3, frame.top + height);
    return height;
}

// The controls of the row from left to right; returns the rightmost edge reached.
int layOutControls(const LayoutInput& in, const Frame& frame, int top, int bottom, int unit,
                   ViewLayout& out) {
    const bool single = in.serviceCount == 1;
    const int x0 = frame.left + (in.aligned ? alignedMargin : margin);
    const int a = single ? frame.left : std::max(frame.left + unit + 10, x0 + in.needs.service);
    const int dateWidth = widthOf(in.fontHeight, 120) + 6;
    const auto place = [&](int left, int width) {
        return between(std::max(left, x0), top, std::max(left, x0) + width, bottom);
    };
    out.serviceButton = single ? QRect(x0, top, 0, bottom - top) : between(x0, top, a, bottom);
    out.relationButton = place(a + (in.aligned ? 4 : 2), std::max(unit, in.needs.relation));
    // No list of services stands before it.
    out.warningButton = in.aligned ? place(x0, std::max(unit, in.needs.relation)) : out.relationButton;
    out.datePicker = place(a + 4, std::max(dateWidth, in.needs.date));
    out.categoryCombo = place(a + 4, std::max(dateWidth + 20, in.needs.category));
    out.serviceCombo = place(a + 4, std::max(in.serviceComboText + in.captionButtonWidth, in.needs.market));
    const int symbolLeft = out.serviceCombo.x() + out.serviceCombo.width() + 4;
    out.symbolCombo = place(symbolLeft, std::max(in.symbolComboText + 25, in.needs.symbol));
    const int gap = in.aligned ? 4 : 2;
    out.searchEdit = place(a + (in.aligned ? 4 : 3), std::max(2 * (unit + 6), in.needs.searchText));
    const int searchLeft = out.searchEdit.x() + out.searchEdit.width() + gap;
    out.searchButton = place(searchLeft, std::max(unit, in.needs.search));
    out.dealsButton = place(searchLeft + out.searchButton.width() + gap, std::max(unit + 6, in.needs.deals));

    int rightmost = 0;
    for (const QRect& control : {out.serviceButton, out.relationButton, out.datePicker, out.categoryCombo,
                                 out.symbolCombo, out.searchEdit, out.dealsButton})
        rightmost = std::max(rightmost, control.x() + control.width());
    return rightmost;
}

// Buttons that are as wide as their icons and texts, up to the right margin; without their texts where that
// is too wide, and where that is, too, without the last ones.
void layOutGrownButtons(const LayoutInput& in, const Frame& frame, int rightmost,
                        const std::array<QRect*, 4>& buttons, const std::array<int, 4>& gaps, QRect place) {
    const int right = frame.right - alignedMargin;
    std::array<int, 4> widths = in.needs.output;
    const auto needed = [&](std::size_t count) {
        int sum = 0;
        for (std::size_t i = 0; i < count; ++i)
            sum += gaps[i] + widths[i];
        return sum;
    };
    std::size_t shown = buttons.size();
    if (rightmost + margin + needed(shown) > right)
        widths.fill(iconAlone);
    while (shown > 0 && rightmost + margin + needed(shown) > right)
        --shown;
    int x = right - needed(shown);
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        x += gaps[i];
        place.setLeft(x);
        place.setWidth(widths[i]);
        *buttons[i] = i < shown ? place : QRect();
        x += widths[i];
    }
}

// The page buttons at the right of the control row: those that do not fit give way from the last one
// backwards.
void layOutPageButtons(const LayoutInput& in, const Frame& frame, int top, int bottom, int rightmost,
                       ViewLayout& out) {
    const std::array buttons{&out.pageDown, &out.pageUp, &out.saveAs, &out.print};
    const std::array gaps{0, 3, 3, 9};
    if (in.aligned) {
        layOutGrownButtons(in, frame, rightmost, buttons, gaps, QRect(0, top, 0, bottom - top));
        return;
    }
    const int width = widthOf(in.fontHeight, 80);
    const int space = std::min(frame.right - frame.left - rightmost, 4 * width + 24);
    const int fitting = space > 0 ? space / (width + 3) : 0;
    const std::array widths{width, width, width + 6, width + 6};
    int x = frame.right - space - 3;
    for (int i = 0; i < 4; ++i) {
        x += gaps[i];
        *buttons[i] = i < fitting ? between(x, top, x + widths[i], bottom) : QRect();
        x += widths[i];
    }
}

void layOutPaneAtRight(const LayoutInput& in, const Frame& frame, ViewLayout& out) {
    const int edge = out.grid.x() + out.grid.width();
    const int left = edge + (in.movable ? 1 : paneMargin);
    const int top = out.grid.y();
    const int height = frame.bottom - top;
    int bottom = frame.bottom;
    if (in.hasRelatedQuotes) {
        const int stated = height / 3 < 121 ? top + height * 2 / 3 : frame.bottom - 120;
        bottom = in.shares.place(PaneEdge::QuotesRight, top, frame.bottom, stated);
        out.relatedQuotes = between(left, bottom, frame.right, frame.bottom);
    }
    out.storyPane = between(left, top, frame.right, bottom);
    out.storyHidesHeadline = true;
    if (!in.movable)
        return;
    out.listEdge = between(edge, top, edge + 1, frame.bottom);
    if (in.hasRelatedQuotes)
        out.quotesEdge = between(left, bottom, frame.right, bottom + 1);
}

void layOutPaneBelow(const LayoutInput& in, const Frame& frame, ViewLayout& out) {
    const int edge = out.grid.y() + out.grid.height();
    const int top = in.movable ? edge + 1 : edge;
    int right = frame.right;
    if (in.hasRelatedQuotes) {
        const int stated =
            std::max(frame.left, std::min(frame.left + (frame.right - frame.left) / 2, frame.right - 250));
        right = in.shares.place(PaneEdge::QuotesBelow, frame.left, frame.right, stated);
        out.relatedQuotes = between(right, top, frame.right, frame.bottom);
    }
    out.storyPane = between(frame.left, top, right, frame.bottom);
    if (!in.movable)
        return;
    out.listEdge = between(frame.left, edge, frame.right, edge + 1);
    if (in.hasRelatedQuotes)
        out.quotesEdge = between(right, top, right + 1, frame.bottom);
}

}  // namespace

ViewLayout layOut(const LayoutInput& in) {
    ViewLayout out;
    const Frame frame{in.client.x(), in.client.y() + in.titleHeight, in.client.x() + in.client.width(),
                      in.client.y() + in.client.height()};
    const int unit = widthOf(in.fontHeight, 80) + 6;
    const int tabHeight = layOutTabs(in, frame, unit, out);
    const int rowTop = frame.top + tabHeight + 5;
    const int rowBottom = frame.top + tabHeight + in.fontHeight + 9;
    const int rightmost = layOutControls(in, frame, rowTop, rowBottom, unit, out);
    layOutPageButtons(in, frame, rowTop, rowBottom, rightmost, out);

    int gridTop = rowBottom + 8;
    if (in.hasSearchLine) {
        out.searchLine = between(frame.left, rowBottom + 4, frame.right, gridTop + in.fontHeight + 8);
        gridTop = out.searchLine.y() + out.searchLine.height();
    }
    int gridBottom = frame.bottom;
    if (in.showType == StoryShowType::Below)
        gridBottom = in.shares.place(PaneEdge::ListBelow, gridTop, frame.bottom,
                                     frame.bottom - std::min(in.client.height() * 30 / 100, 200));
    int gridRight = frame.right;
    if (in.newsType == NewsType::Full && in.showType == StoryShowType::Right)
        gridRight = in.shares.place(PaneEdge::ListRight, frame.left, frame.right,
                                    frame.left + (frame.right - frame.left) / 2);
    out.grid = between(frame.left, gridTop, gridRight, gridBottom);
    out.gridWithoutControls = out.grid;
    if (!in.hasAllNewsGrid)
        out.gridWithoutControls.setTop(frame.top + tabHeight + 2);

    if (in.newsType == NewsType::Full && in.hasStoryPane) {
        if (in.showType == StoryShowType::Right)
            layOutPaneAtRight(in, frame, out);
        else if (in.showType == StoryShowType::Below)
            layOutPaneBelow(in, frame, out);
    }
    return out;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/view_layout.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr int margin = 4;
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
    const int stripRight = frame.right - 6 - unit;
    out.tabStrip = between(frame.left, frame.top, stripRight, frame.top + height);
    out.showTypeButton = between(stripRight, frame.top, frame.right - 3, frame.top + height);
    return height;
}

// The controls of the row from left to right; returns the rightmost edge reached.
int layOutControls(const LayoutInput& in, const Frame& frame, int top, int bottom, int unit,
                   ViewLayout& out) {
    const bool single = in.serviceCount == 1;
    const int x0 = frame.left + margin;
    const int a = single ? frame.left : frame.left + unit + 10;
    const int dateWidth = widthOf(in.fontHeight, 120) + 6;
    const auto place = [&](int left, int width) {
        return between(std::max(left, x0), top, std::max(left, x0) + width, bottom);
    };
    out.serviceButton = single ? QRect(x0, top, 0, bottom - top) : between(x0, top, a, bottom);
    out.relationButton = place(a + 2, unit);
    out.datePicker = place(a + 4, dateWidth);
    out.categoryCombo = place(a + 4, dateWidth + 20);
    out.serviceCombo = place(a + 4, in.serviceComboText + in.captionButtonWidth);
    const int symbolLeft = out.serviceCombo.x() + out.serviceCombo.width() + 4;
    out.symbolCombo = place(symbolLeft, in.symbolComboText + 25);
    out.searchEdit = place(a + 3, 2 * (unit + 6));
    const int searchLeft = out.searchEdit.x() + out.searchEdit.width() + 2;
    out.searchButton = place(searchLeft, unit);
    out.dealsButton = place(searchLeft + unit + 2, unit + 6);

    int rightmost = 0;
    for (const QRect& control : {out.serviceButton, out.relationButton, out.datePicker, out.categoryCombo,
                                 out.symbolCombo, out.searchEdit, out.dealsButton})
        rightmost = std::max(rightmost, control.x() + control.width());
    return rightmost;
}

// The page buttons at the right of the control row: those that do not fit give way from the last one
// backwards.
void layOutPageButtons(const LayoutInput& in, const Frame& frame, int top, int bottom, int rightmost,
                       ViewLayout& out) {
    const int width = widthOf(in.fontHeight, 80);
    const int space = std::min(frame.right - frame.left - rightmost, 4 * width + 24);
    const int fitting = space > 0 ? space / (width + 3) : 0;
    const std::array buttons{&out.pageDown, &out.pageUp, &out.saveAs, &out.print};
    const std::array widths{width, width, width + 6, width + 6};
    const std::array gaps{0, 3, 3, 9};
    int x = frame.right - space - 3;
    for (int i = 0; i < 4; ++i) {
        x += gaps[i];
        *buttons[i] = i < fitting ? between(x, top, x + widths[i], bottom) : QRect();
        x += widths[i];
    }
}

void layOutPaneAtRight(const LayoutInput& in, const Frame& frame, ViewLayout& out) {
    const int left = out.grid.x() + out.grid.width() + paneMargin;
    const int top = out.grid.y();
    const int height = frame.bottom - top;
    int bottom = frame.bottom;
    if (in.hasRelatedQuotes) {
        bottom = height / 3 < 121 ? top + height * 2 / 3 : frame.bottom - 120;
        out.relatedQuotes = between(left, bottom, frame.right, frame.bottom);
    }
    out.storyPane = between(left, top, frame.right, bottom);
    out.storyHidesHeadline = true;
}

void layOutPaneBelow(const LayoutInput& in, const Frame& frame, ViewLayout& out) {
    const int top = out.grid.y() + out.grid.height();
    int right = frame.right;
    if (in.hasRelatedQuotes) {
        right =
            std::max(frame.left, std::min(frame.left + (frame.right - frame.left) / 2, frame.right - 250));
        out.relatedQuotes = between(right, top, frame.right, frame.bottom);
    }
    out.storyPane = between(frame.left, top, right, frame.bottom);
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

    int gridBottom = frame.bottom;
    if (in.showType == StoryShowType::Below)
        gridBottom -= std::min(in.client.height() * 30 / 100, 200);
    int gridRight = frame.right;
    if (in.newsType == NewsType::Full && in.showType == StoryShowType::Right)
        gridRight = frame.left + (frame.right - frame.left) / 2;
    out.grid = between(frame.left, rowBottom + 8, gridRight, gridBottom);
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

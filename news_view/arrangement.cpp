// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/arrangement.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "host/controls/row_look.h"
#include "host/controls/s_date_time_ctrl.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "news_view/control_set.h"
#include "news_view/news_services.h"
#include "news_view/pane_handle.h"
#include "news_view/story_stage.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

#include <QStyle>

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

// What a text needs beside it in its control: margins, and the arrow or the icon.
constexpr int besideText = 36;
constexpr int widestCategory = 240;
constexpr int searchText = 230;

int besideTextOf(const QWidget& control) {
    return grown(besideText, control.font());
}

}  // namespace

Arrangement::Arrangement(ViewContext& context, const CommonParts& commonParts, StoryStage& storyStage,
                         Calls ofTheView)
    : view(context), parts(commonParts), stage(storyStage), calls(std::move(ofTheView)) {}

LayoutInput Arrangement::input() const {
    LayoutInput in;
    in.client = parts.window.rect();
    in.fontHeight = calls.fontHeight();
    in.titleHeight = calls.titleHeight();
    const auto* strip = parts.controls.find<CXTPTabControl>(ids::tabStrip);
    in.firstTabHeight = strip != nullptr && strip->count() > 0 ? strip->tabRect(0).height() : 0;
    in.serviceCount = static_cast<int>(parts.services.currentServices().size());
    const auto widestItem = [this](int id) {
        const auto* combo = parts.controls.find<SCComboBox>(id);
        return combo != nullptr ? combo->widestItem() : 0;
    };
    in.serviceComboText = widestItem(ids::serviceCombo);
    in.symbolComboText = widestItem(ids::symbolCombo);
    in.captionButtonWidth = parts.window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    in.newsType = parts.newsType;
    in.showType = calls.showType();
    in.hasStoryPane = stage.storyPane() != nullptr;
    in.hasRelatedQuotes = stage.relatedQuotes() != nullptr;
    in.aligned = isAligned();
    if (in.aligned)
        in.needs = needs();
    in.hasAllNewsGrid = parts.lists[ListIndex::All].grid() != nullptr;
    const QWidget* line = parts.controls.find<QWidget>(ids::searchLine);
    in.hasSearchLine = line != nullptr && !line->isHidden();
    in.movable = parts.settings.options[ViewOption::MovablePanes];
    if (in.movable)
        in.shares = parts.settings.paneShares;
    return in;
}

bool Arrangement::isAligned() const {
    return parts.settings.options[ViewOption::AlignControls];
}

int Arrangement::widthOfDate() const {
    const auto* picker = parts.controls.find<SDateTimeCtrl>(ids::datePicker);
    return picker != nullptr
               ? picker->fontMetrics().horizontalAdvance(QStringLiteral("0000/00/00")) + besideTextOf(*picker)
               : 0;
}

int Arrangement::widthOfCombo(int id) const {
    const auto* combo = parts.controls.find<SCComboBox>(id);
    return combo != nullptr ? combo->widestItem() + besideTextOf(*combo) : 0;
}

ButtonNeeds Arrangement::needs() const {
    const auto of = [this](int id) { return parts.controls.neededWidth(id); };
    return {of(ids::serviceButton),
            std::max(of(ids::relationSearchButton), of(ids::warningSearchButton)),
            of(ids::searchButton),
            of(ids::dealsSearchButton),
            of(ids::showTypeButton),
            {of(ids::pageDownButton), of(ids::pageUpButton), of(ids::saveAsButton), of(ids::printButton)},
            widthOfDate(),
            std::min(widthOfCombo(ids::categoryCombo), grown(widestCategory, parts.window.font())),
            widthOfCombo(ids::serviceCombo),
            widthOfCombo(ids::symbolCombo),
            parts.settings.options[ViewOption::SearchHistory]
                ? std::min(grown(searchText, parts.window.font()), parts.window.width() / 4)
                : 0};
}

ViewLayout Arrangement::layout() const {
    return layOut(input());
}

void Arrangement::place() {
    if (isAligned())
        parts.controls.showIcons(calls.showType());
    const ViewLayout places = layout();
    parts.controls.place(places);
    stage.place(places.storyPane, places.storyHidesHeadline, places.relatedQuotes);
    for (const ListKind& kind : listKinds) {
        const bool withoutControls = kind.index == ListIndex::Symbol || kind.index == ListIndex::Warrant;
        if (CSuperSheetWnd* grid = parts.lists[kind.index].grid())
            grid->setGeometry(withoutControls ? places.gridWithoutControls : places.grid);
    }
    placeHandles(places);
    placed = true;
    view.placeNotices();
    parts.window.update();
    view.refresh();
}

bool Arrangement::takeWidth() {
    return std::exchange(takenWidth, parts.window.width()) != parts.window.width();
}

PaneEdge Arrangement::edgeOf(bool ofQuotes) const {
    const bool below = calls.showType() == StoryShowType::Below;
    if (ofQuotes)
        return below ? PaneEdge::QuotesBelow : PaneEdge::QuotesRight;
    return below ? PaneEdge::ListBelow : PaneEdge::ListRight;
}

void Arrangement::moveEdge(bool ofQuotes, int place) {
    constexpr int whole = 1000;
    const ViewLayout places = layout();
    const QRect& first = ofQuotes ? places.storyPane : places.grid;
    const QRect& second = ofQuotes ? places.relatedQuotes : places.storyPane;
    // Of the two that the edge parts, the way from where the first begins to where the second ends.
    const bool upright =
        (edgeOf(ofQuotes) == PaneEdge::ListRight) || (edgeOf(ofQuotes) == PaneEdge::QuotesBelow);
    const int from = upright ? first.left() : first.top();
    const int to = upright ? second.right() + 1 : second.bottom() + 1;
    if (to <= from)
        return;
    parts.settings.paneShares.set(edgeOf(ofQuotes), std::max(1, (place - from) * whole / (to - from)));
    this->place();
}

void Arrangement::restoreEdge(bool ofQuotes) {
    parts.settings.paneShares.set(edgeOf(ofQuotes), 0);
    place();
}

void Arrangement::placeHandles(const ViewLayout& places) {
    const auto handle = [this](QPointer<PaneHandle>& made, bool ofQuotes, const QRect& edge) {
        if (made == nullptr && !edge.isEmpty())
            made = new PaneHandle(&parts.window, {[this, ofQuotes](int to) { moveEdge(ofQuotes, to); },
                                                  [this, ofQuotes] { restoreEdge(ofQuotes); }});
        if (made != nullptr)
            made->placeOver(edge);
    };
    handle(listHandle, false, places.listEdge);
    handle(quotesHandle, true, places.quotesEdge);
}

int Arrangement::gridWidth() const {
    const StoryShowType type = calls.showType();
    const int width = parts.window.width();
    if (parts.newsType != NewsType::Full || type == StoryShowType::None || type == StoryShowType::Below)
        return width;
    return type == StoryShowType::Right ? layout().grid.width() : 0;
}

}  // namespace wirepane

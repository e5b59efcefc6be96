// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/view_builder.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "host/contract/fixed_services.h"
#include "host/controls/row_look.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/application_switches.h"
#include "news_view/control_set.h"
#include "news_view/mode_table.h"
#include "news_view/news_services.h"
#include "news_view/story_stage.h"
#include "news_view/view_settings.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"

namespace wirepane {

namespace {

constexpr int serviceButtonRoom = 84;
constexpr int gridTop = 52;
constexpr int tabStripHeight = 22;

}  // namespace

// The first column stands where the story's text does.
RowLook quoteLook(const ViewOptions& options) {
    constexpr int inset = 8;
    RowLook look = rowLook(options);
    if (look.gutter > 0)
        look.gutter += inset;
    return look;
}

ViewBuilder::ViewBuilder(TRVQuoteBaseView& newsView, const CommonParts& commonParts, StoryStage& storyStage,
                         Calls ofTheView)
    : view(newsView), parts(commonParts), stage(storyStage), calls(std::move(ofTheView)) {}

TRVQuoteBaseView* ViewBuilder::CreateView(const QMetaObject& kind, const QString& name, int id,
                                          const QRect& place) {
    QObject* created = kind.newInstance(Q_ARG(QWidget*, &view));
    auto* child = qobject_cast<TRVQuoteBaseView*>(created);
    if (child == nullptr) {
        delete created;
        return nullptr;
    }
    child->setObjectName(name);
    setWindowId(child, ids::firstChildView + id);
    child->setGeometry(place);
    child->show();
    child->setFrameId(view.idOfFrame());
    child->OnInitialUpdate();
    return child;
}

void ViewBuilder::createStoryPane(EntrySource& entries, TRVCfgIO2* settings, const ViewSettingPath& path) {
    const int top = gridTop + view.titleHeight();
    const QRect place(view.width() / 2, top, view.width() - view.width() / 2, view.height() - top);
    auto* pane = qobject_cast<NewsStoryView*>(
        CreateView(NewsStoryView::staticMetaObject, QStringLiteral("NewsStoryView"), ids::storyPane, place));
    if (pane == nullptr)
        return;
    pane->vSetNewsParent(&entries);
    pane->setStorySetting(storySettingOf(parts.settings));
    pane->InitialViewInfo(settings, path.section, path.first, path.second, {});
    stage.setPane(pane);
}

CNewsRelateSymbolQuoteView* ViewBuilder::createQuotes(const ViewSettingPath& path) {
    if (stage.storyPane() == nullptr || stage.relatedQuotes() != nullptr)
        return nullptr;
    const QString name = QStringLiteral("CNewsRelateSymbolQuoteView");
    auto* quotes = qobject_cast<CNewsRelateSymbolQuoteView*>(
        CreateView(CNewsRelateSymbolQuoteView::staticMetaObject, name, ids::relatedQuotes, QRect()));
    if (quotes == nullptr)
        return nullptr;
    quotes->setRegistrant(&view);
    if (!quotes->CreateView(&view, name, path.first, path.second)) {
        delete quotes;
        return nullptr;
    }
    quotes->setLook(quoteLook(parts.settings.options));
    quotes->leaveEdges(parts.settings.options[ViewOption::MovablePanes]);
    quotes->setSorting(parts.settings.quoteSorting);
    stage.setQuotes(quotes);
    return quotes;
}

void ViewBuilder::createControls() {
    QRect client = view.rect();
    client.setTop(client.top() + view.titleHeight());
    const bool single = parts.services.currentServices().size() == 1;
    const int base = client.left() + (parts.services.currentServices().size() > 1 ? serviceButtonRoom : 0);
    const int left = client.left() + 4;
    parts.controls.createServiceButton(QRect(left, client.top() + 27, single ? 0 : base - left, 20));
    if (!isSingleFunction(parts.settings.functions))
        parts.controls.createTabStrip(QRect(client.left(), client.top(), client.width(), tabStripHeight));
    const QRect gridPlace(client.left(), client.top() + gridTop, client.width(), client.height() - gridTop);
    const QRect row(base + 4, client.top() + 25, 120, 25);
    for (const ListIndex mode : modesInOrderOfCreation())
        createMode(mode, gridPlace, row);
}

// Whether the mode has a grid and a tab.
bool ViewBuilder::isOffered(ListIndex mode) const {
    switch (mode) {
        case ListIndex::Symbol:
            return TRVQuoteBaseView::bIsAuthService(stockExchangeService) == 1;
        case ListIndex::Relation:
            return parts.switches.showNormalSearch;
        case ListIndex::WarningTerm:
            return parts.switches.showWarningSearch;
        case ListIndex::Warrant:
            return parts.services.indexOfWarrants() >= 0;
        default:
            return true;
    }
}

void ViewBuilder::createMode(ListIndex mode, const QRect& gridPlace, const QRect& row) {
    if ((parts.settings.functions & modeOf(mode).maskBit) == 0)
        return;
    if (isOffered(mode)) {
        vInitialSheetWnd(mode, gridPlace);
        parts.controls.addTab(mode);
    } else if (mode == ListIndex::Symbol || mode == ListIndex::Warrant) {
        return;
    }
    createControlsOf(mode, row);
}

void ViewBuilder::createControlsOf(ListIndex mode, const QRect& row) {
    // The list of warrants alone is of a day, too, though nobody picks it.
    const bool onlyWarrants = mode == ListIndex::Warrant && isSingleFunction(parts.settings.functions);
    if (mode == ListIndex::All || onlyWarrants) {
        parts.controls.createDatePicker(row, calls.pickedDate());
        calls.connectDatePicker();
    } else if (mode == ListIndex::Category) {
        parts.controls.createCategoryCombo(QRect(row.x(), row.y(), 120, 200));
        calls.connectCategoryCombo();
    } else {
        parts.controls.CreateControls(mode, row, view.GetViewFont());
    }
    if (mode == ListIndex::Search)
        calls.connectSearchEdit();
    const bool searches = mode == ListIndex::Search || mode == ListIndex::WarningTerm;
    if (searches && parts.settings.options[ViewOption::SearchLine] &&
        parts.controls.find<QWidget>(ids::searchLine) == nullptr)
        calls.createSearchLine();
}

void ViewBuilder::vInitialSheetWnd(ListIndex list, const QRect& place) {
    CSuperSheetWnd* grid = createHeadlineSheet(&view, place, parts.newsType, parts.backEnd);
    if (grid == nullptr)
        return;
    parts.lists[list].setGrid(grid);
    parts.lists[list].setOptions(parts.settings.options);
    parts.lists[list].restoreWidths(parts.settings.columnWidths.value(static_cast<int>(list)));
    calls.connectGrid(*grid, list);
}

}  // namespace wirepane

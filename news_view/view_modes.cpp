// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Switching the news view between its modes, and laying it out.
#include "headline_list/language_keys.h"
#include "host/contract/fixed_services.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "news_view/category_mode.h"
#include "news_view/control_ids.h"
#include "news_view/sent_again.h"
#include "news_view/service_menu.h"
#include "news_view/symbol_mode.h"
#include "news_view/trv_news_ctrl_view.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"

#include <QStyle>

namespace {}  // namespace

int TRVNewsCtrlView::iGetFunctionID(int stored) const {
    if (!ListOfNumber(stored) ||
        (stored == static_cast<int>(ListIndex::Symbol) && bIsAuthService(stockExchangeService) != 1))
        return 0;
    return stored;
}

int TRVNewsCtrlView::iGetFunctionID(const QString& name) const {
    for (const ListKind& kind : listKinds) {
        const QLatin1StringView key = ModeOf(kind.index).captionKey;
        if (name.compare(LangText(backEnd, key), Qt::CaseInsensitive) == 0 || name == key)
            return iGetFunctionID(static_cast<int>(kind.index));
    }
    return 0;
}

void TRVNewsCtrlView::CheckInitialView(int& mode) const {
    if (Sheet(mode) != nullptr)
        return;
    for (int candidate = 0; candidate < listCount; ++candidate) {
        if (Sheet(candidate) != nullptr) {
            mode = candidate;
            return;
        }
    }
}

void TRVNewsCtrlView::OnSelchangeTabMode() {
    if (const auto* strip = controls.Find<CXTPTabControl>(ids::tabStrip))
        SwitchFunction(strip->iGetItemData(strip->GetCurSel()));
}

void TRVNewsCtrlView::SwitchFunction(int mode) {
    const auto index = ListOfNumber(mode);
    if (!stage.bCanShow() || !index)
        return;
    // The warrant mode clears the ticks for its own purposes: the user's choice comes back first.
    if (currentMode == static_cast<int>(ListIndex::Warrant))
        services.vRestoreSelection();
    ShowHideCtrObject(mode);
    currentMode = mode;
    settings.focusedTab = mode;
    stage.vHideDialog();
    const bool unfiltered =
        settings.options[ViewOption::RebuildFilteredLists] && lists.bHasOthersFilter(*index);
    if (lists.bHasMissed(*index) || unfiltered)
        sentAgain->readAgain(*index);
    if (bPaneShowsStories()) {
        clearStory();
        if (*index != ListIndex::Category)
            OnShowStory();
    }

    const ListIndex toLoad = ModeLoading::LoadingMode(*index, switches);
    services.vClearWarrantSelection();
    if (toLoad == ListIndex::Warrant && List(toLoad).pGetGrid() == nullptr)
        return;
    vTakeServicesOver(toLoad);
    serviceMenu->showTicks();
    vLoadMode(toLoad);
    vPlaceNotices();
    update();
    vUpdateView();
    CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (newsType != 1 && sheet != nullptr) {
        sheet->setFocus();
        sheet->viewport()->update();
    }
}

void TRVNewsCtrlView::vTakeServicesOver(ListIndex toLoad) {
    if (toLoad == ListIndex::WarningTerm)
        return;
    services.vCopyToSaved();
    if (toLoad == ListIndex::Warrant) {
        services.vClearSelection();
        return;
    }
    if (services.iSelectedCount() == 0 && !services.Entries().empty())
        services.vSelectInBoth(0);
}

void TRVNewsCtrlView::vLoadMode(ListIndex toLoad) {
    const bool allNewsEnabled = (settings.functions & ModeOf(ListIndex::All).maskBit) != 0;
    if (toLoad == ListIndex::Category && allNewsEnabled && loading.bTakeCategoryCatalogue())
        categories->fillFirst();
    if (toLoad == ListIndex::Symbol && allNewsEnabled)
        symbolMode->offer();
    if (loading.bTakeLoad(toLoad))
        InitialHeadlineTable(static_cast<int>(toLoad));
    if (toLoad == ListIndex::Category)
        OnShowStory();
}

void TRVNewsCtrlView::ShowHideCtrObject(int mode) {
    const auto index = ListOfNumber(mode);
    if (!index)
        return;
    controls.ShowHideCtrObject(*index);
    for (int list = 0; list < listCount; ++list) {
        if (CSuperSheetWnd* sheet = Sheet(list))
            sheet->setVisible(list == mode);
    }
    if (*index == ListIndex::Symbol)
        symbolMode->hideWithoutUse();
}

void TRVNewsCtrlView::SetStoryShowType(unsigned short type) {
    story.setShowType(type);
    vSetComponentPos();
}

void TRVNewsCtrlView::OnBtnChangeShowType() {
    if (newsType == 0 && GetDlgItem(this, ids::showTypeButton) != nullptr) {
        stage.vHideDialog();
        SetStoryShowType(static_cast<unsigned short>(GetStoryShowType() + 1));
        forgetShownStory();
        if (bPaneShowsStories())
            OnShowStory();
    }
    if (CSuperSheetWnd* sheet = pGetCurrSheetView())
        sheet->setFocus();
}

LayoutInput TRVNewsCtrlView::vLayoutInput() const {
    LayoutInput in;
    in.client = rect();
    in.fontHeight = g_iGetFontHeight(GetViewFont());
    in.titleHeight = iGetTitleHeight();
    const auto* strip = controls.Find<CXTPTabControl>(ids::tabStrip);
    in.firstTabHeight = strip != nullptr && strip->count() > 0 ? strip->tabRect(0).height() : 0;
    in.serviceCount = static_cast<int>(services.Entries().size());
    const auto widestItem = [this](int id) {
        const auto* combo = controls.Find<SCComboBox>(id);
        return combo != nullptr ? combo->iGetWidestItem() : 0;
    };
    in.serviceComboText = widestItem(ids::serviceCombo);
    in.symbolComboText = widestItem(ids::symbolCombo);
    in.captionButtonWidth = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    in.newsType = newsType;
    in.showType = story.showType();
    in.hasStoryPane = stage.pGetPane() != nullptr;
    in.hasRelatedQuotes = stage.pGetQuotes() != nullptr;
    in.hasAllNewsGrid = Sheet(static_cast<int>(ListIndex::All)) != nullptr;
    return in;
}

void TRVNewsCtrlView::vSetComponentPos() {
    const ViewLayout layout = LayOut(vLayoutInput());
    controls.vPlace(layout);
    if (NewsStoryView* pane = stage.pGetPane()) {
        pane->HideHeadLine(layout.storyHidesHeadline ? 1 : 0);
        pane->setGeometry(layout.storyPane);
        pane->setVisible(!layout.storyPane.isEmpty());
        pane->vSetComponentPos();
    }
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes()) {
        quotes->setGeometry(layout.relatedQuotes);
        quotes->setVisible(!layout.relatedQuotes.isEmpty());
    }
    for (const ListKind& kind : listKinds) {
        const bool withoutControls = kind.index == ListIndex::Symbol || kind.index == ListIndex::Warrant;
        if (CSuperSheetWnd* sheet = lists[kind.index].pGetGrid())
            sheet->setGeometry(withoutControls ? layout.gridWithoutControls : layout.grid);
    }
    laidOut = true;
    vPlaceNotices();
    update();
    vUpdateView();
}

void TRVNewsCtrlView::resizeEvent(QResizeEvent* event) {
    TRVQuoteBaseView::resizeEvent(event);
    if (initialised)
        vSetComponentPos();
}

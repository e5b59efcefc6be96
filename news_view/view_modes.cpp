// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Switching the news view between its modes.
#include "headline_list/language_keys.h"
#include "host/contract/fixed_services.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "news_view/category_mode.h"
#include "news_view/control_ids.h"
#include "news_view/sent_again.h"
#include "news_view/service_menu.h"
#include "news_view/symbol_mode.h"
#include "news_view/trv_news_ctrl_view.h"

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
    if (const auto index = ListOfNumber(mode))
        modes.switchTo(*index);
}

void TRVNewsCtrlView::ShowHideCtrObject(int mode) {
    if (const auto index = ListOfNumber(mode))
        modes.showParts(*index);
}

// --- What the modes are given of the view ---

Modes::Calls TRVNewsCtrlView::modeCalls() {
    return {[this](ListIndex list) { sentAgain->readAgain(list); },
            [this](ListIndex list) { return sentAgain->read(list); },
            [this] { return symbolMode->readFirst(); },
            [this] { NewsServices::RegisterService(*this, warrantService); },
            [this] { categories->fillFirst(); },
            [this] { symbolMode->offer(); },
            [this] { symbolMode->hideWithoutUse(); },
            [this] { serviceMenu->showTicks(); }};
}

Arrangement::Calls TRVNewsCtrlView::arrangementCalls() {
    return {[this] { return GetViewFont(); }, [this] { return iGetTitleHeight(); },
            [this] { return story.showType(); }};
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

void TRVNewsCtrlView::resizeEvent(QResizeEvent* event) {
    TRVQuoteBaseView::resizeEvent(event);
    if (initialised)
        vSetComponentPos();
}

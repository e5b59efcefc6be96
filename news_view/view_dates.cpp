// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The days of the news view: the date that the user picks, and the news day that the back end is in.
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/clock.h"
#include "host/controls/s_date_time_ctrl.h"
#include "host/controls/xtp_tab_control.h"
#include "news_view/control_ids.h"
#include "news_view/list_tip.h"
#include "news_view/standing_searches.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/news_story_view.h"

#include <stdexcept>

bool TRVNewsCtrlView::bHasDay() const {
    return controls.Find<SDateTimeCtrl>(ids::datePicker) != nullptr ||
           settings.functions == ModeOf(ListIndex::Warrant).maskBit;
}

QString TRVNewsCtrlView::PickedDateKey() const {
    return DateKey(bHasDay() ? dates.Picked() : QDate());
}

void TRVNewsCtrlView::vConnectDatePicker() {
    const auto* picker = controls.Find<SDateTimeCtrl>(ids::datePicker);
    connect(picker, &SDateTimeCtrl::DropDown, this, &TRVNewsCtrlView::OnDateTimeDropDown);
    connect(picker, &SDateTimeCtrl::DateTimeChange, this, &TRVNewsCtrlView::OnDateTimeChange);
    connect(picker, &SDateTimeCtrl::CloseUp, this, &TRVNewsCtrlView::OnDateTimeCloseUp);
}

void TRVNewsCtrlView::OnDateTimeDropDown() {
    calendarOpen = true;
}

void TRVNewsCtrlView::OnDateTimeChange(const QDate& date) {
    if (!calendarOpen)
        bChangeDate(date);
}

void TRVNewsCtrlView::OnDateTimeCloseUp() {
    calendarOpen = false;
    if (const auto* picker = controls.Find<SDateTimeCtrl>(ids::datePicker))
        bChangeDate(picker->date());
}

bool TRVNewsCtrlView::bChangeDate(const QDate& date) {
    if (List(ListIndex::All).pGetGrid() == nullptr)
        return false;
    switch (dates.Pick(date, host_clock::today())) {
        case DateCheck::TooEarly:
            vRefuseDate(LangText(backEnd, keys::onlySelect) + QString::number(dates.iGetRange()) +
                        LangText(backEnd, keys::inSomeDays));
            return false;
        case DateCheck::TooLate:
            vRefuseDate(LangText(backEnd, keys::afterDays));
            return false;
        case DateCheck::Same:
            return false;
        case DateCheck::Accepted:
            break;
    }
    if (lists.bRebuild(ListIndex::All, TableKind::ByDate, PickedDateKey()))
        return true;
    setStatusText({});
    return false;
}

void TRVNewsCtrlView::vRefuseDate(const QString& why) {
    vTipOver(ListIndex::All, why);
    if (auto* picker = controls.Find<SDateTimeCtrl>(ids::datePicker))
        picker->vSetDate(dates.Picked());
}

void TRVNewsCtrlView::vTipOver(ListIndex list, const QString& text) {
    tip->showOver(List(list).pGetGrid(), text);
}

// The user's own choice of services counts, also while the warrant mode has set it aside.
void TRVNewsCtrlView::vRecvNewMarketStatus(const CMarketStatus* status) {
    auto* picker = controls.Find<SDateTimeCtrl>(ids::datePicker);
    if (status == nullptr || picker == nullptr)
        return;
    // A view of warrants alone has ticked nothing: it follows its own service.
    const bool onlyWarrants = List(ListIndex::All).pGetGrid() == nullptr;
    const int entry = onlyWarrants ? EntryOfWarrants(*status) : EntryOfNewDay(services.Saved(), *status);
    if (entry < 0)
        return;
    QDate day;
    try {
        day = DayOfNumber(status->date);
    } catch (const std::invalid_argument&) {
        return;
    }
    services.vSetDate(static_cast<std::size_t>(entry), status->date);
    picker->vSetDate(day);
    dates.vStartNewsDay(day, picker->date());
    if (onlyWarrants) {
        vReadAgain(ListIndex::Warrant);
        return;
    }
    const bool relation = currentMode == static_cast<int>(ListIndex::Relation) && CurrentList()->pGetGrid();
    QString name;
    backEnd.BKQNEWS_bGetShortNameByService(name, status->service);
    vTipOver(relation ? ListIndex::Relation : ListIndex::All,
             name + QLatin1Char(' ') + LangText(backEnd, keys::clearService));
    bChangeDateByNewHeadLine();
    if (settings.options[ViewOption::ReadMissedTables])
        vReadNowOrWhenShown(ListIndex::Warrant);
}

// The entry of the warrant service for which a status begins a new news day; -1: it changes nothing.
int TRVNewsCtrlView::EntryOfWarrants(const CMarketStatus& status) const {
    const int index = services.iGetWarrantIndex();
    const bool begins = index >= 0 && status.service == warrantService &&
                        services.Saved()[static_cast<std::size_t>(index)].date != status.date;
    return begins ? index : -1;
}

bool TRVNewsCtrlView::bChangeDateByNewHeadLine() {
    if (List(ListIndex::All).pGetGrid() == nullptr)
        return false;
    lists.bRebuildCurrent(ListIndex::All, services.Saved());
    if (List(ListIndex::Relation).pGetGrid() == nullptr)
        return false;
    lists.bRebuildCurrent(ListIndex::Relation, services.Saved(), &standingSearches->tickedKeySets());
    return true;
}

bool TRVNewsCtrlView::bChangeNewsPos(int list, int row) {
    if (list != currentMode) {
        SwitchFunction(iGetFunctionID(list));
        if (auto* strip = controls.Find<CXTPTabControl>(ids::tabStrip))
            strip->SetCurSel(iGetTabIndex(currentMode));
    }
    if (NewsStoryView* pane = stage.pGetPane()) {
        pane->SetHeadLinePos(row);
        // A position just below the last row stays: hosts rely on it.
        const int size = iGetHeadlineTableSize(currentMode);
        if (pane->GetHeadLinePos() > size)
            pane->SetHeadLinePos(size - 1);
    }
    if (CSuperSheetWnd* sheet = pGetCurrSheetView()) {
        sheet->vSetActiveSelection(row, -1);
        sheet->vAutoVerScrolling(row);
    }
    OnShowStory();
    return true;
}

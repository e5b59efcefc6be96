// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the news view lets the host's scripts look at.
#include "host/controls/my_rich_edit.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "news_view/control_ids.h"
#include "news_view/days.h"
#include "news_view/list_tip.h"
#include "news_view/searches.h"
#include "news_view/symbol_mode.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/news_story_view.h"
#include "story/story_ids.h"
#include "story/trv_news_story.h"

#include <QTextCursor>
#include <QVariantList>

#include <algorithm>

namespace {

int dateNumber(const QDate& date) {
    return date.isValid() ? date.year() * 10000 + date.month() * 100 + date.day() : 0;
}

QVariantList rectangle(const QRect& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

// What pane and dialog have in common: a title and a story by the same numbers.
QVariantMap storyTexts(const QWidget& window) {
    const auto* title = qobject_cast<const MyRichEdit*>(GetDlgItem(&window, story_ids::title));
    const auto* story = qobject_cast<const MyRichEdit*>(GetDlgItem(&window, story_ids::storyText));
    if (title == nullptr || story == nullptr)
        return {};
    const auto [start, end] = story->GetSelection();
    return {{QStringLiteral("visible"), window.isVisible()},
            {QStringLiteral("title"), title->szGetText()},
            {QStringLiteral("story"), story->szGetText()},
            {QStringLiteral("selection"), QVariantList{start, end}},
            {QStringLiteral("titleRect"), rectangle(title->geometry())},
            {QStringLiteral("storyRect"), rectangle(story->geometry())},
            {QStringLiteral("onTop"), window.windowFlags().testFlag(Qt::WindowStaysOnTopHint)}};
}

// A story display: its texts, and the headline that it points at.
template <class Display>
QVariantMap displayState(const Display& display) {
    QVariantMap state = storyTexts(display);
    state.insert(QStringLiteral("position"), display.GetHeadLinePos());
    state.insert(QStringLiteral("table"), display.iGetTable());
    return state;
}

}  // namespace

CSuperSheetWnd* TRVNewsCtrlView::Sheet(int list) const {
    const auto index = ListOfNumber(list);
    return index ? lists[*index].pGetGrid() : nullptr;
}

std::vector<HeadlineKey> TRVNewsCtrlView::Keys(int list, int from, int count) const {
    std::vector<HeadlineKey> result;
    if (const auto index = ListOfNumber(list)) {
        for (const CHeadlineTable& entry : lists[*index].Table().rows(from, count))
            result.push_back(KeyOf(entry));
    }
    return result;
}

QVariantMap TRVNewsCtrlView::StoryState(bool inDialog) const {
    if (inDialog)
        return stage.pGetDialog() != nullptr ? displayState(*stage.pGetDialog()) : QVariantMap();
    return stage.pGetPane() != nullptr ? displayState(*stage.pGetPane()) : QVariantMap();
}

QVariantMap TRVNewsCtrlView::State() const {
    QVariantList tabs;
    if (const auto* strip = controls.Find<CXTPTabControl>(ids::tabStrip)) {
        for (int i = 0; i < strip->count(); ++i) {
            tabs.append(QVariantMap{{QStringLiteral("mode"), strip->iGetItemData(i)},
                                    {QStringLiteral("text"), strip->szGetTabText(i)},
                                    {QStringLiteral("selected"), i == strip->GetCurSel()}});
        }
    }
    QVariantList serviceStates;
    for (std::size_t i = 0; i < services.Entries().size(); ++i) {
        const ServiceEntry& entry = services.Entries()[i];
        QString name;
        backEnd.BKQNEWS_bGetFullNameByService(name, entry.service);
        serviceStates.append(QVariantMap{{QStringLiteral("id"), entry.service},
                                         {QStringLiteral("name"), name},
                                         {QStringLiteral("selected"), entry.selected},
                                         {QStringLiteral("date"), entry.date},
                                         {QStringLiteral("pending"), entry.searchPending},
                                         {QStringLiteral("registered"), services.bIsRegistered(i)}});
    }
    QVariantList noticeStates;
    const ListNotices notices = board.notices();
    const std::array<int, 3> awaited = output.awaited();
    for (const auto& [kind, text] : notices.InOrder())
        noticeStates.append(
            QVariantMap{{QStringLiteral("text"), text}, {QStringLiteral("command"), CommandOf(kind)}});
    return {{QStringLiteral("mode"), currentMode()},
            {QStringLiteral("newsType"), newsType},
            {QStringLiteral("storyShowType"), GetStoryShowType()},
            {QStringLiteral("mask"), settings.functions},
            {QStringLiteral("focusedTab"), settings.focusedTab},
            {QStringLiteral("dataState"), static_cast<int>(GetDataState())},
            {QStringLiteral("caption"), board.status()},
            {QStringLiteral("awaited"), QVariantMap{{QStringLiteral("print"), awaited[0]},
                                                    {QStringLiteral("save"), awaited[1]},
                                                    {QStringLiteral("preview"), awaited[2]}}},
            {QStringLiteral("notice"), notices.Text()},
            {QStringLiteral("notices"), noticeStates},
            {QStringLiteral("showCategory"), settings.showCategory},
            {QStringLiteral("storyRow"), story.shownRow()},
            {QStringLiteral("pickedDate"), dateNumber(days->picked())},
            {QStringLiteral("newsDay"), dateNumber(days->newsDay())},
            {QStringLiteral("symbol"), QVariantMap{{QStringLiteral("service"), symbolMode->current().market},
                                                   {QStringLiteral("code"), symbolMode->current().code}}},
            {QStringLiteral("tabs"), tabs},
            {QStringLiteral("tip"), tip->state()},
            {QStringLiteral("shortTip"), searches->shortTipState()},
            {QStringLiteral("quotes"), vQuoteState()},
            {QStringLiteral("services"), serviceStates}};
}

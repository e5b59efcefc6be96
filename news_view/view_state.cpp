// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the news view lets the host's scripts look at.
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/news_origins.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/view_parts.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"
#include "story/story_ids.h"
#include "story/trv_news_story.h"

#include <QTextCursor>
#include <QVariantList>

#include <algorithm>

using namespace wirepane;

namespace {

int dateNumber(const QDate& date) {
    return date.isValid() ? date.year() * 10000 + date.month() * 100 + date.day() : 0;
}

QVariantList rectangle(const QRect& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

// What pane and dialog have in common: a title and a story by the same numbers.
QVariantMap storyTexts(const QWidget& window) {
    const auto* title = qobject_cast<const MyRichEdit*>(dlgItem(&window, story_ids::title));
    const auto* story = qobject_cast<const MyRichEdit*>(dlgItem(&window, story_ids::storyText));
    if (title == nullptr || story == nullptr)
        return {};
    const auto [start, end] = story->selection();
    return {{QStringLiteral("visible"), window.isVisible()},
            {QStringLiteral("title"), title->literalText()},
            {QStringLiteral("story"), story->literalText()},
            {QStringLiteral("selection"), QVariantList{start, end}},
            {QStringLiteral("titleRect"), rectangle(title->geometry())},
            {QStringLiteral("storyRect"), rectangle(story->geometry())},
            {QStringLiteral("onTop"), window.windowFlags().testFlag(Qt::WindowStaysOnTopHint)}};
}

// A story display: its texts, the headline that it points at, and who has brought the one on show.
template <class Display>
QVariantMap displayState(const Display& display, BKQuoteInterface& backEnd) {
    QVariantMap state = storyTexts(display);
    const auto& shown = display.shownHeadline();
    if (auto* origins = dynamic_cast<NewsOrigins*>(&backEnd); origins != nullptr && shown)
        state.insert(QStringLiteral("origins"), origins->originsOf(keyOf(*shown)));
    state.insert(QStringLiteral("position"), display.GetHeadLinePos());
    state.insert(QStringLiteral("table"), display.list() ? static_cast<int>(*display.list()) : -1);
    return state;
}

QVariantList quoteState(CNewsRelateSymbolQuoteView* quotes) {
    QVariantList rows;
    if (quotes == nullptr)
        return rows;
    const QuoteTable& table = quotes->quoteTable();
    for (int row = 0; row < table.size(); ++row) {
        QVariantList texts;
        for (int column = 0; column < quoteColumns; ++column)
            texts.append(textOf(table.at(row), static_cast<QuoteColumn>(column)));
        rows.append(QVariant(texts));
    }
    return rows;
}

}  // namespace

CSuperSheetWnd* TRVNewsCtrlView::sheetOf(int list) const {
    const auto index = listOfNumber(list);
    return index ? parts->lists[*index].grid() : nullptr;
}

std::vector<HeadlineKey> TRVNewsCtrlView::keysOf(int list, int from, int count) const {
    std::vector<HeadlineKey> result;
    if (const auto index = listOfNumber(list)) {
        for (const CHeadlineTable& entry : parts->lists[*index].headlineTable().rows(from, count))
            result.push_back(keyOf(entry));
    }
    return result;
}

QVariantMap TRVNewsCtrlView::storyState(bool inDialog) const {
    const auto stateOf = [this](const auto* display) {
        return display != nullptr ? displayState(*display, parts->backEnd) : QVariantMap();
    };
    return inDialog ? stateOf(parts->stage.storyDialog()) : stateOf(parts->stage.storyPane());
}

QVariantMap TRVNewsCtrlView::state() const {
    QVariantList tabs;
    if (const auto* strip = parts->controls.find<CXTPTabControl>(ids::tabStrip)) {
        for (int i = 0; i < strip->count(); ++i) {
            tabs.append(QVariantMap{{QStringLiteral("mode"), strip->itemData(i)},
                                    {QStringLiteral("unread"), strip->badge(i)},
                                    {QStringLiteral("text"), strip->literalTabText(i)},
                                    {QStringLiteral("selected"), i == strip->curSel()}});
        }
    }
    QVariantList serviceStates;
    for (std::size_t i = 0; i < parts->services.currentServices().size(); ++i) {
        const ServiceEntry& entry = parts->services.currentServices()[i];
        QString name;
        parts->backEnd.BKQNEWS_bGetFullNameByService(name, entry.service);
        serviceStates.append(QVariantMap{{QStringLiteral("id"), entry.service},
                                         {QStringLiteral("name"), name},
                                         {QStringLiteral("selected"), entry.selected},
                                         {QStringLiteral("date"), entry.date},
                                         {QStringLiteral("pending"), entry.searchPending},
                                         {QStringLiteral("registered"), parts->services.isRegistered(i)}});
    }
    QVariantList noticeStates;
    const ListNotices notices = parts->board.notices();
    const std::array<int, 3> awaited = parts->output.awaited();
    for (const auto& [kind, text] : notices.inOrder())
        noticeStates.append(
            QVariantMap{{QStringLiteral("text"), text}, {QStringLiteral("command"), commandOf(kind)}});
    return {{QStringLiteral("mode"), static_cast<int>(parts->modes.shown())},
            {QStringLiteral("newsType"), GetNewsType()},
            {QStringLiteral("storyShowType"), GetStoryShowType()},
            {QStringLiteral("mask"), parts->settings.functions},
            {QStringLiteral("focusedTab"), parts->settings.focusedTab},
            {QStringLiteral("dataState"), static_cast<int>(currentDataState())},
            {QStringLiteral("caption"), parts->board.status()},
            {QStringLiteral("awaited"), QVariantMap{{QStringLiteral("print"), awaited[0]},
                                                    {QStringLiteral("save"), awaited[1]},
                                                    {QStringLiteral("preview"), awaited[2]}}},
            {QStringLiteral("notice"), notices.text()},
            {QStringLiteral("notices"), noticeStates},
            {QStringLiteral("showCategory"), parts->settings.showCategory},
            {QStringLiteral("storyRow"), parts->story.shownRow()},
            {QStringLiteral("pickedDate"), dateNumber(parts->days.picked())},
            {QStringLiteral("newsDay"), dateNumber(parts->days.newsDay())},
            {QStringLiteral("symbol"),
             QVariantMap{{QStringLiteral("service"), parts->symbolMode.current().market},
                         {QStringLiteral("code"), parts->symbolMode.current().code}}},
            {QStringLiteral("tabs"), tabs},
            {QStringLiteral("tip"), parts->tip.state()},
            {QStringLiteral("shortTip"), parts->searches.shortTipState()},
            {QStringLiteral("quotes"), quoteState(parts->stage.relatedQuotes())},
            {QStringLiteral("services"), serviceStates}};
}

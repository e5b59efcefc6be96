// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/story_stage.h"

#include "host/contract/sync_info.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"
#include "story/story_ids.h"
#include "story/trv_news_story.h"

#include <QApplication>

namespace wirepane {

namespace {
constexpr int ordinaryWindow = 1;  // the host's pop-up position setting
}

StoryStage::~StoryStage() {
    deleteWindows();
}

void StoryStage::deleteWindows() {
    for (TRVNewsStory* window : windows())
        delete window;
}

void StoryStage::setPane(NewsStoryView* storyPane) {
    pane = storyPane;
}

NewsStoryView* StoryStage::storyPane() const {
    return pane;
}

void StoryStage::setQuotes(CNewsRelateSymbolQuoteView* quoteView) {
    quotes = quoteView;
}

CNewsRelateSymbolQuoteView* StoryStage::relatedQuotes() const {
    return quotes;
}

void StoryStage::clearStory() {
    if (pane != nullptr)
        pane->OnClearStory();
    if (quotes != nullptr)
        quotes->clearSymbols();
}

void StoryStage::setDialog(TRVNewsStory* storyDialog) {
    dialog = storyDialog;
}

TRVNewsStory* StoryStage::storyDialog() const {
    return dialog;
}

TRVNewsStory* StoryStage::dialogForNext() {
    if (dialog == nullptr || !dialog->isPinned() || !dialog->isVisible() || !maker)
        return dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    pinned.push_back(dialog);
    dialog = maker();
    return dialog;
}

std::vector<TRVNewsStory*> StoryStage::windows() const {
    std::vector<TRVNewsStory*> result;
    if (dialog != nullptr)
        result.push_back(dialog);
    for (const QPointer<TRVNewsStory>& window : pinned) {
        if (window != nullptr)
            result.push_back(window);
    }
    return result;
}

QWidget* StoryStage::dialogOnShow() const {
    return dialog != nullptr && dialog->isVisible() ? dialog : nullptr;
}

void StoryStage::place(const QRect& storyPlace, bool withoutHeadline, const QRect& quotesPlace) {
    if (pane != nullptr) {
        pane->HideHeadLine(withoutHeadline ? 1 : 0);
        pane->setGeometry(storyPlace);
        pane->setVisible(!storyPlace.isEmpty());
        pane->vSetComponentPos();
    }
    if (quotes != nullptr) {
        quotes->setGeometry(quotesPlace);
        quotes->setVisible(!quotesPlace.isEmpty());
    }
}

bool StoryStage::isInPane(const QWidget* part) const {
    return pane != nullptr && part != nullptr && pane->isAncestorOf(part);
}

bool StoryStage::isInQuotes(const QWidget* part) const {
    return quotes != nullptr && part != nullptr && (part == quotes || quotes->isAncestorOf(part));
}

QWidget* StoryStage::paneTitle() const {
    return pane != nullptr ? dlgItem(pane, story_ids::title) : nullptr;
}

QWidget* StoryStage::paneText() const {
    return pane != nullptr ? dlgItem(pane, story_ids::storyText) : nullptr;
}

QWidget* StoryStage::quotesGrid() const {
    return quotes != nullptr ? quotes->quoteSheet() : nullptr;
}

bool StoryStage::canShow() const {
    return pane != nullptr || dialog != nullptr;
}

void StoryStage::hideDialog() {
    if (dialog != nullptr && !dialog->hasTools())
        dialog->hide();
}

bool StoryStage::keepsDialogOnTop() {
    return CSyncInfo::GetSettingCFG()->SYS_eGetPopupWndPosition() != ordinaryWindow;
}

void StoryStage::applyWindowStyle() {
    if (dialog == nullptr)
        return;
    QWidget* active = QApplication::activeWindow();
    // A dialog that stays as it is may be about to get the keyboard.
    if (setTopMost(keepsDialogOnTop()) && active != nullptr && active != dialog)
        active->activateWindow();
}

void StoryStage::leaveTop() {
    if (dialog != nullptr)
        setTopMost(false);
}

void StoryStage::showDialog() {
    if (dialog == nullptr)
        return;
    applyWindowStyle();
    dialog->show();
    dialog->raise();
}

void StoryStage::applicationActivated(bool active) {
    if (dialog != nullptr)
        setTopMost(active && keepsDialogOnTop());
}

bool StoryStage::setTopMost(bool topMost) {
    if (dialog->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == topMost)
        return false;
    // Changing the flag hides the window: it is shown again where it was, without taking the keyboard.
    const bool shown = dialog->isVisible();
    const QRect place = dialog->geometry();
    dialog->setWindowFlag(Qt::WindowStaysOnTopHint, topMost);
    dialog->setGeometry(place);
    if (shown) {
        dialog->setAttribute(Qt::WA_ShowWithoutActivating);
        dialog->show();
        dialog->setAttribute(Qt::WA_ShowWithoutActivating, false);
    }
    return true;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/story_stage.h"

#include "host/contract/sync_info.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

#include <QApplication>

namespace {
constexpr int ordinaryWindow = 1;  // the host's pop-up position setting
}

StoryStage::~StoryStage() {
    delete dialog;
}

void StoryStage::vSetPane(NewsStoryView* storyPane) {
    pane = storyPane;
}

NewsStoryView* StoryStage::pGetPane() const {
    return pane;
}

void StoryStage::vSetQuotes(CNewsRelateSymbolQuoteView* quoteView) {
    quotes = quoteView;
}

CNewsRelateSymbolQuoteView* StoryStage::pGetQuotes() const {
    return quotes;
}

void StoryStage::vClearStory() {
    if (pane != nullptr)
        pane->OnClearStory();
    if (quotes != nullptr)
        quotes->vClearSymbols();
}

void StoryStage::vSetDialog(TRVNewsStory* storyDialog) {
    dialog = storyDialog;
}

TRVNewsStory* StoryStage::pGetDialog() const {
    return dialog;
}

bool StoryStage::bCanShow() const {
    return pane != nullptr || dialog != nullptr;
}

void StoryStage::vHideDialog() {
    if (dialog != nullptr)
        dialog->hide();
}

bool StoryStage::IsStoryDlgOnTop() {
    return CSyncInfo::GetSettingCFG()->SYS_eGetPopupWndPosition() != ordinaryWindow;
}

void StoryStage::SetStoryWndStyle() {
    if (dialog == nullptr)
        return;
    QWidget* active = QApplication::activeWindow();
    vSetTopMost(IsStoryDlgOnTop());
    if (active != nullptr && active != dialog)
        active->activateWindow();
}

void StoryStage::vLeaveTop() {
    if (dialog != nullptr)
        vSetTopMost(false);
}

void StoryStage::vShowDialog() {
    if (dialog == nullptr)
        return;
    SetStoryWndStyle();
    dialog->show();
    dialog->raise();
}

void StoryStage::ChangeActiveApp(bool active) {
    if (dialog != nullptr)
        vSetTopMost(active && IsStoryDlgOnTop());
}

void StoryStage::vSetTopMost(bool topMost) {
    if (dialog->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == topMost)
        return;
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
}

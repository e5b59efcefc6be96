// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

class CNewsRelateSymbolQuoteView;
class NewsStoryView;
class TRVNewsStory;

// Where a story is shown: the pane inside the view, with the quotes of the story's symbols beside it, or the
// pop-up dialog. Keeps the dialog's place among the windows as the host wants it.
class StoryStage {
public:
    ~StoryStage();

    // The pane belongs to the view; null when there is none.
    void vSetPane(NewsStoryView* pane);
    NewsStoryView* pGetPane() const;
    // The quotes of the symbols that the pane's story is about; they belong to the view. Null: there are
    // none.
    void vSetQuotes(CNewsRelateSymbolQuoteView* quoteView);
    CNewsRelateSymbolQuoteView* pGetQuotes() const;
    // Empties the pane and the quotes.
    void vClearStory();
    // The dialog belongs to the stage from here on.
    void vSetDialog(TRVNewsStory* dialog);
    TRVNewsStory* pGetDialog() const;
    bool bCanShow() const;

    void vHideDialog();

    // False when the host wants the dialog as an ordinary window.
    static bool IsStoryDlgOnTop();
    // Applies the host's wish without moving or sizing the dialog; the active window stays active.
    void SetStoryWndStyle();
    // Lets other windows lie over the dialog until the host's wish is applied again.
    void vLeaveTop();
    // Shows the dialog over the ordinary windows.
    void vShowDialog();
    // The application became active or inactive: an inactive application has no window on top of others.
    void ChangeActiveApp(bool active);

private:
    void vSetTopMost(bool topMost);

    QPointer<NewsStoryView> pane;
    QPointer<CNewsRelateSymbolQuoteView> quotes;
    QPointer<TRVNewsStory> dialog;
};

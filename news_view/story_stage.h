// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

#include <functional>
#include <vector>

class CNewsRelateSymbolQuoteView;
class NewsStoryView;
class QRect;
class QWidget;
class TRVNewsStory;

namespace wirepane {

// Where a story is shown: the pane inside the view, with the quotes of the story's symbols beside it, or the
// pop-up dialog. Keeps the dialog's place among the windows as the host wants it.
class StoryStage {
public:
    ~StoryStage();

    // The pane belongs to the view; null when there is none.
    void setPane(NewsStoryView* pane);
    NewsStoryView* storyPane() const;
    // The quotes of the symbols that the pane's story is about; they belong to the view. Null: there are
    // none.
    void setQuotes(CNewsRelateSymbolQuoteView* quoteView);
    CNewsRelateSymbolQuoteView* relatedQuotes() const;
    // Empties the pane and the quotes.
    void clearStory();
    // The dialog belongs to the stage from here on.
    void setDialog(TRVNewsStory* dialog);
    TRVNewsStory* storyDialog() const;
    // Makes another dialog where one is pinned; absent: there is one for good.
    void setDialogMaker(std::function<TRVNewsStory*()> makesDialog) { maker = std::move(makesDialog); }
    // The dialog that the next story is to be shown in: the one there is, unless it is pinned.
    TRVNewsStory* dialogForNext();
    // The dialog and those that are pinned; what the user closes of them goes.
    std::vector<TRVNewsStory*> windows() const;
    void deleteWindows();
    // The dialog while it is to be seen; null: it is not.
    QWidget* dialogOnShow() const;
    bool canShow() const;

    // Puts the pane and the quotes in their places; an empty place hides.
    void place(const QRect& storyPlace, bool withoutHeadline, const QRect& quotesPlace);
    // Whether a widget (null: none) stands in the pane; is the quotes, or stands in them.
    bool isInPane(const QWidget* part) const;
    bool isInQuotes(const QWidget* part) const;
    // What takes the keyboard in the pane and in the quotes; null where there is none.
    QWidget* paneTitle() const;
    QWidget* paneText() const;
    QWidget* quotesGrid() const;

    // One with tools stays: the user closes it.
    void hideDialog();

    // False when the host wants the dialog as an ordinary window.
    static bool keepsDialogOnTop();
    // Applies the host's wish without moving or sizing the dialog; the active window stays active.
    void applyWindowStyle();
    // Lets other windows lie over the dialog until the host's wish is applied again.
    void leaveTop();
    // Shows the dialog over the ordinary windows.
    void showDialog();
    // The application became active or inactive: an inactive application has no window on top of others.
    void applicationActivated(bool active);

private:
    // Whether it has changed.
    bool setTopMost(bool topMost);

    QPointer<NewsStoryView> pane;
    QPointer<CNewsRelateSymbolQuoteView> quotes;
    QPointer<TRVNewsStory> dialog;
    std::vector<QPointer<TRVNewsStory>> pinned;
    std::function<TRVNewsStory*()> maker;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/common_parts.h"
#include "news_view/empty_texts.h"

#include <QDate>
#include <QObject>
#include <QPointer>

#include <functional>
#include <map>
#include <optional>

class CNewsRelateSymbolQuoteView;
class CSuperSheetWnd;
class QAction;
class QPlainTextEdit;
struct CSearch;

namespace wirepane {
class SearchDesk;
class ViewContext;

// Lists without rows say why, and offer a way out: the nearest day with news, another list, the dialog that
// fills the list. A story pane without a story says what it is for, and so do quotes without symbols. For a
// view whose options ask for it. Interface thread only.
class EmptyLists : public QObject {
    Q_OBJECT

public:
    struct Calls {
        std::function<QDate()> day;  // the picked one
        // The one next to it that has news, as far as the back end can tell.
        std::function<std::optional<QDate>()> nearestDay;
        std::function<void(QDate)> goToDay;
        std::function<QString()> subject;   // the chosen category or symbol, as it is shown
        std::function<bool()> isSupported;  // false: there can be no news of that symbol
        std::function<void(ListIndex)> showList;
        std::function<void()> chooseServices;
        std::function<void()> beginSearch;                    // the keyboard goes to the search box
        std::function<void(ListIndex)> compose;               // what the list is filled by
        std::function<QPlainTextEdit*()> storyText;           // of the story pane; null: there is none
        std::function<void()> clearStory;                     // of that pane
        std::function<CNewsRelateSymbolQuoteView*()> quotes;  // beside it; null: there are none
        // What a search that found nothing offers; empty: nothing. One of it is taken.
        std::function<QStringList(const CSearch&)> offers;
        std::function<void(int)> takeOffer;
        std::function<void()> forgetOffers;
    };
    EmptyLists(ViewContext& context, const CommonParts& parts, const SearchDesk& searches, Calls calls);

    // From here on its rows are followed.
    void watch(CSuperSheetWnd& grid, ListIndex list);
    // What the lists would say may have changed, or the language has.
    void followSoon();

private:
    void followRowsOf(const CSuperSheetWnd& grid);
    void follow();
    void followList();
    void followStory();
    void followQuotes();
    void readNewest();
    bool isAwaited() const;
    bool isSupported(ListIndex list) const;
    EmptyList known(ListIndex list) const;
    // What the host offers who has no news on any day.
    QList<QAction*> offeredByHost() const;
    void takeOther(int place);
    // What the button of the shown list is for.
    void act();

    ViewContext& context;
    const CommonParts parts;
    const SearchDesk& searches;
    const Calls calls;
    std::map<ListIndex, QPointer<EmptyNote>> notes;  // belong to the grids
    QPointer<EmptyNote> storyNote;                   // belongs to the text of the pane
    QPointer<EmptyNote> quotesNote;                  // belongs to the quotes
    bool isPosted = false;
};

}  // namespace wirepane

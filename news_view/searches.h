// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/common_parts.h"
#include "news_view/first_found.h"
#include "search/search_desk.h"
#include "search/search_edit2.h"

#include <QString>
#include <QVariantMap>

#include <functional>
#include <map>
#include <optional>
#include <vector>

class CXTTipWindow;

namespace wirepane {
class ViewContext;

}  // namespace wirepane

struct CHeadline;

namespace wirepane {
struct CSymbolUpdateInfo;

// The searches that a view sends: from the search box, from the dialog, for a symbol, for what was pushed;
// the tip while they wait, and what is found. Interface thread only.
class Searches : private ShortTips {
public:
    // `showsStory`: whether showing a story opens no window, because the pane or the open window shows it.
    Searches(ViewContext& context, const CommonParts& parts, std::function<bool()> showsStory);

    // Enter in the search box searches, and what it refuses is told in a short tip.
    void connectEdit();
    // Searches headlines for the text of the search box. An empty one is refused with a tip, one that holds
    // "AND" or "OR" with a message box. Where the view's settings want queries it is one: one with a fault
    // is searched for as plain text if the user says so, or not at all.
    void searchForText();
    // Other services are ticked. Searches for the text of the search box; where a line shows the condition
    // that the list was found under, for that, which the box need not be able to say.
    void searchServices();
    // The user composes the search of the search mode; unless he cancels it is sent. What he changed stays in
    // force in either case.
    void compose();
    // Sends the search of the shown list to the selected services and shows what is at hand for it. Nothing
    // for lists without searches.
    void send();
    // What the search of the shown list is narrowed to counts no more; it is sent again.
    void endNarrowing();
    // Puts another condition in the place of the shown list's, and sends it; without keywords the search ends
    // and its list is empty. The search box follows where it says what was searched for.
    void replace(const CSearch& condition);

    // Searches for another condition in the search mode, which is shown. The search box says it where its
    // text can.
    void show(const CSearch& condition);

    // A service has answered: the results of all services are shown anew; where the newest stand already,
    // when all have answered.
    void takeAnswer(const CSearch& condition, unsigned char service);

    // A headline was pushed. The newest of each service is searched for at the next refresh, while the
    // warning terms are shown.
    void notePushed(const CHeadline& headline);
    void searchForPushed();
    // Searches a headline's service again and puts the headline in where its table has its number.
    void searchFor(CSearch& condition, ListIndex list, const CHeadline& headline, const QString& key);

    // Narrows a search to a symbol and sends it again, as far as the shown list has one.
    void narrow(const CSearch& condition, const CSymbolInfo& symbol);
    // The same for the search in force; until something has been searched for there is nothing to narrow.
    void followSymbol(const CSymbolInfo& symbol);
    // The open symbol picker of a search dialog takes over what has changed.
    void updateSymbolPicker(const std::vector<CSymbolUpdateInfo>& updates);

    SearchDesk& desk() { return conditions; }
    const SearchDesk& desk() const { return conditions; }
    void showTip(const QRect& rectangle, const QString& text) override;
    // The short tip, for the host's scripts.
    QVariantMap shortTipState() const;

private:
    QString textOfEdit() const;
    QStringList textsToOffer() const;
    // How the text is searched for; none: not at all.
    std::optional<SearchLanguage> languageOf(const QString& text);
    void tipAtEdit(const QString& text);
    bool waitTipIsUp() const;
    void stopWaiting();
    void showTyped(const FirstFound::Found& found);
    void showFirst(ListIndex list, const FirstFound::Found& found);
    void refillInPlace(ListIndex list, const std::vector<std::vector<CHeadlineTable>>& found);
    void showFound(ListIndex list, bool selectFirst);

    ViewContext& context;
    const CommonParts parts;
    const std::function<bool()> showsStory;
    SearchDesk conditions;
    std::map<unsigned char, CHeadline> pushed;  // the newest of each service since the last refresh
    QString waitTipText;                        // of the search that was announced last, as it was shown
    FirstFound firstFound;
    CXTTipWindow* shortTip;  // belongs to the view's window
};

}  // namespace wirepane

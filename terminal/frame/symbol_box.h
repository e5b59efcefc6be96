// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "host/contract/records.h"

#include <QWidget>

#include <functional>
#include <map>
#include <vector>

class QCompleter;
class QLabel;
class QLineEdit;

namespace wirepane {
class LinkBadge;
class SymbolOfferDelegate;
class SymbolOffers;

// The entry of symbols in the tool bar: a link group, and a line that completes codes and names, each offer
// with its quote. Enter or a click takes an offer (Enter at first the topmost); a text that fits no symbol is
// said to be unknown; Escape brings the group's symbol back and gives the keyboard to the view.
class SymbolBox : public QWidget {
    Q_OBJECT

public:
    // Up to so many symbols that fit a text, the best first.
    using Search = std::function<std::vector<SymbolItem>(const QString& text, std::size_t limit)>;

    explicit SymbolBox(QWidget* parent = nullptr);

    void setSearch(Search search) { find = std::move(search); }

    // The group that the box drives: 1 or more.
    unsigned char group() const;
    void showGroup(unsigned char group);
    // What a group's symbol is now.
    void showSymbol(unsigned char group, const SymbolItem& symbol);
    // What a symbol trades at, of those that are in sight (offersInSight).
    void showQuote(const CQuoteMemory& quote);
    // Gives the box the keyboard, with its text selected.
    void begin();
    // Sets the texts in the language in force.
    void retranslate();

signals:
    // The user chose a symbol for the group.
    void chosen(unsigned char group, const wirepane::SymbolItem& symbol);
    // The symbols whose quotes the user sees are these now.
    void offersInSight(const std::vector<CSymbolInfo>& symbols);
    // The user is done here without choosing.
    void left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fitLine();
    void offer(const QString& typed);
    void take(int offerRow);
    void takeTopmost();
    void showCurrent();
    void tellInSight();

    LinkBadge* badge;
    QLineEdit* line;
    QLabel* name;
    QCompleter* completer;
    SymbolOffers* offers;
    SymbolOfferDelegate* rows;
    Search find;
    std::map<unsigned char, SymbolItem> current;  // by group
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "host/views/quote_table.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include <vector>

namespace wirepane {

// The names of a symbol, first the one in the language of the terminal, as far as it is known; the second is
// empty where there is no other.
struct SymbolNames {
    QString first;
    QString second;
};
SymbolNames namesOf(const SymbolItem& symbol);

// The symbols that fit what is typed, with their quotes as far as they are known. The text of a row is what a
// reader of the screen says.
class SymbolOffers : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void offer(std::vector<SymbolItem> symbols);
    const std::vector<SymbolItem>& symbols() const { return offered; }
    // Keeps a quote of one of them. Result: whether it says anything new. No change of data is announced, for
    // which the completer would begin its list again from the top: whoever shows the rows has them redrawn.
    bool takeQuote(const CQuoteMemory& quote) { return quotes.update(quote).has_value(); }
    // From 0; the names are those of symbols()[row].
    const QuoteRow& quoteOf(int row) const { return quotes.at(row); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<SymbolItem> offered;
    QuoteTable quotes;
};

// Draws them in columns: code, names, last price, change and its percentage.
class SymbolOfferDelegate : public QStyledItemDelegate {
public:
    SymbolOfferDelegate(const SymbolOffers& rows, QObject* parent)
        : QStyledItemDelegate(parent), offers(rows) {}

    // Makes the columns as wide as the rows need in this font. Result: how wide a row is then.
    int measure(const QFont& font);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const SymbolOffers& offers;
    int codeWidth = 0;
    int namesWidth = 0;
    int figureWidth = 0;  // of each of the three
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/symbol_offers.h"

#include "backend/words/simplified_chinese.h"
#include "host/contract/colour_roles.h"
#include "host/controls/uncut_width.h"

#include <QFontMetrics>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int margin = 8;
constexpr int gap = 16;  // between columns
constexpr int namesGap = 8;
constexpr int mostNamesWidth = 420;
constexpr int rowAir = 8;
constexpr std::array figures{QuoteColumn::Last, QuoteColumn::Change, QuoteColumn::Percent};

}  // namespace

SymbolNames namesOf(const SymbolItem& symbol) {
    static SimplifiedChinese simplified;
    const QString own = QLocale().script() == QLocale::SimplifiedChineseScript
                            ? simplified.convert(symbol.name)
                            : symbol.name;
    if (symbol.englishName.isEmpty() || symbol.englishName == symbol.name)
        return {own, {}};
    return QLocale().language() == QLocale::English ? SymbolNames{symbol.englishName, own}
                                                    : SymbolNames{own, symbol.englishName};
}

void SymbolOffers::offer(std::vector<SymbolItem> symbols) {
    beginResetModel();
    offered = std::move(symbols);
    std::vector<CSymbolInfo> infos;
    for (const SymbolItem& symbol : offered)
        infos.push_back({symbol.market, symbol.code});
    quotes.setSymbols(infos);
    endResetModel();
}

int SymbolOffers::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(offered.size());
}

QVariant SymbolOffers::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    const SymbolItem& symbol = offered[static_cast<std::size_t>(index.row())];
    const SymbolNames names = namesOf(symbol);
    QStringList parts{symbol.code, names.first, names.second};
    const QuoteRow& row = quoteOf(index.row());
    if (row.quote) {
        for (const QuoteColumn figure : figures)
            parts.append(textOf(row, figure));
    }
    parts.removeAll(QString());
    return parts.join(u"  "_s);
}

int SymbolOfferDelegate::measure(const QFont& font) {
    const QFontMetrics metrics(font);
    codeWidth = 0;
    namesWidth = 0;
    figureWidth = uncutWidth(metrics, u"+00.00%"_s);
    for (int row = 0; row < offers.rowCount(); ++row) {
        const SymbolItem& symbol = offers.symbols()[static_cast<std::size_t>(row)];
        const SymbolNames names = namesOf(symbol);
        const int second = names.second.isEmpty() ? 0 : namesGap + uncutWidth(metrics, names.second);
        codeWidth = std::max(codeWidth, uncutWidth(metrics, symbol.code));
        namesWidth = std::max(namesWidth, uncutWidth(metrics, names.first) + second);
        for (const QuoteColumn figure : figures)
            figureWidth = std::max(figureWidth, uncutWidth(metrics, textOf(offers.quoteOf(row), figure)));
    }
    namesWidth = std::min(namesWidth, mostNamesWidth);
    return margin + codeWidth + gap + namesWidth + static_cast<int>(figures.size()) * (gap + figureWidth) +
           margin;
}

void SymbolOfferDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    const SymbolItem& symbol = offers.symbols()[static_cast<std::size_t>(index.row())];
    const QuoteRow& quote = offers.quoteOf(index.row());
    const QColor text = option.palette.color(QPalette::Text);
    const QColor weak = option.palette.color(QPalette::PlaceholderText);
    painter->save();
    painter->setFont(option.font);
    if ((option.state & QStyle::State_Selected) != 0)
        painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
    QRect cell = option.rect.adjusted(margin, 0, -margin, 0);
    const auto draw = [&](const QRect& rect, const QColor& colour, int alignment, const QString& content) {
        painter->setPen(colour);
        painter->drawText(rect, alignment | Qt::AlignVCenter | Qt::TextSingleLine,
                          option.fontMetrics.elidedText(content, Qt::ElideRight, rect.width()));
    };
    draw({cell.left(), cell.top(), codeWidth, cell.height()}, text, Qt::AlignLeft, symbol.code);
    for (auto figure = figures.rbegin(); figure != figures.rend(); ++figure) {
        const QRect figureCell(cell.right() + 1 - figureWidth, cell.top(), figureWidth, cell.height());
        const int direction = *figure == QuoteColumn::Last ? 0 : directionOf(quote);
        const ColourRole role = direction > 0 ? ColourRole::Up : ColourRole::Down;
        if (quote.quote)
            draw(figureCell, direction == 0 ? text : roleColour(role, text), Qt::AlignRight,
                 textOf(quote, *figure));
        cell.setRight(figureCell.left() - gap);
    }
    cell.setLeft(cell.left() + codeWidth + gap);
    const SymbolNames names = namesOf(symbol);
    draw(cell, text, Qt::AlignLeft, names.first);
    cell.setLeft(cell.left() + uncutWidth(option.fontMetrics, names.first) + namesGap);
    if (cell.width() > 0)
        draw(cell, weak, Qt::AlignLeft, names.second);
    painter->restore();
}

QSize SymbolOfferDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {0, option.fontMetrics.height() + rowAir};
}

}  // namespace wirepane

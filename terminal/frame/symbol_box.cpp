// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/symbol_box.h"

#include "host/controls/line_icon.h"
#include "terminal/frame/link_badge.h"
#include "terminal/frame/symbol_offers.h"
#include "terminal/translations/terminal_text.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::size_t mostOffers = 200;
constexpr int mostInSight = 14;
constexpr int lineWidth = 18;  // average characters

}  // namespace

SymbolBox::SymbolBox(QWidget* parent)
    : QWidget(parent),
      badge(new LinkBadge(this)),
      line(new QLineEdit(this)),
      name(new QLabel(this)),
      completer(new QCompleter(this)),
      offers(new SymbolOffers(this)),
      rows(new SymbolOfferDelegate(*offers, this)) {
    badge->setOffersNone(false);
    badge->setGroup(1);
    name->setTextFormat(Qt::PlainText);
    name->setMinimumWidth(1);
    line->setClearButtonEnabled(true);
    line->addAction(lineIcon(LineIcon::Search, QPalette::PlaceholderText), QLineEdit::LeadingPosition);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->setSpacing(8);
    row->addWidget(badge);
    row->addWidget(line);
    row->addWidget(name, 1);
    completer->setModel(offers);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setMaxVisibleItems(mostInSight);
    completer->setWidget(line);
    QAbstractItemView* list = completer->popup();
    list->setItemDelegate(rows);
    list->installEventFilter(this);
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this, &SymbolBox::tellInSight);
    line->installEventFilter(this);
    connect(line, &QLineEdit::textEdited, this, &SymbolBox::offer);
    connect(line, &QLineEdit::returnPressed, this, &SymbolBox::takeTopmost);
    connect(completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& index) { take(index.row()); });
    connect(badge, &LinkBadge::groupChosen, this, &SymbolBox::showGroup);
    retranslate();
}

unsigned char SymbolBox::group() const {
    return badge->group();
}

void SymbolBox::showGroup(unsigned char group) {
    badge->setGroup(group);
    showCurrent();
}

void SymbolBox::showSymbol(unsigned char group, const SymbolItem& symbol) {
    current[group] = symbol;
    if (group == badge->group())
        showCurrent();
}

void SymbolBox::showCurrent() {
    const auto found = current.find(badge->group());
    const SymbolItem symbol = found == current.end() ? SymbolItem{} : found->second;
    offers->offer({});
    completer->popup()->hide();
    line->setText(symbol.code);
    name->setText(namesOf(symbol).first);
}

void SymbolBox::begin() {
    line->setFocus(Qt::ShortcutFocusReason);
    line->selectAll();
}

void SymbolBox::retranslate() {
    line->setPlaceholderText(terminalText(TextId::SymbolPrompt));
    line->setAccessibleName(terminalText(TextId::SymbolBar));
    completer->popup()->setAccessibleName(terminalText(TextId::SymbolBar));
    fitLine();
    badge->setGroup(badge->group());
    showCurrent();
}

// As wide as what it asks for, beside its two icons.
void SymbolBox::fitLine() {
    const QFontMetrics metrics = fontMetrics();
    const int text =
        std::max(metrics.averageCharWidth() * lineWidth, metrics.horizontalAdvance(line->placeholderText()));
    line->setFixedWidth(text + 2 * (style()->pixelMetric(QStyle::PM_SmallIconSize) + metrics.height()));
}

void SymbolBox::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitLine();
}

void SymbolBox::offer(const QString& typed) {
    offers->offer(find ? find(typed, mostOffers) : std::vector<SymbolItem>());
    const bool fitsNone = offers->symbols().empty();
    name->setText(fitsNone && !typed.trimmed().isEmpty() ? terminalText(TextId::SymbolUnknown) : QString());
    if (fitsNone) {
        completer->popup()->hide();
        return;
    }
    QAbstractItemView* list = completer->popup();
    const int barWidth = list->verticalScrollBar()->sizeHint().width() + 2 * list->frameWidth();
    completer->complete(
        {0, 0, std::max(line->width(), rows->measure(list->font()) + barWidth), line->height()});
    list->setCurrentIndex(list->model()->index(0, 0));
    tellInSight();
}

void SymbolBox::tellInSight() {
    const QAbstractItemView* list = completer->popup();
    std::vector<CSymbolInfo> inSight;
    if (list->isVisible()) {
        const int first = std::max(0, list->indexAt(QPoint(0, 0)).row());
        const int last = std::min(first + mostInSight + 1, static_cast<int>(offers->symbols().size()));
        for (int row = first; row < last; ++row)
            inSight.push_back(offers->quoteOf(row).symbol);
    }
    emit offersInSight(inSight);
}

void SymbolBox::showQuote(const CQuoteMemory& quote) {
    if (offers->takeQuote(quote))
        completer->popup()->viewport()->update();
}

void SymbolBox::take(int offerRow) {
    const std::vector<SymbolItem>& symbols = offers->symbols();
    if (offerRow < 0 || offerRow >= static_cast<int>(symbols.size()))
        return;
    const SymbolItem symbol = symbols[static_cast<std::size_t>(offerRow)];
    showSymbol(badge->group(), symbol);
    line->selectAll();
    emit chosen(badge->group(), symbol);
}

void SymbolBox::takeTopmost() {
    if (offers->symbols().empty())
        offer(line->text());
    take(0);
}

bool SymbolBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == line && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        showCurrent();
        emit left();
        return true;
    }
    if (watched == completer->popup() && event->type() == QEvent::Hide)
        tellInSight();
    // What was typed and not taken gives way to what is in force.
    if (watched == line && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason &&
        !completer->popup()->isVisible())
        showCurrent();
    return QWidget::eventFilter(watched, event);
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/symbol_box.h"

#include "host/controls/line_icon.h"
#include "terminal/frame/link_badge.h"
#include "terminal/translations/terminal_text.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStringListModel>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::size_t mostOffers = 200;
constexpr int offersInSight = 14;
constexpr int lineWidth = 22;  // average characters

QString offerText(const SymbolItem& symbol) {
    return symbol.name.isEmpty() ? symbol.code : u"%1  %2"_s.arg(symbol.code, symbol.name);
}

}  // namespace

SymbolBox::SymbolBox(QWidget* parent)
    : QWidget(parent),
      badge(new LinkBadge(this)),
      line(new QLineEdit(this)),
      name(new QLabel(this)),
      completer(new QCompleter(this)),
      offered(new QStringListModel(this)) {
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
    completer->setModel(offered);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setMaxVisibleItems(offersInSight);
    completer->setWidget(line);
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
    offers.clear();
    completer->popup()->hide();
    line->setText(symbol.code);
    name->setText(symbol.name);
}

void SymbolBox::begin() {
    line->setFocus(Qt::ShortcutFocusReason);
    line->selectAll();
}

void SymbolBox::retranslate() {
    line->setPlaceholderText(terminalText(TextId::SymbolPrompt));
    line->setAccessibleName(terminalText(TextId::SymbolBar));
    line->setFixedWidth(fontMetrics().averageCharWidth() * lineWidth + fontMetrics().height() * 2);
    badge->setGroup(badge->group());
}

void SymbolBox::offer(const QString& typed) {
    offers = find ? find(typed, mostOffers) : std::vector<SymbolItem>();
    QStringList texts;
    for (const SymbolItem& symbol : offers)
        texts.append(offerText(symbol));
    offered->setStringList(texts);
    name->setText(offers.empty() && !typed.trimmed().isEmpty() ? terminalText(TextId::SymbolUnknown)
                                                               : QString());
    if (offers.empty()) {
        completer->popup()->hide();
        return;
    }
    completer->complete();
    completer->popup()->setCurrentIndex(completer->popup()->model()->index(0, 0));
}

void SymbolBox::take(int offerRow) {
    if (offerRow < 0 || offerRow >= static_cast<int>(offers.size()))
        return;
    const SymbolItem symbol = offers[static_cast<std::size_t>(offerRow)];
    showSymbol(badge->group(), symbol);
    line->selectAll();
    emit chosen(badge->group(), symbol);
}

void SymbolBox::takeTopmost() {
    if (offers.empty())
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
    // What was typed and not taken gives way to what is in force.
    if (watched == line && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason &&
        !completer->popup()->isVisible())
        showCurrent();
    return QWidget::eventFilter(watched, event);
}

}  // namespace wirepane

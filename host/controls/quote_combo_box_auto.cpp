// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/quote_combo_box_auto.h"

#include "host/controls/symbol_matches.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>

namespace {
constexpr int mostOffers = 50;
}

CQuoteComboBoxAuto::CQuoteComboBoxAuto(QWidget* parent)
    : SCComboBox(parent), completer(new QCompleter(this)), offered(new QStringListModel(this)) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // Not handed to the line: the box's own completer would take the rows of the offers for rows of the
    // items.
    setCompleter(nullptr);
    completer->setModel(offered);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setWidget(lineEdit());
    lineEdit()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::textEdited, this, &CQuoteComboBoxAuto::offer);
    connect(completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& index) { take(index.row()); });
}

void CQuoteComboBoxAuto::offer(const QString& typed) {
    typing = true;
    offers = SymbolMatches(
        typed, count(), [this](int index) { return itemText(index); }, mostOffers);
    QStringList texts;
    for (const int index : offers)
        texts << itemText(index);
    offered->setStringList(texts);
    if (offers.empty()) {
        completer->popup()->hide();
        return;
    }
    completer->complete();
    completer->popup()->setCurrentIndex(completer->popup()->model()->index(0, 0));
}

void CQuoteComboBoxAuto::take(int offerRow) {
    if (offerRow < 0 || offerRow >= static_cast<int>(offers.size()))
        return;
    const int index = offers[offerRow];
    const QString text = offered->index(offerRow).data().toString();
    stopTyping();
    if (itemText(index) != text)
        return;  // the items were replaced since they were offered
    setCurrentIndex(index);
    setEditText(text);
    emit SelChange(index);
    emit CloseUp();
}

void CQuoteComboBoxAuto::stopTyping() {
    typing = false;
    offers.clear();
    completer->popup()->hide();
}

bool CQuoteComboBoxAuto::eventFilter(QObject* watched, QEvent* event) {
    if (watched != lineEdit() || !typing)
        return SCComboBox::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            take(0);
            return true;
        }
    } else if (event->type() == QEvent::FocusOut &&
               static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        stopTyping();
        setEditText(itemText(currentIndex()));
    }
    return SCComboBox::eventFilter(watched, event);
}

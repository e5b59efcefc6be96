// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/quote_combo_box_auto.h"

#include "host/controls/symbol_matches.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>

using namespace wirepane;

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
    // What the line holds becomes an item by an offer only, not by being spelt out when the line is left.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(this, &QComboBox::activated, this, &CQuoteComboBoxAuto::stopTyping);
    connect(lineEdit(), &QLineEdit::textEdited, this, &CQuoteComboBoxAuto::offer);
    connect(completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& index) { take(index.row()); });
}

void CQuoteComboBoxAuto::offer(const QString& typed) {
    typing = true;
    offers = symbolMatches(
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
    emit selChange(index);
    emit closeUp();
}

void CQuoteComboBoxAuto::stopTyping() {
    typing = false;
    offers.clear();
    completer->popup()->hide();
}

void CQuoteComboBoxAuto::keyPressEvent(QKeyEvent* event) {
    if (typing && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        take(0);
        event->accept();
        return;
    }
    SCComboBox::keyPressEvent(event);
}

void CQuoteComboBoxAuto::focusOutEvent(QFocusEvent* event) {
    SCComboBox::focusOutEvent(event);
    const bool comesBack =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!typing || comesBack)
        return;
    stopTyping();
    setEditText(itemText(currentIndex()));
}

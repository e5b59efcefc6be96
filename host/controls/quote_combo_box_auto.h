// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/sc_combo_box.h"

#include <vector>

class QCompleter;
class QStringListModel;

// A combo box of symbols, "CODE NAME" each, that the user can type into. Items whose code begins with the
// typed text, or whose name contains it, are offered below (an exact code first, then codes, then names, each
// in the items' order; upper and lower case alike). Enter takes the marked offer, at first the topmost; a
// typed text that fits no item changes nothing, and gives way to the current item when the box loses the
// keyboard.
//
// Taking an offer tells SelChange and then CloseUp, as choosing from the drop-down does.
class WIREPANE_HOST_EXPORT CQuoteComboBoxAuto : public SCComboBox {
    Q_OBJECT

public:
    explicit CQuoteComboBoxAuto(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void offer(const QString& typed);
    void take(int offerRow);
    void stopTyping();

    QCompleter* completer;
    QStringListModel* offered;
    std::vector<int> offers;  // the item indexes of the offered texts
    bool typing = false;
};

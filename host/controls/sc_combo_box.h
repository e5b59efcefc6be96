// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QComboBox>

// A combo box whose drop-down is a list under the box, quick also with tens of thousands of items. Items are
// data: their '&' is shown.
class WIREPANE_HOST_EXPORT SCComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit SCComboBox(QWidget* parent = nullptr);

    // The width in pixels of the widest item's text in the combo's font; 0 without items. Kept between
    // changes of the items and the font.
    int widestItem() const;

    void setModel(QAbstractItemModel* model) override;
    void showPopup() override;

Q_SIGNALS:
    // The drop-down closed, for whatever reason. When the user chose an item, it is the current one by then.
    // Told from the event loop, once for each time the drop-down was open.
    void closeUp();
    // The user chose the item at this index (perhaps the one that was current). Never told of changes in
    // code.
    void selChange(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void watchItems();
    int widestOf(int first, int last) const;

    mutable int widest = 0;
    mutable bool widestKnown = true;
    bool dropped = false;
};

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/sc_combo_box.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QEvent>
#include <QListView>
#include <QProxyStyle>
#include <QStyleOptionComboBox>

#include <algorithm>

namespace {

// The drop-down as a list with a scroll bar, not as a menu as high as the screen.
class DropListStyle : public QProxyStyle {
public:
    explicit DropListStyle(QObject* parent) : QProxyStyle(QApplication::style()->name()) {
        setParent(parent);
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

}  // namespace

SCComboBox::SCComboBox(QWidget* parent) : QComboBox(parent) {
    QStyleOptionComboBox plain;
    if (style()->styleHint(QStyle::SH_ComboBox_Popup, &plain, this) != 0)
        setStyle(new DropListStyle(this));
    if (auto* list = qobject_cast<QListView*>(view()))
        list->setUniformItemSizes(true);
    view()->setTextElideMode(Qt::ElideRight);
    connect(this, &QComboBox::activated, this, &SCComboBox::selChange);
    watchItems();
}

void SCComboBox::setModel(QAbstractItemModel* items) {
    model()->disconnect(this);
    QComboBox::setModel(items);
    watchItems();
}

void SCComboBox::watchItems() {
    widestKnown = false;
    const auto forget = [this] { widestKnown = false; };
    connect(model(), &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) {
                if (widestKnown)
                    widest = std::max(widest, widestOf(first, last));
            });
    connect(model(), &QAbstractItemModel::rowsRemoved, this, forget);
    connect(model(), &QAbstractItemModel::dataChanged, this, forget);
    connect(model(), &QAbstractItemModel::modelReset, this, forget);
}

int SCComboBox::widestOf(int first, int last) const {
    int found = 0;
    for (int index = first; index <= last; ++index)
        found = std::max(found, fontMetrics().horizontalAdvance(itemText(index)));
    return found;
}

int SCComboBox::widestItem() const {
    if (!widestKnown) {
        widest = widestOf(0, count() - 1);
        widestKnown = true;
    }
    return widest;
}

void SCComboBox::changeEvent(QEvent* event) {
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        widestKnown = false;
}

void SCComboBox::showPopup() {
    // The drop-down closes by more ways than hidePopup: a click elsewhere hides its window directly.
    QWidget* list = view()->window();
    list->removeEventFilter(this);
    list->installEventFilter(this);
    QComboBox::showPopup();
    dropped = list->isVisible();
}

bool SCComboBox::eventFilter(QObject* watched, QEvent* event) {
    if (dropped && event->type() == QEvent::Hide && watched == view()->window()) {
        dropped = false;
        // The list hides before the chosen item becomes current.
        QMetaObject::invokeMethod(this, &SCComboBox::closeUp, Qt::QueuedConnection);
    }
    return QComboBox::eventFilter(watched, event);
}

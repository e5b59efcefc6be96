// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/xtp_tab_control.h"

#include "host/controls/plain_caption.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

using namespace wirepane;

CXTPTabControl::CXTPTabControl(QWidget* parent) : QTabBar(parent) {
    setExpanding(false);
    setDrawBase(false);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        if (byUser)
            emit selChange(index);
    });
}

int CXTPTabControl::appendTab(const QString& text, int itemData) {
    const QSignalBlocker silent(this);
    const int index = addTab(captionOfName(text));
    setTabData(index, itemData);
    return index;
}

void CXTPTabControl::showTabText(int index, const QString& text) {
    setTabText(index, captionOfName(text));
}

QString CXTPTabControl::literalTabText(int index) const {
    return nameOfCaption(tabText(index));
}

void CXTPTabControl::SetColorSet(const TRVTabColorSet& colours) {
    QPalette own;
    if (colours.background.isValid()) {
        own.setColor(QPalette::Window, colours.background);
        own.setColor(QPalette::Button, colours.background);
    }
    if (colours.text.isValid()) {
        own.setColor(QPalette::WindowText, colours.text);
        own.setColor(QPalette::ButtonText, colours.text);
    }
    setPalette(own);
}

int CXTPTabControl::itemData(int index) const {
    return tabData(index).toInt();
}

void CXTPTabControl::SetCurSel(int index) {
    const QScopedValueRollback quietly(byUser, false);
    setCurrentIndex(index);
}

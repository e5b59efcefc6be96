// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/check_list_box.h"

#include "host/controls/roomy_rows.h"

using namespace wirepane;

CCheckListBox::CCheckListBox(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(ExtendedSelection);
    setUniformItemSizes(true);
    setItemDelegate(new RoomyRows(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
}

int CCheckListBox::addString(const QString& text) {
    auto* added = new QListWidgetItem(text);
    added->setFlags(added->flags() | Qt::ItemIsUserCheckable);
    added->setCheckState(Qt::Unchecked);
    addItem(added);
    return row(added);
}

void CCheckListBox::setCheck(int row, bool ticked) {
    item(row)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

bool CCheckListBox::check(int row) const {
    return item(row)->checkState() == Qt::Checked;
}

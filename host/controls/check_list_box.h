// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QListWidget>

// A list of items with a check box each; several can be selected. Rows count from 0 and must exist. Ticks
// tell of themselves by itemChanged, whoever makes them.
class WIREPANE_HOST_EXPORT CCheckListBox : public QListWidget {
    Q_OBJECT

public:
    explicit CCheckListBox(QWidget* parent = nullptr);

    // Appends an item that is not ticked. Its row.
    int addString(const QString& text);
    void setCheck(int row, bool ticked);
    bool check(int row) const;
};

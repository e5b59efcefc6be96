// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QMenuBar;

namespace wirepane {

// All keys on one page: those of the menus, and those of a view as its shortcuts tell of them.
class KeysWindow : public QDialog {
    Q_OBJECT

public:
    // `view`: null: none is open. Both are read now.
    KeysWindow(const QMenuBar& menus, const QWidget* view, const QString& viewTitle, QWidget* parent);
};

}  // namespace wirepane

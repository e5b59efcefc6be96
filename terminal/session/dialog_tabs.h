// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace wirepane {

// Ctrl+PgDn and Ctrl+PgUp change the pages of dialogs, as they change the modes of views.
class DialogTabs : public QObject {
    Q_OBJECT

public:
    // Watches all windows of the application.
    explicit DialogTabs(QObject* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace wirepane

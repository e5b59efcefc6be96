// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace wirepane {

// The user's guide, to read beside the terminal; its links lead to the documents beside it, Alt+Left back.
class GuideWindow : public QDialog {
    Q_OBJECT

public:
    // `file` is a Markdown document.
    explicit GuideWindow(const QString& file, QWidget* parent = nullptr);
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QTextBrowser;

namespace wirepane {

// The user's guide in the language in force, to read beside the terminal; its links lead to the documents
// beside it, Alt+Left back.
class GuideWindow : public QDialog {
    Q_OBJECT

public:
    // `folder` has the guide as a Markdown document: guide.md in English, guide_zh_TW.md and so on.
    explicit GuideWindow(const QString& folder, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void read();

    const QString folder;
    QTextBrowser* const text;
};

}  // namespace wirepane

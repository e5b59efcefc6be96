// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>

class QLabel;

namespace wirepane {

// A strip over the views that tells something until it is closed. Hidden while there is nothing to tell.
class NoticeBar : public QToolBar {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    // Adds a sentence to those that are told already; one that is told is not told twice.
    void tell(const QString& sentence);
    QString text() const;
    // Shown or not, as there is something to tell or not.
    void showOrHide();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitHeight();

    QLabel* label;
};

}  // namespace wirepane

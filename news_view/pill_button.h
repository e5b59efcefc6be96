// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace wirepane {

// A button in the colours of what wants attention, its ends round.
class PillButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit PillButton(QWidget* parent);

    // What it says, and the key that does the same.
    void showText(const QString& text, const QString& key);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString keyText;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QPushButton>

// A push button that Enter presses as Space does, and that cuts a text too long for it with dots instead of
// at both ends.
class WIREPANE_HOST_EXPORT SButton : public QPushButton {
    Q_OBJECT

public:
    explicit SButton(QWidget* parent = nullptr);

    // Shows the text as it stands, with its '&'. (setText makes a key of what follows an '&'.)
    void showText(const QString& text);
    // The text as showText took it.
    QString literalText() const;
    // What it needs to show its icon and its text side by side. A narrower one that has an icon shows that
    // alone.
    int widthWithIcon() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;
};

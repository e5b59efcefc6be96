// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QLabel>
#include <QTimer>

// A short notice over other windows: a frame, plain text, no title, never the keyboard. A click takes it
// away.
class WIREPANE_HOST_EXPORT CXTTipWindow : public QLabel {
    Q_OBJECT

public:
    // A window of its own, over the window of `parent`.
    explicit CXTTipWindow(QWidget* parent = nullptr);

    // Shows the text with its middle at a point of the screen, moved as far as needed to be on the screen,
    // for `ms` milliseconds; 0 or less: until vStop. Shown again while it is up, it takes the new text and
    // time.
    void vShow(const QPoint& centre, const QString& text, int ms);
    void vStop();

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    QTimer timer;
};

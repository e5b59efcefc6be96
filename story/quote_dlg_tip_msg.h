// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QColor>
#include <QFont>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <optional>

class CQuoteStaticEx;

// One line of text shown for a limited time over another window, which it becomes a child of. It sizes itself
// to its text, is put back to its place ten times a second, and goes when its time is up or when it is
// clicked. The object is used for every tip: setting and showing again starts the count-down anew.
class CQuoteDlgTipMsg : public QWidget {
    Q_OBJECT

public:
    explicit CQuoteDlgTipMsg(QWidget* parent);

    // Creates the tip's text line, hidden. The parent given here replaces the constructor's when it is not
    // null.
    bool CreateByID(QWidget* parent);

    // What is shown next: `owner` gets the keyboard back (null: whoever it is shown over), the text, its
    // colours and the time in milliseconds. The time has a grain of one second.
    void vSetInfo(QWidget* owner, const QString& text, const QColor& textColour, const QColor& backColour,
                  int displayTimeMs);
    void vSetInfoColor(const QColor& textColour, const QColor& backColour);
    void vSetFont(const QFont& font) { tipFont = font; }

    // Shows the tip over `parent` with its corner at (left, top) of it, or ending there with `toTheLeft`. -1
    // for either keeps the last place. Nothing happens when the active window is not the one that holds
    // `parent`, or a dialog of that; between two windows, as right after a dialog, the one that holds it
    // counts as active.
    void vShow(QWidget* parent, int top, int left, bool toTheLeft);
    void vStop();
    // The text as it is shown, cut where it was too wide.
    const QString& tipText() const { return text; }

protected:
    void timerEvent(QTimerEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void fitToText();
    void place();

    CQuoteStaticEx* label = nullptr;
    QPointer<QWidget> owner;
    QString text;
    QColor textColour;
    QColor backColour;
    std::optional<QFont> tipFont;
    QPoint position;
    QSize tipSize;
    QBasicTimer placeTimer;
    QBasicTimer countDown;
    int displayTimeMs = 0;
    int remainingMs = 0;
};

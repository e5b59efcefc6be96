// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/text_portions.h"

#include <QBasicTimer>
#include <QPlainTextEdit>

#include <optional>
#include <utility>

// A read-only text of several lines. Text is never taken as markup, and is copied as plain text. Colours that
// were not set (invalid) follow the palette. What is selected stays visible while another window has the
// keyboard. Home, End, Page, arrows and Space scroll, with Ctrl too.
//
// No text holds the interface up. The document is given the first portion at once and the rest from the event
// loop, a few milliseconds at a time (TextPortions); lines are laid out when they come into view. What is
// asked of the text meanwhile is answered for all of it: texts, selections and copies are whole, a view that
// stands at the end stays there, and a selection beyond what is there is made, and scrolled to, when its
// portion comes, unless the user has selected or scrolled by then. Runs that no line could hold, and lines
// that are too long to be laid out at once, are broken for the eye alone.
class WIREPANE_HOST_EXPORT MyRichEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit MyRichEdit(QWidget* parent = nullptr);

    // "\r\n" and "\n" break the line. The view goes to the top, nothing is selected.
    void showText(const QString& text);
    // The text exactly as it was set.
    const QString& literalText() const { return shown; }
    // The text as selections count it: each line break is one character (U+2029).
    const QString& shownText() const { return portions.text(); }
    // Selects the characters from `start` to before `end` of the shown text. A selection whose end is out of
    // sight is scrolled to the middle.
    void setSelection(int start, int end);
    // What is selected, counted in the same way.
    std::pair<int, int> selection() const;

    void vSetTextColor(const QColor& colour);
    void vSetBkColor(const QColor& colour);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    void applyColours();
    void addPortion();
    void select(std::pair<int, int> characters);

    QString shown;
    wirepane::TextPortions portions;  // of the shown text: what the document has of it
    QBasicTimer filling;
    std::optional<std::pair<int, int>> awaited;  // to be selected when it is there
    QColor textColour;
    QColor background;
};

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QPlainTextEdit>

#include <utility>
#include <vector>

// A read-only text of several lines. Text is never taken as markup, and is copied as plain text. Colours that
// were not set (invalid) follow the palette. What is selected stays visible while another window has the
// keyboard. Home, End, Page, arrows and Space scroll, with Ctrl too. Lines are laid out when they come into
// view, so that a long text shows as fast as a short one; a run that no line could hold and that has no place
// to be broken is broken for the eye alone.
class WIREPANE_HOST_EXPORT MyRichEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit MyRichEdit(QWidget* parent = nullptr);

    // "\r\n" and "\n" break the line. The view goes to the top, nothing is selected.
    void showText(const QString& text);
    // The text exactly as it was set.
    const QString& literalText() const { return shown; }
    // The text as selections count it: each line break is one character (U+2029).
    QString shownText() const;
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
    QMimeData* createMimeDataFromSelection() const override;

private:
    void applyColours();

    int inDocument(int character, bool behindBreak) const;
    int inText(int place) const;

    QString shown;
    std::vector<int> breaks;  // the characters of the shown text before which it is broken for the eye alone
    QColor textColour;
    QColor background;
};

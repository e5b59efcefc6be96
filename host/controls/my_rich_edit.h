// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/text_portions.h"
#include "host/controls/typeset_document.h"

#include <QBasicTimer>
#include <QPlainTextEdit>
#include <QPointer>

#include <optional>
#include <utility>
#include <vector>

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
//
// A text may be typeset: it has a lead above it, and lines of its own that are not shown, as the lead says
// what they say. Texts, selections and what is copied are those of the text as before; of the lead is copied
// what the user has selected of it together with a part of the text.
class WIREPANE_HOST_EXPORT MyRichEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit MyRichEdit(QWidget* parent = nullptr);

    // How texts are set from here on; none: plainly. The text that is shown begins anew where it was set in
    // the other way; else, as in another font, what is in sight stays.
    void setTypography(const std::optional<wirepane::Typography>& typography);
    bool isTypeset() const { return page != nullptr; }

    // Parts of a text that are set in their own way where it is typeset.
    struct Parts {
        int notShown = 0;      // so many characters at its beginning, whole lines
        bool endMark = false;  // its last line says that it ends
    };
    // "\r\n" and "\n" break the line. The view goes to the top, nothing is selected.
    void showText(const QString& text) { showText(text, {}); }
    void showText(const QString& text, const Parts& parts);
    // What stands above the text from here on, also above the next one.
    void setLead(const wirepane::TextLead& lead);
    const wirepane::TextLead& lead() const { return above; }
    // Selects the text, the lead not.
    void selectAll();
    // A part of the shown text that is drawn in a way of its own.
    struct Mark {
        int start = 0;
        int end = 0;  // behind it
        QTextCharFormat format;
    };
    static constexpr std::size_t mostMarks = 2000;
    // Until another text is shown. Of more than mostMarks the first ones are drawn.
    void setMarks(std::vector<Mark> marks);
    // Before those that there are: where both stand, theirs is seen.
    void addMarks(std::vector<Mark> marks);
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

Q_SIGNALS:
    // The user has clicked a link of the lead.
    void linkClicked(const QString& target);
    // He wants texts larger (1), smaller (-1), as large as at first (0). Only where texts are typeset.
    void sizeWanted(int step);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    void applyColours();
    void fill();
    void addPortion();
    void append(const QString& portion);
    void select(std::pair<int, int> characters);
    void drawMarks();
    int placeOf(int character, bool behindBreak) const;
    int characterAt(int place) const;
    // How much farther behind a place of the document is than one of what has been handed out.
    int shift() const;

    QString shown;
    Parts special;
    wirepane::TextLead above;
    std::optional<wirepane::Typography> look;
    QPointer<wirepane::TypesetDocument> page;  // null: the document is a plain one
    QString pressedLink;
    int wheel = 0;                    // of a turn that has not made a step yet
    wirepane::TextPortions portions;  // of the shown text: what the document has of it
    QBasicTimer filling;
    std::vector<Mark> marked;
    std::optional<std::pair<int, int>> awaited;  // to be selected when it is there
    QColor textColour;
    QColor background;
};

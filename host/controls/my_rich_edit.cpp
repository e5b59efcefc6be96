// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/my_rich_edit.h"

#include "host/controls/long_runs.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocumentFragment>

#include <algorithm>

using namespace wirepane;

MyRichEdit::MyRichEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    applyColours();
}

void MyRichEdit::showText(const QString& text) {
    shown = text;
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    breaks = longRunBreaks(lines);
    setPlainText(breaks.empty() ? lines : broken(lines, breaks));
}

QString MyRichEdit::shownText() const {
    return whole(document()->toRawText(), 0, breaks);
}

// The place in the document of a character of the shown text, or of the end of the one before it.
int MyRichEdit::inDocument(int character, bool behindBreak) const {
    const auto before = behindBreak ? std::upper_bound(breaks.begin(), breaks.end(), character)
                                    : std::lower_bound(breaks.begin(), breaks.end(), character);
    return character + static_cast<int>(before - breaks.begin());
}

int MyRichEdit::inText(int place) const {
    int passed = 0;
    while (passed < static_cast<int>(breaks.size()) &&
           breaks[static_cast<std::size_t>(passed)] + passed < place)
        ++passed;
    return place - passed;
}

std::pair<int, int> MyRichEdit::selection() const {
    const QTextCursor cursor = textCursor();
    return {inText(cursor.selectionStart()), inText(cursor.selectionEnd())};
}

void MyRichEdit::setSelection(int start, int end) {
    QTextCursor selection(document());
    selection.setPosition(inDocument(start, true));
    selection.setPosition(inDocument(end, false), QTextCursor::KeepAnchor);
    const bool inSight = viewport()->rect().contains(cursorRect(selection));
    setTextCursor(selection);
    if (!inSight)
        centerCursor();
}

void MyRichEdit::vSetTextColor(const QColor& colour) {
    if (colour == textColour)
        return;
    textColour = colour;
    applyColours();
}

void MyRichEdit::vSetBkColor(const QColor& colour) {
    if (colour == background)
        return;
    background = colour;
    applyColours();
}

void MyRichEdit::applyColours() {
    const QPalette standard = QApplication::palette(this);
    QPalette own;
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        own.setBrush(QPalette::Inactive, role, standard.brush(QPalette::Active, role));
    if (textColour.isValid())
        own.setColor(QPalette::Text, textColour);
    if (background.isValid())
        own.setColor(QPalette::Base, background);
    setPalette(own);
}

void MyRichEdit::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        applyColours();
}

void MyRichEdit::keyPressEvent(QKeyEvent* event) {
    struct Scroll {
        int key;
        QAbstractSlider::SliderAction action;
    };
    static constexpr Scroll scrolls[] = {
        {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
        {Qt::Key_End, QAbstractSlider::SliderToMaximum},
        {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
        {Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd},
        {Qt::Key_Up, QAbstractSlider::SliderSingleStepSub},
        {Qt::Key_Down, QAbstractSlider::SliderSingleStepAdd},
    };
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    if (held == Qt::NoModifier || held == Qt::ControlModifier) {
        for (const Scroll& scroll : scrolls) {
            if (scroll.key == event->key()) {
                verticalScrollBar()->triggerAction(scroll.action);
                return;
            }
        }
    }
    QPlainTextEdit::keyPressEvent(event);
}

QMimeData* MyRichEdit::createMimeDataFromSelection() const {
    auto* copied = new QMimeData;
    const QTextCursor cursor = textCursor();
    copied->setText(whole(cursor.selection().toPlainText(), cursor.selectionStart(), breaks));
    return copied;
}

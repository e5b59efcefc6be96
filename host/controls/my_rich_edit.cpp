// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/my_rich_edit.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextCursor>
#include <QTimerEvent>

#include <utility>

using namespace wirepane;

MyRichEdit::MyRichEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    applyColours();
    // Whoever selects or scrolls himself is not taken elsewhere any more.
    const auto forget = [this] { awaited.reset(); };
    connect(this, &QPlainTextEdit::selectionChanged, this, forget);
    connect(verticalScrollBar(), &QAbstractSlider::actionTriggered, this, forget);
}

void MyRichEdit::showText(const QString& text) {
    shown = text;
    portions = TextPortions(text);
    setPlainText(portions.next());
    awaited.reset();
    if (portions.isWhole())
        filling.stop();
    else
        filling.start(0, this);
}

void MyRichEdit::timerEvent(QTimerEvent* event) {
    if (event->timerId() == filling.timerId())
        addPortion();
    else
        QPlainTextEdit::timerEvent(event);
}

void MyRichEdit::addPortion() {
    QScrollBar& bar = *verticalScrollBar();
    const bool atEnd = bar.maximum() > 0 && bar.value() == bar.maximum();
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(portions.next());
    if (portions.isWhole())
        filling.stop();
    if (atEnd)
        bar.setValue(bar.maximum());
    if (awaited && (awaited->second < portions.handedOut() || portions.isWhole()))
        select(*std::exchange(awaited, std::nullopt));
}

// A selection that reaches the end of what is there so far goes on to the end of the text: so it was made, by
// selecting all of it or by going to its end, and so it grows with each portion.
std::pair<int, int> MyRichEdit::selection() const {
    if (awaited)
        return *awaited;
    const QTextCursor cursor = textCursor();
    const int end = portions.characterAt(cursor.selectionEnd());
    return {
        portions.characterAt(cursor.selectionStart()),
        cursor.hasSelection() && end == portions.handedOut() ? static_cast<int>(shownText().size()) : end};
}

void MyRichEdit::setSelection(int start, int end) {
    if (end < portions.handedOut() || portions.isWhole())
        select({start, end});
    else
        awaited = {start, end};
}

void MyRichEdit::select(std::pair<int, int> characters) {
    QTextCursor selection(document());
    selection.setPosition(portions.placeOf(characters.first, true));
    selection.setPosition(portions.placeOf(characters.second, false), QTextCursor::KeepAnchor);
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

// From the text itself: the document would make a copy of itself first (4 MB in short lines: 0.6 s).
QMimeData* MyRichEdit::createMimeDataFromSelection() const {
    const auto [start, end] = selection();
    QString copy = shownText().mid(start, end - start);
    for (QChar& c : copy) {
        if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator)
            c = u'\n';
        else if (c == QChar::Nbsp)
            c = u' ';
    }
    auto* copied = new QMimeData;
    copied->setText(copy);
    return copied;
}

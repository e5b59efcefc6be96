// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/my_rich_edit.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
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

void MyRichEdit::setTypography(const std::optional<Typography>& typography) {
    if (typography == look)
        return;
    look = typography;
    if (look && page != nullptr) {
        page->setTypography(*look);
        return;
    }
    if (look) {
        page = new TypesetDocument(*viewport(), this);
        page->setDefaultFont(font());
        setDocument(page);
        setCursorWidth(0);  // keys scroll and select; at rest a caret would stand in the headline
        page->setTypography(*look);
    } else {
        setDocument(nullptr);
        setCursorWidth(1);
        delete page;
    }
    fill();
}

void MyRichEdit::showText(const QString& text, const Parts& parts) {
    shown = text;
    special = parts;
    marked.clear();
    setExtraSelections({});
    fill();
}

void MyRichEdit::setLead(const TextLead& lead) {
    if (lead == above)
        return;
    above = lead;
    if (page == nullptr)
        return;
    const int top = verticalScrollBar()->value();
    page->replaceLead(above);
    verticalScrollBar()->setValue(top);
}

void MyRichEdit::setMarks(std::vector<Mark> marks) {
    marked = std::move(marks);
    if (marked.size() > mostMarks)
        marked.resize(mostMarks);
    drawMarks();
}

void MyRichEdit::addMarks(std::vector<Mark> marks) {
    marks.insert(marks.end(), marked.begin(), marked.end());
    setMarks(std::move(marks));
}

// Those whose text is there.
void MyRichEdit::drawMarks() {
    QList<QTextEdit::ExtraSelection> drawn;
    for (const Mark& mark : marked) {
        if (mark.end > portions.handedOut() && !portions.isWhole())
            continue;
        QTextEdit::ExtraSelection selection;
        selection.format = mark.format;
        selection.cursor = QTextCursor(document());
        selection.cursor.setPosition(placeOf(mark.start, true));
        selection.cursor.setPosition(placeOf(mark.end, false), QTextCursor::KeepAnchor);
        drawn.append(selection);
    }
    setExtraSelections(drawn);
}

void MyRichEdit::fill() {
    portions = TextPortions(shown);
    if (page != nullptr) {
        page->begin(above);
        const QString first = portions.next();
        append(first.sliced(std::min<qsizetype>(special.notShown, first.size())));
        setTextCursor(QTextCursor(page));
        verticalScrollBar()->setValue(0);
    } else {
        setPlainText(portions.next());
    }
    awaited.reset();
    drawMarks();
    if (portions.isWhole())
        filling.stop();
    else
        filling.start(0, this);
}

void MyRichEdit::append(const QString& portion) {
    page->append(portion, portions.isWhole() && special.endMark);
}

int MyRichEdit::shift() const {
    return page == nullptr ? 0 : page->leadLength() - special.notShown;
}

int MyRichEdit::placeOf(int character, bool behindBreak) const {
    const int place = portions.placeOf(character, behindBreak) + shift();
    return page == nullptr ? place : std::max(place, page->leadLength());
}

int MyRichEdit::characterAt(int place) const {
    if (page != nullptr && place <= page->leadLength())
        return place < page->leadLength() ? 0 : special.notShown;
    return portions.characterAt(place - shift());
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
    const QString portion = portions.next();
    if (page != nullptr)
        append(portion);
    else
        end.insertText(portion);
    if (!marked.empty())
        drawMarks();
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
    int start = characterAt(cursor.selectionStart());
    int end = characterAt(cursor.selectionEnd());
    if (cursor.hasSelection() && end == portions.handedOut()) {
        end = static_cast<int>(shownText().size());
        // All that is shown of the text is all of it.
        if (start <= special.notShown)
            start = 0;
    }
    return {start, std::max(start, end)};
}

void MyRichEdit::setSelection(int start, int end) {
    if (end < portions.handedOut() || portions.isWhole())
        select({start, end});
    else
        awaited = {start, end};
}

void MyRichEdit::select(std::pair<int, int> characters) {
    QTextCursor selection(document());
    selection.setPosition(placeOf(characters.first, true));
    selection.setPosition(placeOf(characters.second, false), QTextCursor::KeepAnchor);
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
    else if (event->type() == QEvent::FontChange && page != nullptr)
        page->setTypography(*look);
}

void MyRichEdit::selectAll() {
    QTextCursor cursor(document());
    cursor.setPosition(page != nullptr ? page->leadLength() : 0);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

namespace {

std::optional<int> sizeStep(const QKeyEvent& event) {
    if (event.matches(QKeySequence::ZoomIn) ||
        (event.key() == Qt::Key_Equal && event.modifiers() == Qt::ControlModifier))
        return 1;
    if (event.matches(QKeySequence::ZoomOut))
        return -1;
    if (event.key() == Qt::Key_0 && (event.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier)
        return 0;
    return std::nullopt;
}

}  // namespace

// The keys of its own come before shortcuts of the window around it.
bool MyRichEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && page != nullptr &&
        sizeStep(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

void MyRichEdit::wheelEvent(QWheelEvent* event) {
    if (page == nullptr || event->modifiers() != Qt::ControlModifier) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    wheel += event->angleDelta().y();
    const int steps = wheel / QWheelEvent::DefaultDeltasPerStep;
    wheel -= steps * QWheelEvent::DefaultDeltasPerStep;
    for (int step = 0; step < std::abs(steps); ++step)
        emit sizeWanted(steps > 0 ? 1 : -1);
    event->accept();
}

void MyRichEdit::mousePressEvent(QMouseEvent* event) {
    pressedLink = event->button() == Qt::LeftButton ? anchorAt(event->pos()) : QString();
    QPlainTextEdit::mousePressEvent(event);
}

void MyRichEdit::mouseMoveEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseMoveEvent(event);
    if (page != nullptr && event->buttons() == Qt::NoButton)
        viewport()->setCursor(anchorAt(event->pos()).isEmpty() ? Qt::IBeamCursor : Qt::PointingHandCursor);
}

void MyRichEdit::mouseReleaseEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseReleaseEvent(event);
    const QString link = std::exchange(pressedLink, {});
    if (!link.isEmpty() && anchorAt(event->pos()) == link && !textCursor().hasSelection())
        emit linkClicked(link);
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
    if (const auto step = sizeStep(*event); step && page != nullptr)
        emit sizeWanted(*step);
    else if (event->matches(QKeySequence::SelectAll))
        selectAll();
    else
        QPlainTextEdit::keyPressEvent(event);
}

// From the text itself: the document would make a copy of itself first (4 MB in short lines: 0.6 s).
QMimeData* MyRichEdit::createMimeDataFromSelection() const {
    const auto [start, end] = selection();
    QString copy = shownText().mid(start, end - start);
    const QTextCursor cursor = textCursor();
    if (page != nullptr && cursor.selectionStart() < page->leadLength() &&
        end < static_cast<int>(shownText().size())) {
        QTextCursor ofLead = cursor;
        ofLead.setPosition(cursor.selectionStart());
        ofLead.setPosition(std::min(cursor.selectionEnd(), page->leadLength()), QTextCursor::KeepAnchor);
        copy = ofLead.selectedText() + copy.sliced(std::min<qsizetype>(copy.size(), special.notShown));
    }
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

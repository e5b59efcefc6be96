// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/typeset_document.h"

#include "host/controls/line_kinds.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QWidget>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qreal sideMargin = 24;
constexpr qreal topMargin = 18;
constexpr qreal bottomMargin = 18;
constexpr qreal widestMeasure = 46.4;  // em: 680 px at 11 pt
constexpr int mostCharacters = 90;     // in a line
constexpr double noteSize = 9.0 / 11.0;
constexpr int oneSmaller = -1;  // of the steps of QTextFormat: four fifths

// How far from the top of one line to that of the next, as a multiple of the font's size, and the space
// before the first and behind the last in pixels.
struct Spacing {
    qreal step;
    qreal before;
    qreal behind;
};

Spacing spacingOf(LineKind kind) {
    switch (kind) {
        case LineKind::Headline:
            return {1.35, topMargin, 8};
        case LineKind::Particulars:
            return {1.33, 0, 15};
        case LineKind::Continued:
            return {1.4, 0, 0};
        case LineKind::Empty:
            return {0.2, 0, 0};
        case LineKind::Aligned:
            return {1.6, 0, 0};
        case LineKind::AlignedLast:
            return {1.6, 0, 10};
        case LineKind::EndMark:
            return {1.33, 0, 0};
        case LineKind::Paragraph:
            break;
    }
    return {1.4, 0, 10};
}

LineKind kindOf(const QTextBlock& block) {
    return block.userState() < 0 ? LineKind::Paragraph : static_cast<LineKind>(block.userState());
}

bool isAligned(LineKind kind) {
    return kind == LineKind::Aligned || kind == LineKind::AlignedLast;
}

QFont scaled(QFont font, double factor) {
    if (font.pixelSize() > 0)
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * factor))));
    else
        font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

// The platform's own, where that is of a fixed pitch: without a desktop's settings it need not be.
QStringList fixedFamilies() {
    QStringList families = QFontDatabase::systemFont(QFontDatabase::FixedFont).families();
    families += {u"Noto Sans Mono"_s, u"DejaVu Sans Mono"_s, u"Liberation Mono"_s, u"Consolas"_s,
                 u"Menlo"_s,          u"Courier New"_s};
    families.removeIf([](const QString& family) { return !QFontDatabase::isFixedPitch(family); });
    return families;
}

qreal pixelsOf(const QFont& font) {
    return QFontInfo(font).pixelSize();
}

}  // namespace

TypesetDocument::TypesetDocument(const QWidget& viewport, QObject* parent) : QTextDocument(parent) {
    setUndoRedoEnabled(false);
    setDocumentLayout(new TypesetLayout(*this, viewport));
    setDocumentMargin(0);
}

void TypesetDocument::setTypography(const Typography& typography) {
    look = typography;
    loadFormats();
    replaceLead(shown);
    if (kindOf(lastBlock()) == LineKind::EndMark) {
        QTextCursor mark(lastBlock());
        mark.select(QTextCursor::BlockUnderCursor);
        mark.setCharFormat(endMark);
    }
}

// What stands in the body follows its font by itself, however much of it there is: its formats say how they
// differ from that font.
void TypesetDocument::loadFormats() {
    const QFont font = defaultFont();
    QFont large = scaled(font, look.headlineSize);
    large.setWeight(QFont::DemiBold);
    headline.setFont(large);
    particulars.setFont(scaled(font, noteSize));
    remarks.setFont(particulars.font());
    particulars.setForeground(look.weak);
    link = particulars;
    link.setAnchor(true);
    link.setForeground(look.link);
    endMark.setProperty(QTextFormat::FontSizeAdjustment, oneSmaller);
    endMark.setForeground(look.weak);
    fixed.setFontFamilies(fixedFamilies() + font.families());
    fixed.setFontFixedPitch(true);
    fixed.setFontStyleHint(QFont::Monospace);
    fixed.setProperty(QTextFormat::FontSizeAdjustment, oneSmaller);
    // No fixed-pitch family that has Latin letters need have Chinese ones of twice their width.
    QFont columns = font;
    columns.setFamilies(fixed.fontFamilies().toStringList());
    columns.setFixedPitch(true);
    const QFontMetricsF metrics(columns);
    fixedWide = fixed;
    fixedWide.setFontLetterSpacingType(QFont::PercentageSpacing);
    fixedWide.setFontLetterSpacing(200 * metrics.horizontalAdvance(u'0') / metrics.horizontalAdvance(u'中'));
}

void TypesetDocument::begin(const TextLead& lead) {
    clear();
    static_cast<TypesetLayout*>(documentLayout())->forgetWidth();
    lengthOfLead = 0;
    firstBlock().setUserState(static_cast<int>(LineKind::Paragraph));
    replaceLead(lead);
}

void TypesetDocument::replaceLead(const TextLead& lead) {
    shown = lead;
    QTextCursor cursor(this);
    cursor.beginEditBlock();
    cursor.setPosition(lengthOfLead, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    const int kindBehind = cursor.block().userState();
    if (!lead.isEmpty()) {
        cursor.block().setUserState(static_cast<int>(LineKind::Headline));
        cursor.insertText(lead.headline, headline);
        cursor.insertBlock(QTextBlockFormat(), particulars);
        cursor.block().setUserState(static_cast<int>(LineKind::Particulars));
        insertParts(cursor, lead.particulars, particulars);
        if (!lead.remarks.empty())
            cursor.insertText(QString(QChar::LineSeparator), remarks);
        insertParts(cursor, lead.remarks, remarks);
        cursor.insertBlock(QTextBlockFormat(), body);
        cursor.block().setUserState(kindBehind);
    }
    lengthOfLead = cursor.position();
    cursor.endEditBlock();
}

void TypesetDocument::insertParts(QTextCursor& cursor, const std::vector<LeadPart>& parts,
                                  const QTextCharFormat& plain) {
    for (const LeadPart& part : parts) {
        link.setAnchorHref(part.target);
        cursor.insertText(part.text, part.target.isEmpty() ? plain : link);
    }
}

const QTextCharFormat& TypesetDocument::formatOf(LineKind kind) const {
    return isAligned(kind) ? fixed : kind == LineKind::EndMark ? endMark : body;
}

void TypesetDocument::append(const QString& portion, bool endsText) {
    std::vector<LineKind> kinds = lineKinds(portion);
    if (endsText)
        kinds.back() = LineKind::EndMark;
    QTextCursor cursor(this);
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::End);
    QTextBlock block = cursor.block();
    const QStringView text = portion;
    // Runs of lines that are set alike.
    qsizetype from = 0;
    qsizetype at = 0;
    for (std::size_t line = 0; line < kinds.size(); ++line) {
        while (at < text.size() && text[at] != u'\n' && text[at] != QChar::LineSeparator)
            ++at;
        const bool last = line + 1 == kinds.size();
        if (!last)
            ++at;
        if (!last && &formatOf(kinds[line + 1]) == &formatOf(kinds[line]))
            continue;
        if (isAligned(kinds[line]))
            insertAligned(cursor, text.sliced(from, at - from));
        else
            cursor.insertText(text.sliced(from, at - from).toString(), formatOf(kinds[line]));
        from = at;
    }
    // Of the lines of one block the first tells.
    at = 0;
    std::size_t line = 0;
    for (; block.isValid() && line < kinds.size(); block = block.next()) {
        block.setUserState(static_cast<int>(kinds[line]));
        for (++line; at < text.size() && text[at] != u'\n'; ++at) {
            if (text[at] == QChar::LineSeparator)
                ++line;
        }
        ++at;
    }
    cursor.endEditBlock();
}

void TypesetDocument::insertAligned(QTextCursor& cursor, QStringView lines) const {
    for (qsizetype from = 0; from < lines.size();) {
        const bool wide = isWide(lines[from].unicode());
        qsizetype to = from + 1;
        while (to < lines.size() && isWide(lines[to].unicode()) == wide)
            ++to;
        cursor.insertText(lines.sliced(from, to - from).toString(), wide ? fixedWide : fixed);
        from = to;
    }
}

TypesetLayout::TypesetLayout(QTextDocument& document, const QWidget& viewport)
    : QPlainTextDocumentLayout(&document), window(viewport) {}

qreal TypesetLayout::measure() const {
    const QFont font = document()->defaultFont();
    const qreal most =
        std::min(widestMeasure * pixelsOf(font), mostCharacters * QFontMetricsF(font).averageCharWidth());
    return std::max(1.0, std::min(most, window.width() - 2 * sideMargin));
}

// Whoever asks for a block without this (a cursor that moves) has it laid out plainly: at no margin.
QRectF TypesetLayout::blockBoundingRect(const QTextBlock& block) const {
    if (!block.isValid() || !block.isVisible())
        return {};
    const QTextLayout& lines = *block.layout();
    if (lines.lineCount() == 0 || lines.lineAt(0).x() < sideMargin)
        const_cast<TypesetLayout*>(this)->layOut(block);
    const QTextLine last = lines.lineAt(lines.lineCount() - 1);
    const Spacing spacing = spacingOf(kindOf(block));
    qreal bottom = last.y() + last.height() + (lines.lineAt(0).y() - spacing.before) + spacing.behind;
    if (!block.next().isValid())
        bottom += bottomMargin;
    return {0, 0, std::max<qreal>(window.width(), lines.boundingRect().right() + sideMargin),
            std::ceil(bottom)};
}

void TypesetLayout::layOut(const QTextBlock& block) {
    const LineKind kind = kindOf(block);
    const Spacing spacing = spacingOf(kind);
    QTextLayout& lines = *block.layout();
    QTextOption option = document()->defaultTextOption();
    const bool wraps = !isAligned(kind);
    option.setWrapMode(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    lines.setTextOption(option);
    const QFont font =
        block.begin().atEnd() ? block.charFormat().font() : block.begin().fragment().charFormat().font();
    const qreal step = std::ceil(spacing.step * pixelsOf(font.resolve(document()->defaultFont())));
    const qreal width = measure();
    const qreal widestBefore = widest;
    qreal y = spacing.before;
    lines.beginLayout();
    for (QTextLine line = lines.createLine(); line.isValid(); line = lines.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
        // A script that needs more than others gets it.
        const qreal height =
            std::max(step, line.height() > 1.25 * step && kind != LineKind::Empty ? line.height() : 0);
        line.setPosition({sideMargin, y + std::floor((height - line.height()) / 2)});
        y += height;
        if (!wraps)
            widest = std::max(widest, line.naturalTextWidth() + 2 * sideMargin);
    }
    lines.endLayout();
    if (block.lineCount() == lines.lineCount() && widest <= widestBefore)
        return;
    QTextBlock(block).setLineCount(lines.lineCount());
    emit documentSizeChanged(documentSize());
}

QSizeF TypesetLayout::documentSize() const {
    return {widest, static_cast<qreal>(document()->lineCount())};
}

}  // namespace wirepane

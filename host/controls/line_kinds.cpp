// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/line_kinds.h"

#include <QChar>

#include <algorithm>

namespace wirepane {

namespace {

// Lines that are broken by hand are about that wide.
constexpr int narrowestBroken = 50;
constexpr int widestBroken = 110;
constexpr int shortestRule = 4;

enum class Shape { Empty, Prose, Columns, Rule };

bool isBlank(QChar c) {
    return c.isSpace();
}

int columnsOf(QChar c) {
    return isWide(c.unicode()) ? 2 : 1;
}

bool endsSentence(QChar c) {
    return QStringView(u".!?:;。！？：；」』”\"…").contains(c);
}

bool drawsRule(QChar c) {
    return QStringView(u"-=_+|*─━═—－＝").contains(c) || isBlank(c);
}

// A gap is three columns of blanks, a tab, or two columns that end no sentence; two of the latter are needed.
Shape shapeOf(QStringView line) {
    line = line.trimmed();
    if (line.isEmpty())
        return Shape::Empty;
    if (line.size() > widestAligned)
        return Shape::Prose;
    if (line.size() >= shortestRule && std::all_of(line.begin(), line.end(), drawsRule))
        return Shape::Rule;
    int certain = 0;
    int possible = 0;
    qsizetype blanksFrom = -1;
    int columns = 0;
    bool tab = false;
    for (qsizetype at = 0; at < line.size(); ++at) {
        const QChar c = line[at];
        if (isBlank(c)) {
            if (blanksFrom < 0)
                blanksFrom = at;
            columns += columnsOf(c);
            tab = tab || c == u'\t';
            continue;
        }
        if (tab || columns > 2)
            ++certain;
        else if (columns == 2 && !endsSentence(line[blanksFrom - 1]))
            ++possible;
        blanksFrom = -1;
        columns = 0;
        tab = false;
    }
    return certain > 0 || possible > 1 || line.count(u'|') > 1 ? Shape::Columns : Shape::Prose;
}

bool opensItem(QStringView line) {
    line = line.trimmed();
    if (line.isEmpty() || QStringView(u"(（•‧●○■◎※*").contains(line[0]))
        return true;
    qsizetype length = 0;
    while (length < std::min<qsizetype>(3, line.size()) &&
           (line[length].isDigit() || QStringView(u"一二三四五六七八九十").contains(line[length])))
        ++length;
    if (length == 0 && line[0].isLetter())
        length = 1;
    return length > 0 && length < line.size() && QStringView(u".．、)）:：").contains(line[length]);
}

bool goesOn(QStringView line, QStringView next) {
    line = line.trimmed();
    if (line.size() > widestBroken || line.size() * 2 < narrowestBroken || endsSentence(line.back()))
        return false;
    int columns = 0;
    for (const QChar c : line)
        columns += columnsOf(c);
    return columns >= narrowestBroken && columns <= widestBroken && !opensItem(next);
}

std::vector<QStringView> linesOf(QStringView text) {
    std::vector<QStringView> lines;
    qsizetype from = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] != u'\n' && text[at] != QChar::LineSeparator)
            continue;
        lines.push_back(text.sliced(from, at - from));
        from = at + 1;
    }
    lines.push_back(text.sliced(from));
    return lines;
}

}  // namespace

bool isWide(char16_t c) {
    constexpr char16_t first = 0x2E80;
    return c >= first && ((c < 0xD7A4) || (c >= 0xF900 && c < 0xFB00) || (c >= 0xFE30 && c < 0xFE70) ||
                          (c >= 0xFF00 && c < 0xFF61) || (c >= 0xFFE0 && c < 0xFFE7));
}

std::vector<LineKind> lineKinds(QStringView text) {
    const std::vector<QStringView> lines = linesOf(text);
    std::vector<Shape> shapes(lines.size());
    std::transform(lines.begin(), lines.end(), shapes.begin(), shapeOf);
    const auto hasColumns = [&shapes](std::size_t at) {
        return at < shapes.size() && (shapes[at] == Shape::Columns || shapes[at] == Shape::Rule);
    };
    // Unsigned: before the first line there is none either.
    const auto isAligned = [&](std::size_t at) {
        return hasColumns(at) && (hasColumns(at - 1) || hasColumns(at + 1));
    };
    std::vector<LineKind> kinds(lines.size(), LineKind::Paragraph);
    for (std::size_t at = 0; at < lines.size(); ++at) {
        // A label alone in its line stands between lines with columns.
        const bool inTable = isAligned(at) || (shapes[at] == Shape::Prose && lines[at].size() < 60 &&
                                               isAligned(at - 1) && isAligned(at + 1));
        const bool tableGoesOn =
            isAligned(at + 1) || (isAligned(at) && isAligned(at + 2) && shapes[at + 1] == Shape::Prose);
        if (shapes[at] == Shape::Empty)
            kinds[at] = LineKind::Empty;
        else if (inTable)
            kinds[at] = tableGoesOn ? LineKind::Aligned : LineKind::AlignedLast;
        else if (at + 1 < lines.size() && shapes[at + 1] == Shape::Prose && goesOn(lines[at], lines[at + 1]))
            kinds[at] = LineKind::Continued;
    }
    return kinds;
}

}  // namespace wirepane

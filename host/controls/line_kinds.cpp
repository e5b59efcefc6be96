// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/line_kinds.h"

#include <QChar>

#include <algorithm>
#include <cstddef>
#include <optional>

namespace wirepane {

namespace {

// Lines that are broken by hand are about that wide.
constexpr int narrowestBroken = 50;
constexpr int widestBroken = 110;
constexpr int shortestRule = 4;
constexpr qsizetype longestLabel = 24;  // alone in its line, within a table
constexpr std::size_t mostLabels = 3;   // in a row

enum class Shape { Empty, Prose, Columns };

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
    return QStringView(u"-=_+|*─━═—－＝").contains(c);
}

// Also one with a heading in its middle.
bool isRule(QStringView line) {
    const auto drawn = std::count_if(line.begin(), line.end(), drawsRule);
    const auto blank = std::count_if(line.begin(), line.end(), isBlank);
    return drawn >= shortestRule && drawn * 3 >= (line.size() - blank) * 2;
}

// A gap is three columns of blanks, a tab, or two columns that end no sentence; two of the latter are needed.
Shape shapeOf(QStringView line) {
    line = line.trimmed();
    if (line.isEmpty())
        return Shape::Empty;
    if (line.size() > widestAligned)
        return Shape::Prose;
    if (isRule(line))
        return Shape::Columns;
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

// A table goes from one line with columns to the next, over few labels that stand alone.
std::vector<bool> tablesOf(const std::vector<QStringView>& lines, const std::vector<Shape>& shapes) {
    std::vector<bool> inTable(lines.size(), false);
    std::optional<std::size_t> begin;  // the line with columns that a table may go on from
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (shapes[at] == Shape::Columns) {
            if (begin)
                std::fill(inTable.begin() + static_cast<std::ptrdiff_t>(*begin),
                          inTable.begin() + static_cast<std::ptrdiff_t>(at) + 1, true);
            begin = at;
        } else if (begin && (shapes[at] == Shape::Empty || lines[at].trimmed().size() > longestLabel ||
                             at - *begin > mostLabels)) {
            begin.reset();
        }
    }
    return inTable;
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
    const std::vector<bool> inTable = tablesOf(lines, shapes);
    std::vector<LineKind> kinds(lines.size(), LineKind::Paragraph);
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const bool last = at + 1 == lines.size();
        if (shapes[at] == Shape::Empty)
            kinds[at] = LineKind::Empty;
        else if (inTable[at])
            kinds[at] = !last && inTable[at + 1] ? LineKind::Aligned : LineKind::AlignedLast;
        else if (!last && shapes[at + 1] == Shape::Prose && goesOn(lines[at], lines[at + 1]))
            kinds[at] = LineKind::Continued;
    }
    return kinds;
}

}  // namespace wirepane

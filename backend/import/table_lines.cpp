// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/table_lines.h"

#include "backend/clean_text.h"

#include <algorithm>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr int tabWidth = 8;
constexpr int shortWidth = 50;    // columns; prose is wrapped later
constexpr int headingIndent = 6;  // columns; more than paragraphs have
constexpr int mostBetween = 3;    // lines between two of a table
constexpr int mostHeadings = 3;
constexpr qsizetype shortestRule = 3;  // characters
constexpr qsizetype shortestCaptioned = 8;

int columnsOf(char32_t c, int column) {
    if (c == U'\t')
        return tabWidth - column % tabWidth;
    return c == 0x3000 || isIdeographic(c) ? 2 : 1;
}

bool isWiderThan(int most, QStringView text) {
    int columns = 0;
    for (qsizetype at = 0; at < text.size() && columns <= most;)
        columns += columnsOf(takeCharacter(text, at), columns);
    return columns > most;
}

QStringView indentOf(QStringView line) {
    const auto* first = std::find_if_not(line.begin(), line.end(), isBlank);
    return line.first(first - line.begin());
}

QStringView withoutEnd(QStringView line) {
    while (!line.isEmpty() && isBlank(line.back()))
        line.chop(1);
    return line;
}

bool isStroke(QChar c) {
    switch (c.unicode()) {
        case u'=':
        case u'-':
        case u'_':
        case u'*':
        case u'~':
        case u'+':
        case u'|':
        case u'─':
        case u'━':
        case u'═':
        case u'―':
        case u'—':
        case u'–':
        case u'＝':
        case u'－':
        case u'＿':
            return true;
        default:
            return false;
    }
}

// Strokes alone, or with a caption among them. Most lines have been written too much of by their middle.
bool isRule(QStringView content) {
    qsizetype drawn = 0;
    qsizetype written = 0;
    for (const QChar c : content) {
        if (!isPlainLetter(c) && isStroke(c))
            ++drawn;
        else if ((isPlainLetter(c) || !isBlank(c)) && ++written > content.size() / 2)
            return false;
    }
    return drawn >= (written == 0 ? shortestRule : shortestCaptioned) && drawn >= written;
}

// Two blanks behind a sentence are a habit of typing.
bool endsSentence(QChar c) {
    return QStringView(u".?!:。！？").contains(c);
}

bool hasColumns(QStringView content) {
    for (qsizetype at = 0; at < content.size();) {
        if (isPlainLetter(content.at(at)) || !isBlank(content.at(at))) {
            ++at;
            continue;
        }
        qsizetype end = at;
        bool isTab = false;
        for (; isBlank(content.at(end)); ++end)  // the content ends with something else
            isTab = isTab || content.at(end) == u'\t';
        if (isTab || end - at > 2 || (end - at == 2 && !endsSentence(content.at(at - 1))))
            return true;
        at = end;
    }
    return false;
}

enum class Line { Blank, Long, Short, Heading, Columns, Rule };

Line kindOf(QStringView line) {
    const QStringView content = line.trimmed();
    if (content.isEmpty())
        return Line::Blank;
    if (isRule(content))
        return Line::Rule;
    if (hasColumns(content))
        return Line::Columns;
    if (isWiderThan(shortWidth, content))
        return Line::Long;
    return isWiderThan(headingIndent - 1, indentOf(line)) ? Line::Heading : Line::Short;
}

bool isSign(Line line) {
    return line == Line::Columns || line == Line::Rule;
}

// The sign of the same table that comes next; `from` when there is none.
std::size_t nextSign(const std::vector<Line>& lines, std::size_t from) {
    int between = 0;
    for (std::size_t i = from + 1; i < lines.size() && lines[i] != Line::Long && between <= mostBetween;
         ++i) {
        if (isSign(lines[i]))
            return i;
        between += lines[i] == Line::Blank ? 0 : 1;
    }
    return from;
}

std::size_t withHeadings(const std::vector<Line>& lines, std::size_t first) {
    for (int i = 0; i < mostHeadings && first > 0 && lines[first - 1] == Line::Heading; ++i)
        --first;
    return first;
}

}  // namespace

bool isIdeographic(char32_t c) {
    return (c >= 0x2e80 && c < 0xa000) || (c >= 0xe000 && c < 0xfb00) || (c >= 0xfe30 && c < 0xfe50) ||
           (c >= 0xff00 && c < 0xfff0) || (c >= 0x20000 && c < 0x40000);
}

std::vector<bool> tableLines(const QList<QStringView>& lines) {
    std::vector<Line> kinds;
    std::transform(lines.begin(), lines.end(), std::back_inserter(kinds), kindOf);
    std::vector<bool> table(kinds.size());
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        if (!isSign(kinds[i]))
            continue;
        std::size_t last = i;
        for (std::size_t next = nextSign(kinds, last); next != last; next = nextSign(kinds, last))
            last = next;
        const bool isTable = last != i;
        const std::size_t first = isTable ? withHeadings(kinds, i) : i;
        if (isTable || kinds[i] == Line::Rule)
            std::fill(table.begin() + std::ptrdiff_t(first), table.begin() + std::ptrdiff_t(last) + 1, true);
        i = last;
    }
    for (std::size_t i = 0; i < kinds.size(); ++i)
        table[i] = table[i] && kinds[i] != Line::Blank;
    return table;
}

QStringList tableText(const QList<QStringView>& lines) {
    QStringList kept;
    for (const QStringView line : lines) {
        QString text;
        int columns = 0;
        const QStringView content = withoutEnd(line);
        for (qsizetype at = 0; at < content.size();) {
            const char32_t c = takeCharacter(content, at);
            const int width = columnsOf(c, columns);
            text += c == U'\t' ? QString(width, u' ') : QStringView(QChar::fromUcs4(c)).toString();
            columns += width;
        }
        kept += text;
    }
    const auto commonOf = [](QStringView one, QStringView other) {
        const qsizetype most = std::min(one.size(), other.size());
        return one.first(std::mismatch(one.begin(), one.begin() + most, other.begin()).first - one.begin());
    };
    QStringView common = kept.isEmpty() ? QStringView() : indentOf(kept.constFirst());
    for (const QString& text : kept)
        common = commonOf(common, indentOf(text));
    const qsizetype indent = common.size();
    for (QString& text : kept)
        text.remove(0, indent);
    return kept;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/text_portions.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int mostParts = 32;  // of one character: marks beyond that are taken apart

// The marks of frames, which a document would take for line breaks, are made some.
bool breaksLine(char16_t c) {
    return c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator || c == 0xFDD0 || c == 0xFDD1;
}

// In one pass: replacing in place moves the rest of a long text again and again.
QString withSingleBreaks(const QString& text) {
    QString result(text.size(), Qt::Uninitialized);
    QChar* to = result.data();
    for (const QChar *from = text.cbegin(), *const end = text.cend(); from != end; ++from) {
        *to++ = breaksLine(from->unicode()) ? QChar(QChar::ParagraphSeparator) : *from;
        if (*from == u'\r' && from + 1 != end && from[1] == u'\n')
            ++from;
    }
    result.truncate(to - result.constData());
    return result;
}

// The last place to break a line inside [from, to); `from` when there is none.
int lastOpportunity(QStringView line, int from, int to) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, line.data() + from, to - from);
    finder.toEnd();
    const auto last = finder.toPreviousBoundary();
    return last > 0 ? from + static_cast<int>(last) : from;
}

// The beginning of the character that holds `at`.
int beginOfCharacter(QStringView line, int at) {
    int begin = at;
    for (int parts = 0; parts < mostParts && line[begin].isMark(); ++parts)
        --begin;
    if (line[begin].isMark())
        begin = at;
    return line[begin].isLowSurrogate() && line[begin - 1].isHighSurrogate() ? begin - 1 : begin;
}

// Where a line is to be broken first; its size when it needs no break.
int firstBreak(QStringView line) {
    const auto size = static_cast<int>(line.size());
    if (size <= longestRun)
        return size;
    int run = 0;  // where the run begins that holds `at`
    for (int at = 0; at < std::min(size, longestLine); ++at) {
        if (line[at].isSpace() && line[at] != QChar::Nbsp) {
            run = at + 1;
        } else if (at - run >= longestRun) {
            const int opportunity = lastOpportunity(line, run, at);
            if (opportunity == run)
                return beginOfCharacter(line, at);
            run = opportunity;
        }
    }
    return size <= longestLine ? size : run;
}

}  // namespace

TextPortions::TextPortions(const QString& text)
    : characters(withSingleBreaks(text)),
      linesPerBlock(1 + static_cast<int>(characters.count(QChar::ParagraphSeparator) / mostBlocks)) {}

QString TextPortions::next() {
    const int from = done;
    QString portion;
    int inBlock = 0;  // lines
    qsizetype block = 0;
    for (int lines = 0; !isWhole() && done - from < portionCharacters && lines < portionLines; ++lines) {
        const QStringView ahead = QStringView(characters)
                                      .sliced(done)
                                      .first(std::min<qsizetype>(longestLine + 1, characters.size() - done));
        const qsizetype end = ahead.indexOf(QChar::ParagraphSeparator);
        const QStringView line = end < 0 ? ahead : ahead.first(end);
        const int length = firstBreak(line);
        portion += line.first(length);
        done += length;
        if (length < line.size())
            breaks.push_back(done);
        else if (end >= 0)
            ++done;
        if (length == ahead.size())
            continue;  // the last
        const bool goesOn = ++inBlock < linesPerBlock && portion.size() - block < longestRun;
        portion += goesOn ? QChar(QChar::LineSeparator) : QChar(u'\n');
        if (!goesOn) {
            inBlock = 0;
            block = portion.size();
        }
    }
    return portion;
}

int TextPortions::placeOf(int character, bool behindBreak) const {
    const auto before = behindBreak ? std::upper_bound(breaks.begin(), breaks.end(), character)
                                    : std::lower_bound(breaks.begin(), breaks.end(), character);
    return character + static_cast<int>(before - breaks.begin());
}

int TextPortions::characterAt(int place) const {
    // The number of breaks before the place; each moves what follows by one.
    std::size_t low = 0;
    for (std::size_t high = breaks.size(); low < high;) {
        const std::size_t middle = low + (high - low) / 2;
        if (breaks[middle] + static_cast<int>(middle) < place)
            low = middle + 1;
        else
            high = middle;
    }
    return place - static_cast<int>(low);
}

}  // namespace wirepane

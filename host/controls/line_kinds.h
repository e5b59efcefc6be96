// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <vector>

namespace wirepane {

// What a line of a story is to the eye, and so how it is set. The numbers stand in the blocks of a document.
enum class LineKind : int {
    Headline,
    Particulars,  // the line under the headline: source, topic, time, symbols
    Paragraph,
    Continued,  // broken by whoever wrote it: its paragraph goes on in the next line
    Empty,
    Aligned,      // of a table: blanks keep its columns
    AlignedLast,  // of a table, its last line
    EndMark,
};

// A line with more columns is no line of a table: not wrapped, it would be out of every window.
inline constexpr int widestAligned = 300;

// The kinds of the lines of a text ("\n" or U+2028 between them), one for each, also for an empty one. Lines
// are aligned where at least two in a row have columns: runs of blanks inside, or rules of dashes. Pure,
// linear.
std::vector<LineKind> lineKinds(QStringView text);

// Takes two columns of a table: ideographs, kana, hangul, full-width forms.
bool isWide(char16_t c);

}  // namespace wirepane

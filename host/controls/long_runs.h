// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace wirepane {

// Where a text is to be broken so that no run of characters without a place to break a line is longer than
// this: laying a run out costs time that grows with the square of its length (400,000 characters: 18 s).
inline constexpr int longestRun = 1000;

// The characters before which to break, ascending; none in ordinary text. Never within a character. Linear in
// the length of the text.
std::vector<int> longRunBreaks(const QString& text);
// The text with a line feed put in at each break.
QString broken(const QString& text, const std::vector<int>& breaks);
// A piece of a broken text, which begins at `from` of it, without what was put in.
QString whole(const QString& piece, int from, const std::vector<int>& breaks);

}  // namespace wirepane

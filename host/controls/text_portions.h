// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace wirepane {

// A run of characters without a place to break a line is broken when it is longer than this: laying a run out
// costs time that grows with the square of its length (400,000 characters: 18 s).
inline constexpr int longestRun = 1000;
// A line is laid out as a whole when any of it comes into view (a million characters: 0.2 s). A longer one is
// broken where a line may end.
inline constexpr int longestLine = 10'000;
// Every block of a document costs time whenever its width changes (200,000: 60 ms). A text of more lines than
// this has several of them in a block, with U+2028 between them.
inline constexpr int mostBlocks = 20'000;
// A portion ends with the line that reaches one of these. More than any window shows, and little enough to be
// put into a control within a few milliseconds.
inline constexpr int portionCharacters = 64 * 1024;
inline constexpr int portionLines = 2000;

// A text in the portions in which a control takes it, each of whole lines, so that nothing is laid out twice.
// Some lines are broken for the eye alone: positions are counted in characters of the text, in which every
// line break is one (U+2029), or in places of what has been handed out, which holds the additional breaks.
// Pure.
class TextPortions {
public:
    TextPortions() = default;
    // "\r\n", "\n", "\r" and U+2029 break the line.
    explicit TextPortions(const QString& text);

    const QString& text() const { return characters; }
    // The next portion, its blocks ended by "\n". Linear in its length. Empty for an empty text alone.
    QString next();
    // How many characters have been handed out.
    int handedOut() const { return done; }
    bool isWhole() const { return done == characters.size(); }

    // The place of a character that has been handed out: behind a break that stands before it, or at the end
    // of the character before it.
    int placeOf(int character, bool behindBreak) const;
    // The character at a place that has been handed out, or at the break before it.
    int characterAt(int place) const;

private:
    QString characters;
    int linesPerBlock = 1;
    int done = 0;
    std::vector<int> breaks;  // the characters before which there is a break for the eye alone, ascending
};

}  // namespace wirepane

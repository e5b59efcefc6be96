// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/words/character_folding.h"

#include <QByteArrayView>
#include <QString>

#include <array>
#include <string_view>

namespace wirepane {

// Splits a text into the words by which the search compares, in the one way that the index, the query and the
// check of the index share:
// - characters are folded (CharacterFolding);
// - a run of letters and a run of digits are words, cut after 60 characters, also where they touch (by the
//   first rules they were one word there): "iPhone12" is iphone and 12; a decimal point between digits, and a
//   comma before three digits of a number, belong to it: "2.5", "11,700", but "2330,2317" are two codes and a
//   comma;
// - any character of a script without blanks, and any sign, is a word by itself: "c++" is c, + and +;
// - blanks separate; a line end is the word "\n", so that no phrase is found across it.
class WordReader {
public:
    static constexpr int longestWord = 60;  // characters
    static constexpr std::size_t longestWordBytes = 4 * longestWord;

    // `utf8` outlives this. Bytes that are no UTF-8 count as signs.
    explicit WordReader(QByteArrayView utf8, const CharacterFolding& rules = CharacterFolding::instance());

    // Goes to the next word; false at the end.
    bool next();
    // In UTF-8; valid until the next call.
    std::string_view word() const { return {current.data(), length}; }
    bool isLineEnd() const { return length == 1 && current.front() == '\n'; }
    // Where the word stands in the text, in bytes.
    qsizetype start() const { return wordStart; }
    qsizetype end() const { return at; }

private:
    struct Character {
        char32_t raw = 0;
        char32_t folded = 0;
        CharacterKind kind = CharacterKind::Space;
        qsizetype end = 0;
    };
    // The word so far, when it is a run of letters and digits.
    struct Run {
        char32_t last = 0;  // as it stands in the text
        int characters = 0;
        int digits = 0;  // since the last sign in the number, or the last letter
        bool isNumber = false;
        bool grouped = false;
    };
    Character characterAt(qsizetype position) const;
    char32_t digitAt(qsizetype& position, bool wide) const;
    bool readPlainRun(Run& run);
    void readRun(Run run);
    bool joinsNumber(const Character& separator, const Run& run) const;
    void append(char32_t character);

    QByteArrayView text;
    const CharacterFolding& folding;
    std::array<char, longestWordBytes> current;
    std::size_t length = 0;  // of the word, in bytes
    qsizetype wordStart = 0;
    qsizetype at = 0;
};

// A keyword counts up to this many words.
constexpr int mostKeywordWords = 256;

// What of a keyword is searched for: its text up to the end of its last word that counts, to be split as any
// text is; line ends in it are blanks. Empty: there is no word in it.
QString keywordText(const QString& keyword);

}  // namespace wirepane

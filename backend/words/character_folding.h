// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace wirepane {

// What a character is to the search.
enum class CharacterKind : std::uint8_t {
    Space,    // separates words, and is nothing itself
    LineEnd,  // no phrase reaches over it
    Letter,   // letters and digits of scripts with blanks between words: a run of them is a word
    Single,   // of a script without blanks between words (Chinese, Japanese, Korean, Thai): a word by itself
    Symbol,   // punctuation and signs: each a word by itself
    Dropped,  // accents on letters, invisible characters: as if not there
};

// How characters are made alike: upper and lower case, full and half width, letters with and without accents,
// variants of one ideograph, Traditional and Simplified Chinese (chineseVariants()), curly and straight
// quotes, dashes. The rules of earlier versions of the program are kept, so that an index that was made by
// them answers until it has been made anew.
class CharacterFolding {
public:
    // The present rules. Made at the first call, which takes some 20 milliseconds; any thread.
    static const CharacterFolding& instance();
    // Those of the program's first indexes.
    static const CharacterFolding& first();
    // The rules of a fingerprint, present or earlier ones; null: none that this program knows. Any thread.
    static const CharacterFolding* find(std::int64_t fingerprint);

    struct Folded {
        char32_t character = 0;
        CharacterKind kind = CharacterKind::Space;
    };
    Folded of(char32_t character) const {
        if (character >= table.size())
            return foldedBeyond(character);
        return {table[character].character, table[character].kind};
    }
    char32_t folded(char32_t character) const { return of(character).character; }
    CharacterKind kind(char32_t character) const { return of(character).kind; }
    // What a byte of UTF-8 that is a whole letter or digit, one of ASCII, is folded to; 0 for any other byte.
    char plainLetter(unsigned char byte) const { return plainLetters[byte]; }
    // Whether letters and digits that touch are words of their own.
    bool splitsAtDigits() const { return rules != Rules::First; }
    // A number that changes when any character is folded otherwise: an index is good for one such number.
    std::int64_t fingerprint() const { return sum; }

private:
    // What changes when the rules by which texts are split do. The first ones made Chinese alike character
    // by character, by what each becomes in Simplified Chinese.
    enum class Rules : std::uint8_t { First = 1, Present = 2 };

    explicit CharacterFolding(Rules rules);
    void foldChinese();
    void foldToSimplified();
    Folded foldedBeyond(char32_t character) const;

    // Side by side: whoever asks for one asks for the other.
    struct Entry {
        char16_t character = 0;
        CharacterKind kind = CharacterKind::Space;
    };
    std::vector<Entry> table;
    std::unordered_map<char32_t, char32_t> beyond;  // what is folded of the characters behind the table
    std::array<char, 256> plainLetters{};
    std::int64_t sum = 0;
    Rules rules;
};

}  // namespace wirepane

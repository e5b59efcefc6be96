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
// quotes, dashes.
class CharacterFolding {
public:
    // Made at the first call, which takes some 20 milliseconds; any thread.
    static const CharacterFolding& instance();

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
    // A number that changes when any character is folded otherwise: an index is good for one such number.
    std::int64_t fingerprint() const { return sum; }

private:
    CharacterFolding();
    void foldChinese();
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
};

}  // namespace wirepane

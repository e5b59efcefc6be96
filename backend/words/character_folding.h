// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
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
// variants of one ideograph, Traditional and Simplified Chinese (character by character, as OpenCC's
// dictionaries say; unchanged where they are not installed), curly and straight quotes, dashes.
class CharacterFolding {
public:
    // Made at the first call, which takes some 20 milliseconds; any thread.
    static const CharacterFolding& instance();

    char32_t folded(char32_t character) const {
        return character < foldedCharacters.size() ? foldedCharacters[character] : character;
    }
    CharacterKind kind(char32_t character) const {
        return character < kinds.size() ? kinds[character] : kindBeyond(character);
    }
    // A number that changes when any character is folded otherwise: an index is good for one such number.
    std::int64_t fingerprint() const { return sum; }

private:
    CharacterFolding();
    void foldChinese();
    static CharacterKind kindBeyond(char32_t character);

    std::vector<char16_t> foldedCharacters;
    std::vector<CharacterKind> kinds;
    std::int64_t sum = 0;
};

}  // namespace wirepane

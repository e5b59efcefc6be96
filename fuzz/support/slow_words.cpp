// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "fuzz/support/slow_words.h"

namespace wirepane {

namespace {

constexpr int longestWord = 60;  // characters
constexpr char32_t brokenByte = 0xfffd;

bool isDigit(char32_t c) {
    return c >= U'0' && c <= U'9';
}

bool isWide(char32_t raw) {
    return raw >= 0xff00;
}

}  // namespace

SlowWords::SlowWords(QByteArrayView utf8) : text(utf8), folding(CharacterFolding::instance()) {}

SlowWords::Character SlowWords::characterAt(qsizetype position) const {
    const auto byte = [this](qsizetype i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const unsigned first = byte(position);
    char32_t raw = first;
    qsizetype length = 1;
    if (first >= 0x80) {
        length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : first >= 0xc2 ? 2 : 1;
        raw = length == 1 ? brokenByte : first & (0x7fU >> length);
        for (qsizetype i = 1; i < length; ++i) {
            if ((byte(position + i) & 0xc0U) != 0x80) {
                raw = brokenByte;
                length = 1;
                break;
            }
            raw = (raw << 6) | (byte(position + i) & 0x3fU);
        }
    }
    return {raw, folding.folded(raw), folding.kind(raw), position + length};
}

bool SlowWords::next() {
    current.clear();
    while (at < text.size()) {
        const Character character = characterAt(at);
        wordStart = at;
        at = character.end;
        switch (character.kind) {
            case CharacterKind::Space:
            case CharacterKind::Dropped:
                continue;
            case CharacterKind::LineEnd:
                current.push_back('\n');
                return true;
            case CharacterKind::Letter:
                readRun(character);
                return true;
            case CharacterKind::Single:
            case CharacterKind::Symbol:
                append(character.folded);
                return true;
        }
    }
    return false;
}

void SlowWords::readRun(Character character) {
    int length = 0;
    int digits = 0;  // since the last sign in the number
    bool grouped = false;
    const bool isNumber = isDigit(character.folded);
    for (;;) {
        if (character.kind == CharacterKind::Letter) {
            append(character.folded);
            digits += int(isNumber);
            ++length;
        }
        const char32_t last = character.raw;
        if (at >= text.size() || length >= longestWord)
            return;
        character = characterAt(at);
        if (character.kind == CharacterKind::Letter && isDigit(character.folded) != isNumber)
            return;
        if (character.kind == CharacterKind::Symbol && digits > 0 &&
            joinsNumber(character, last, digits, grouped)) {
            append(character.folded);
            grouped = character.folded == U',';
            digits = 0;
            ++length;
        } else if (character.kind != CharacterKind::Letter && character.kind != CharacterKind::Dropped) {
            return;
        }
        at = character.end;
    }
}

// The digit at a position, which goes behind it; 0 when there is none of that width.
char32_t SlowWords::digitAt(qsizetype& position, bool wide) const {
    if (position >= text.size())
        return 0;
    const Character character = characterAt(position);
    if (!isDigit(character.folded) || isWide(character.raw) != wide)
        return 0;
    position = character.end;
    return character.folded;
}

// A sign of another width than the digits around it is punctuation of the sentence.
bool SlowWords::joinsNumber(const Character& separator, char32_t lastDigit, int digitsBefore,
                            bool grouped) const {
    const bool wide = isWide(separator.raw);
    if (isWide(lastDigit) != wide)
        return false;
    qsizetype position = separator.end;
    int digits = 0;
    while (digits < 4 && digitAt(position, wide) != 0)
        ++digits;
    if (separator.folded == U'.')
        return digits > 0;
    return separator.folded == U',' && digits == 3 && (grouped ? digitsBefore == 3 : digitsBefore <= 3);
}

void SlowWords::append(char32_t c) {
    const auto follow = [this, c](int shift) { current.push_back(char(0x80 | ((c >> shift) & 0x3f))); };
    if (c < 0x80) {
        current.push_back(char(c));
        return;
    }
    if (c < 0x800) {
        current.push_back(char(0xc0 | (c >> 6)));
    } else if (c < 0x10000) {
        current.push_back(char(0xe0 | (c >> 12)));
        follow(6);
    } else {
        current.push_back(char(0xf0 | (c >> 18)));
        follow(12);
        follow(6);
    }
    follow(0);
}

}  // namespace wirepane

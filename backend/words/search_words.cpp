// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/words/search_words.h"

#include <QStringDecoder>

#include <algorithm>

namespace wirepane {

namespace {

constexpr char32_t brokenByte = 0xfffd;

bool isDigit(char32_t c) {
    return c >= U'0' && c <= U'9';
}

bool isWide(char32_t raw) {
    return raw >= 0xff00;
}

bool isFollowing(unsigned byte) {
    return (byte & 0xc0U) == 0x80;
}

}  // namespace

WordReader::WordReader(QByteArrayView utf8, const CharacterFolding& rules) : text(utf8), folding(rules) {}

WordReader::Character WordReader::characterAt(qsizetype position) const {
    const auto byte = [this](qsizetype i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const unsigned first = byte(position);
    char32_t raw = first;
    qsizetype bytes = 1;
    if (first >= 0x80) {
        bytes = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : first >= 0xc2 ? 2 : 1;
        raw = bytes == 1 ? brokenByte : first & (0x7fU >> bytes);
        for (qsizetype i = 1; i < bytes; ++i) {
            const unsigned next = byte(position + i);
            if (!isFollowing(next)) {
                raw = brokenByte;
                bytes = 1;
                break;
            }
            raw = (raw << 6) | (next & 0x3fU);
        }
    }
    const CharacterFolding::Folded folded = folding.of(raw);
    return {raw, folded.character, folded.kind, position + bytes};
}

bool WordReader::next() {
    length = 0;
    while (at < text.size()) {
        wordStart = at;
        Run run;
        if (readPlainRun(run))
            return true;
        if (run.characters > 0) {
            readRun(run);
            return true;
        }
        const Character character = characterAt(at);
        at = character.end;
        switch (character.kind) {
            case CharacterKind::Space:
            case CharacterKind::Dropped:
                continue;
            case CharacterKind::LineEnd:
                append(U'\n');
                return true;
            case CharacterKind::Letter:
                at = wordStart;
                readRun(run);
                return true;
            case CharacterKind::Single:
            case CharacterKind::Symbol:
                append(character.folded);
                return true;
        }
    }
    return false;
}

// Letters and digits of ASCII, which need no decoding. True: they are the whole word. A point or a comma
// behind a digit, and what is not ASCII, may belong to it and is left to readRun().
bool WordReader::readPlainRun(Run& run) {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    const qsizetype end = std::min(text.size(), at + longestWord);
    const qsizetype start = at;
    const bool splits = folding.splitsAtDigits();
    run.isNumber = isDigit(bytes[start]);
    qsizetype i = start;
    for (; i < end; ++i) {
        const char folded = folding.plainLetter(bytes[i]);
        const bool isNumber = isDigit(bytes[i]);
        if (folded == 0 || (isNumber != run.isNumber && splits))
            break;
        current[std::size_t(i - start)] = folded;
        run.digits = isNumber ? run.digits + 1 : 0;
    }
    if (i == start)
        return false;
    length = std::size_t(i - start);
    at = i;
    run.characters = int(i - start);
    if (i == text.size() || run.characters == longestWord)
        return true;
    run.last = bytes[i - 1];
    return bytes[i] < 0x80 && (run.digits == 0 || (bytes[i] != '.' && bytes[i] != ','));
}

void WordReader::readRun(Run run) {
    while (at < text.size() && run.characters < longestWord) {
        const Character character = characterAt(at);
        if (character.kind == CharacterKind::Letter) {
            const bool isNumber = isDigit(character.folded);
            if (run.characters > 0 && isNumber != run.isNumber && folding.splitsAtDigits())
                return;
            append(character.folded);
            run.isNumber = isNumber;
            run.digits = isNumber ? run.digits + 1 : 0;
            ++run.characters;
        } else if (character.kind == CharacterKind::Symbol && run.digits > 0 && joinsNumber(character, run)) {
            append(character.folded);
            run.grouped = character.folded == U',';
            run.digits = 0;
            ++run.characters;
        } else if (character.kind != CharacterKind::Dropped) {
            return;
        }
        run.last = character.raw;
        at = character.end;
    }
}

// The digit at a position, which goes behind it; 0 when there is none of that width.
char32_t WordReader::digitAt(qsizetype& position, bool wide) const {
    if (position >= text.size())
        return 0;
    const Character character = characterAt(position);
    if (!isDigit(character.folded) || isWide(character.raw) != wide)
        return 0;
    position = character.end;
    return character.folded;
}

// A sign of another width than the digits around it is punctuation of the sentence.
bool WordReader::joinsNumber(const Character& separator, const Run& run) const {
    const bool wide = isWide(separator.raw);
    if (isWide(run.last) != wide)
        return false;
    qsizetype position = separator.end;
    int digits = 0;
    while (digits < 4 && digitAt(position, wide) != 0)
        ++digits;
    if (separator.folded == U'.')
        return digits > 0;
    return separator.folded == U',' && digits == 3 && (run.grouped ? run.digits == 3 : run.digits <= 3);
}

void WordReader::append(char32_t c) {
    const auto put = [this](char32_t byte) { current[length++] = char(byte); };
    const auto follow = [&](int shift) { put(0x80 | ((c >> shift) & 0x3f)); };
    if (c < 0x80) {
        put(c);
        return;
    }
    if (c < 0x800) {
        put(0xc0 | (c >> 6));
    } else if (c < 0x10000) {
        put(0xe0 | (c >> 12));
        follow(6);
    } else {
        put(0xf0 | (c >> 18));
        follow(12);
        follow(6);
    }
    follow(0);
}

QString keywordText(const QString& keyword) {
    const QByteArray utf8 = keyword.toUtf8();
    WordReader reader(utf8);
    qsizetype end = 0;
    for (int words = 0; words < mostKeywordWords && reader.next();) {
        if (reader.isLineEnd())
            continue;
        end = reader.end();
        ++words;
    }
    // A mark of byte order at the start is a character like any other here.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(utf8).first(end));
}

}  // namespace wirepane

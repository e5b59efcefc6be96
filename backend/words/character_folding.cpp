// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/words/character_folding.h"

#include "backend/words/chinese_variants.h"
#include "backend/words/simplified_chinese.h"

#include <QChar>
#include <QList>
#include <QString>
#include <QStringTokenizer>

#include <map>

namespace wirepane {

namespace {

constexpr char32_t tableSize = 0x10000;
constexpr char32_t firstIdeograph = 0x3400;
constexpr char32_t endOfIdeographs = 0xa000;

bool isWithin(char32_t c, char32_t first, char32_t last) {
    return c >= first && c <= last;
}

// Scripts that are written without blanks between words, or with endings that stick to the word.
bool isSingle(char32_t c) {
    return isWithin(c, 0x0e00, 0x0eff) || isWithin(c, 0x1000, 0x109f) || isWithin(c, 0x1100, 0x11ff) ||
           isWithin(c, 0x1780, 0x17ff) || isWithin(c, 0x2e80, 0x2fff) || isWithin(c, 0x3005, 0x3007) ||
           isWithin(c, 0x3021, 0x302f) || isWithin(c, 0x3031, 0x303c) || isWithin(c, 0x3041, 0x33ff) ||
           isWithin(c, 0x3400, 0x9fff) || isWithin(c, 0xa960, 0xa97f) || isWithin(c, 0xac00, 0xd7ff) ||
           isWithin(c, 0xe000, 0xfaff) || isWithin(c, 0xff66, 0xffdc) || isWithin(c, 0x1b000, 0x1b16f) ||
           c >= 0x20000;
}

bool isAccent(char32_t c) {
    return isWithin(c, 0x0300, 0x036f) || isWithin(c, 0x1ab0, 0x1aff) || isWithin(c, 0x1dc0, 0x1dff) ||
           isWithin(c, 0x20d0, 0x20ff) || isWithin(c, 0xfe00, 0xfe0f) || isWithin(c, 0xfe20, 0xfe2f) ||
           isWithin(c, 0xe0100, 0xe01ef);
}

CharacterKind kindOf(char32_t c) {
    if (c == U'\n' || c == U'\r' || c == 0x85 || c == 0x2028 || c == 0x2029)
        return CharacterKind::LineEnd;
    if (isAccent(c))
        return CharacterKind::Dropped;
    const QChar::Category category = QChar::category(c);
    switch (category) {
        case QChar::Separator_Space:
        case QChar::Other_Control:
            return CharacterKind::Space;
        case QChar::Other_Format:
        case QChar::Other_Surrogate:
            return CharacterKind::Dropped;
        default:
            break;
    }
    if (isSingle(c))
        return CharacterKind::Single;
    const bool isSign = category >= QChar::Punctuation_Connector && category <= QChar::Symbol_Other;
    return isSign || category == QChar::Number_Other ? CharacterKind::Symbol : CharacterKind::Letter;
}

char32_t quoteOrDash(char32_t c) {
    if (isWithin(c, 0x2018, 0x201b))
        return U'\'';
    if (isWithin(c, 0x201c, 0x201f))
        return U'"';
    return isWithin(c, 0x2010, 0x2015) || c == 0x2212 ? U'-' : c;
}

// The character that this one is a form of: its decomposition, where that is one character and accents.
char32_t baseOf(char32_t c) {
    for (;;) {
        const QList<uint> parts = QChar::decomposition(c).toUcs4();
        if (parts.isEmpty())
            return c;
        for (qsizetype i = 1; i < parts.size(); ++i) {
            if (!isAccent(parts.at(i)))
                return c;
        }
        c = parts.front();
    }
}

// A circled or raised digit stays itself: what stands beside it is another number.
char16_t foldedOnce(char32_t c) {
    if (QChar::category(c) == QChar::Number_Other)
        return char16_t(c);
    const char32_t folded = QChar::toCaseFolded(baseOf(quoteOrDash(c)));
    return char16_t(folded < tableSize ? folded : c);
}

}  // namespace

const CharacterFolding& CharacterFolding::instance() {
    static const CharacterFolding folding(Rules::Present);
    return folding;
}

const CharacterFolding& CharacterFolding::first() {
    static const CharacterFolding folding(Rules::First);
    return folding;
}

const CharacterFolding* CharacterFolding::find(std::int64_t fingerprint) {
    if (instance().fingerprint() == fingerprint)
        return &instance();
    return first().fingerprint() == fingerprint ? &first() : nullptr;
}

CharacterFolding::CharacterFolding(Rules itsRules) : table(tableSize), rules(itsRules) {
    for (char32_t c = 0; c < tableSize; ++c)
        table[c].character = QChar::isSurrogate(c) ? char16_t(c) : foldedOnce(c);
    if (rules == Rules::First)
        foldToSimplified();
    else
        foldChinese();
    std::uint64_t hash = 0xcbf29ce484222325U ^ std::uint64_t(rules);
    for (char32_t c = 0; c < tableSize; ++c) {
        Entry& entry = table[c];
        // Folding what is folded must change nothing.
        for (int i = 0; i < 4 && entry.character != table[entry.character].character; ++i)
            entry.character = table[entry.character].character;
        // A character is what its folded form is: a full-width comma is a comma.
        entry.kind = kindOf(kindOf(c) == CharacterKind::Dropped ? c : entry.character);
        hash = (hash ^ entry.character ^ (std::uint64_t(entry.kind) << 16)) * 0x100000001b3U;
    }
    for (const auto& [c, one] : std::map(beyond.begin(), beyond.end()))
        hash = (hash ^ c ^ (std::uint64_t(one) << 24)) * 0x100000001b3U;
    sum = std::int64_t(hash >> 1);
    for (unsigned char c = 0; c < 0x80; ++c)
        plainLetters[c] = table[c].kind == CharacterKind::Letter ? char(table[c].character) : '\0';
}

void CharacterFolding::foldChinese() {
    for (const auto& [c, one] : chineseVariants()) {
        if (c < tableSize)
            table[c].character = char16_t(one);
        else
            beyond.emplace(c, one);
    }
}

void CharacterFolding::foldToSimplified() {
    QString all;
    for (char32_t c = firstIdeograph; c < endOfIdeographs; ++c) {
        all += QChar(char16_t(c));
        all += u'\n';
    }
    const QString simplified = SimplifiedChinese().convert(all);
    char32_t c = firstIdeograph;
    for (const QStringView line : qTokenize(QStringView(simplified), u'\n')) {
        if (c < endOfIdeographs && line.size() == 1)
            table[c].character = line.front().unicode();
        ++c;
    }
}

CharacterFolding::Folded CharacterFolding::foldedBeyond(char32_t character) const {
    const auto found = beyond.find(character);
    return {found == beyond.end() ? character : found->second, kindOf(character)};
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/words/character_folding.h"

#include <QByteArrayView>

#include <string>
#include <string_view>

namespace wirepane {

// The words of a text, found character by character, with one road for all of them: what WordReader, which
// has a shorter one for what is frequent, must find as well. See there for the rules.
class SlowWords {
public:
    // `utf8` outlives this.
    explicit SlowWords(QByteArrayView utf8);

    bool next();
    std::string_view word() const { return current; }
    qsizetype start() const { return wordStart; }
    qsizetype end() const { return at; }

private:
    struct Character {
        char32_t raw = 0;
        char32_t folded = 0;
        CharacterKind kind = CharacterKind::Space;
        qsizetype end = 0;
    };
    Character characterAt(qsizetype position) const;
    char32_t digitAt(qsizetype& position, bool wide) const;
    void readRun(Character character);
    bool joinsNumber(const Character& separator, char32_t lastDigit, int digitsBefore, bool grouped) const;
    void append(char32_t character);

    QByteArrayView text;
    const CharacterFolding& folding;
    std::string current;
    qsizetype wordStart = 0;
    qsizetype at = 0;
};

}  // namespace wirepane

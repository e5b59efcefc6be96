// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/page_font.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr char32_t firstWholeHangul = 0x3130;  // those before are parts that join

bool standsByItself(char32_t character) {
    switch (QChar::script(character)) {
        case QChar::Script_Common:
        case QChar::Script_Latin:
        case QChar::Script_Greek:
        case QChar::Script_Cyrillic:
        case QChar::Script_Han:
        case QChar::Script_Hiragana:
        case QChar::Script_Katakana:
        case QChar::Script_Bopomofo:
            return true;
        case QChar::Script_Hangul:
            return character >= firstWholeHangul;
        default:
            return false;
    }
}

}  // namespace

Shaping shapingFor(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    return std::all_of(characters.begin(), characters.end(), standsByItself) ? Shaping::None : Shaping::Full;
}

QFont pageFont(const QStringList& families, int pixelSize, Shaping shaping) {
    QFont font;
    font.setFamilies(families);
    // Lines are counted in half widths: tables stand in columns where the face counts so too.
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPixelSize(std::max(pixelSize, 1));
    font.setWeight(QFont::Normal);
    if (shaping == Shaping::None)
        font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace wirepane {

// What no text from outside may bring along, whichever road it comes by: who gets it into a title forges what
// a list or a console shows. All are pure and linear in the text; a lone surrogate becomes the replacement
// character.

// Whether lines of text end at this character; a carriage return is told by isHidden.
bool isLineBreak(char32_t character);
// Control characters (line breaks and tabs among them), text-direction marks and overrides, byte order marks,
// and what is no character.
bool isHidden(char32_t character);
// The character at `at`, which goes behind it.
char32_t takeCharacter(QStringView text, qsizetype& at);
// Where the run of characters from `at` on ends of which none is hidden, breaks lines or is made of
// surrogates: what can be taken as it is, without a look at each.
qsizetype endOfPlainRun(QStringView text, qsizetype at);
// As QChar::isSpace(), sooner for most characters.
inline bool isBlank(QChar character) {
    constexpr char16_t lastBlank = 0x3000;
    const char16_t c = character.unicode();
    return c < 0x80 ? c == u' ' || (c >= u'\t' && c <= u'\r') : c <= lastBlank && character.isSpace();
}

// A letter or a digit of ASCII, of which most of a text consists: asked first where a text is read character
// by character.
inline bool isPlainLetter(QChar character) {
    const unsigned c = character.unicode();
    return (c | 0x20U) - u'a' < 26U || c - u'0' < 10U;
}

// One line: line breaks and tabs become blanks, what is hidden goes.
QString cleanTitle(const QString& text);
// A story: CR, LF and tabs stay, other line breaks become blanks, what is hidden goes.
QString cleanStory(const QString& text);
// For people to read, on a console as well: what cleanTitle would change is written as "\u001b".
QString escapedText(const QString& text);

}  // namespace wirepane

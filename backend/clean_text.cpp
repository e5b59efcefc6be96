// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/clean_text.h"

#include <array>
#include <cstdint>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

// What endOfPlainRun() runs over, one bit a character: a look into 8 kB instead of a dozen comparisons. Made
// when the program starts (compilers give up on so many steps); until then no character is plain, and each is
// looked at.
const auto plainCharacters = [] {
    std::array<std::uint64_t, 0x10000 / 64> bits{};
    for (char32_t c = 0; c < 0x10000; ++c) {
        if (!isHidden(c) && !isLineBreak(c) && !QChar::isSurrogate(c))
            bits[c / 64] |= std::uint64_t(1) << (c % 64);
    }
    return bits;
}();

// Most texts are clean, and are returned as they are.
bool isClean(QStringView text) {
    for (qsizetype at = endOfPlainRun(text, 0); at < text.size(); at = endOfPlainRun(text, at)) {
        const bool isLone = text.at(at).isSurrogate();
        const char32_t c = takeCharacter(text, at);
        if (isHidden(c) || isLineBreak(c) || (isLone && c == QChar::ReplacementCharacter))
            return false;
    }
    return true;
}

bool isStoryBreak(char32_t c) {
    return c == U'\r' || c == U'\n' || c == U'\t';
}

template <typename Keeps>
QString cleaned(const QString& text, Keeps keeps) {
    if (isClean(text))
        return text;
    QString clean;
    clean.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype start = at;
        at = endOfPlainRun(text, start);
        clean += QStringView(text).sliced(start, at - start);
        if (at == text.size())
            break;
        const char32_t c = takeCharacter(text, at);
        if (keeps(c) || (!isHidden(c) && !isLineBreak(c)))
            clean += QChar::fromUcs4(c);
        else if (isLineBreak(c) || c == U'\t' || (c == U'\r' && !text.sliced(at).startsWith(u'\n')))
            clean += u' ';
    }
    return clean;
}

QString escaped(char32_t c) {
    QString text;
    for (const char16_t unit : QChar::fromUcs4(c))
        text += u"\\u%1"_s.arg(uint(unit), 4, 16, QChar(u'0'));
    return text;
}

}  // namespace

bool isLineBreak(char32_t c) {
    return c == U'\n' || c == U'\v' || c == U'\f' || c == 0x85 || c == 0x2028 || c == 0x2029;
}

bool isHidden(char32_t c) {
    const bool control = c < 0x20 || (c >= 0x7f && c < 0xa0);
    const bool direction = c == 0x61c || c == 0x200e || c == 0x200f || (c >= 0x202a && c <= 0x202e) ||
                           (c >= 0x2066 && c <= 0x2069);
    return control || direction || c == 0xfeff || QChar::isNonCharacter(c);
}

char32_t takeCharacter(QStringView text, qsizetype& at) {
    const QChar first = text.at(at++);
    if (!first.isSurrogate())
        return first.unicode();
    if (first.isHighSurrogate() && at < text.size() && text.at(at).isLowSurrogate())
        return QChar::surrogateToUcs4(first, text.at(at++));
    return QChar::ReplacementCharacter;
}

qsizetype endOfPlainRun(QStringView text, qsizetype at) {
    const auto* const units = text.utf16();
    while (at < text.size() && ((plainCharacters[units[at] / 64U] >> (units[at] % 64U)) & 1U) != 0)
        ++at;
    return at;
}

QString cleanTitle(const QString& text) {
    return cleaned(text, [](char32_t) { return false; });
}

QString cleanStory(const QString& text) {
    return cleaned(text, isStoryBreak);
}

QString escapedText(const QString& text) {
    if (isClean(text))
        return text;
    QString shown;
    shown.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const char32_t c = takeCharacter(text, at);
        shown += isHidden(c) || isLineBreak(c) ? escaped(c) : QStringView(QChar::fromUcs4(c)).toString();
    }
    return shown;
}

}  // namespace wirepane

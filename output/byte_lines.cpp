// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/byte_lines.h"

namespace wirepane {

namespace {

constexpr char32_t firstDoubleByte = 0x80;

// The end of the code point that begins at `at`; a lone surrogate is a character of its own.
qsizetype endOfCharacter(QStringView text, qsizetype at) {
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    return at + (pair ? 2 : 1);
}

}  // namespace

int byteWidth(char32_t character) {
    return character < firstDoubleByte ? 1 : 2;
}

int byteLength(QStringView text) {
    int bytes = 0;
    for (qsizetype at = 0; at < text.size(); at = endOfCharacter(text, at))
        bytes += byteWidth(text[at].unicode());
    return bytes;
}

QStringView firstBytes(QStringView text, int bytes) {
    qsizetype at = 0;
    for (int room = bytes; at < text.size(); at = endOfCharacter(text, at)) {
        room -= byteWidth(text[at].unicode());
        if (room < 0)
            break;
    }
    return text.first(at);
}

QStringView takeLine(QStringView& text) {
    QStringView line = firstBytes(text, bytesPerLine);
    const qsizetype lineFeed = line.indexOf(u'\n');
    if (lineFeed >= 0)
        line.truncate(lineFeed + 1);
    text = text.sliced(line.size());
    return line;
}

std::vector<QStringView> titleLines(QStringView title, bool whole) {
    std::vector<QStringView> lines;
    for (QStringView line = firstBytes(title, bytesPerLine); line.size() < title.size();
         line = firstBytes(title, bytesPerLine)) {
        lines.push_back(line);
        title = title.sliced(line.size());
    }
    if (whole || lines.empty())
        lines.push_back(title);
    return lines;
}

}  // namespace wirepane

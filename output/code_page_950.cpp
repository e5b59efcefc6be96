// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/code_page_950.h"

#include <QStringEncoder>

#include <array>

namespace wirepane {

namespace {

using PageTable = std::array<std::uint16_t, 0x10000>;  // 0: not a double-byte character of the page

constexpr char whiteSquare[] = "\xA1\xBC";

// Every character is followed by a line feed, which is no trail byte: so the pieces tell each one's width.
std::optional<PageTable> readTable() {
    constexpr char16_t firstDoubleByte = 0x80;
    QStringEncoder encoder("windows-950");
    if (!encoder.isValid())
        return std::nullopt;
    QString all;
    for (char32_t character = firstDoubleByte; character < 0x10000; ++character) {
        all += QChar::isSurrogate(character) ? QChar(u'?') : QChar(static_cast<char16_t>(character));
        all += u'\n';
    }
    const QByteArray encoded = encoder(all);
    std::optional<PageTable> table(std::in_place);
    table->fill(0);
    qsizetype at = 0;
    for (std::size_t character = firstDoubleByte; character < table->size() && at >= 0; ++character) {
        const qsizetype end = encoded.indexOf('\n', at);
        if (end - at == 2)
            (*table)[character] = static_cast<std::uint16_t>(static_cast<unsigned char>(encoded[at]) << 8 |
                                                             static_cast<unsigned char>(encoded[at + 1]));
        at = end < 0 ? end : end + 1;
    }
    return table;
}

}  // namespace

std::optional<PageBytes> encodeCodePage950(QStringView text) {
    static const std::optional<PageTable> table = readTable();
    if (!table)
        return std::nullopt;
    PageBytes result;
    result.bytes.reserve(text.size() * 2);
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at].unicode();
        if (unit < 0x80) {
            result.bytes += static_cast<char>(unit);
        } else if (const std::uint16_t bytes = (*table)[unit]; bytes != 0) {
            result.bytes += static_cast<char>(bytes >> 8);
            result.bytes += static_cast<char>(bytes & 0xFF);
        } else {
            result.bytes += whiteSquare;
            ++result.replaced;
            const bool pair =
                text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
            at += pair ? 1 : 0;
        }
    }
    return result;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "fuzz/replay/changes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace wirepane {

namespace {

using namespace std::string_view_literals;

constexpr qsizetype longest = 8192;

constexpr std::array meaningful{
    "\0"sv,
    "\xff"sv,
    "\xed\xa0\x80"sv,
    "\xef\xbb\xbf"sv,
    "\xf0\x9f\x98\x80"sv,
    "\n"sv,
    "\r\n"sv,
    "\""sv,
    "\\"sv,
    "\\ud800"sv,
    "<"sv,
    ">"sv,
    "&"sv,
    "&#x110000;"sv,
    "]]>"sv,
    "{"sv,
    "}"sv,
    "["sv,
    "]"sv,
    ","sv,
    ";"sv,
    "="sv,
    "@@@@"sv,
    "%"sv,
    "-1"sv,
    "2147483648"sv,
    "1e999"sv,
    "255"sv,
    "null"sv,
    "\x00\xd8"sv,
    "\xe3\x80\x80"sv,
    "\xe2\x80\xae"sv,
    "\xa4\x40"sv,
};

}  // namespace

QByteArray SeedChanges::piece() {
    if (below(3) > 0) {
        const std::string_view text = meaningful.at(std::size_t(below(meaningful.size())));
        return {text.data(), qsizetype(text.size())};
    }
    const QByteArray& seed = seeds.at(std::size_t(below(qsizetype(seeds.size()))));
    const qsizetype from = below(seed.size() + 1);
    return seed.sliced(from, below(std::min<qsizetype>(seed.size() - from, 64) + 1));
}

void SeedChanges::change(QByteArray& bytes) {
    const qsizetype at = below(bytes.size() + 1);
    const qsizetype length = below(std::min<qsizetype>(bytes.size() - at, 32) + 1);
    switch (below(6)) {
        case 0:
            bytes.insert(at, piece());
            break;
        case 1:
            bytes.replace(at, length, piece());
            break;
        case 2:
            bytes.remove(at, length);
            break;
        case 3:
            bytes.insert(at, bytes.sliced(at, length).repeated(1 + below(4)));
            break;
        case 4:
            if (at < bytes.size())
                bytes[at] = char(random());
            break;
        default:
            if (at < bytes.size())
                bytes[at] = char(bytes[at] ^ (1 << below(8)));
            break;
    }
}

QByteArray SeedChanges::next() {
    QByteArray bytes = seeds.at(std::size_t(below(qsizetype(seeds.size()))));
    for (qsizetype left = 1 + below(8); left > 0; --left)
        change(bytes);
    bytes.truncate(longest);
    return bytes;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace wirepane {

// Text counted in bytes of code page 950, as printed pages and saved files count it. A character is never
// split: where one would be, the cut is a byte earlier. Pure.

// The longest line of a page or a file.
inline constexpr int bytesPerLine = 80;

// 1 for ASCII, 2 for everything else, also for what the page lacks.
int byteWidth(char32_t character);
int byteLength(QStringView text);

// Up to `bytes` bytes from the front of `text`.
QStringView firstBytes(QStringView text, int bytes);

// Takes one line from the front of `text`, which is not empty: up to bytesPerLine bytes, cut after the first
// line feed.
QStringView takeLine(QStringView& text);

// A title in lines: whole when it has up to bytesPerLine bytes, or when `whole` says so. A longer one loses
// its last bytesPerLine bytes or fewer, which hosts rely on.
std::vector<QStringView> titleLines(QStringView title, bool whole);

}  // namespace wirepane

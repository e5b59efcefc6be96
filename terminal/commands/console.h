// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <functional>

namespace wirepane {

// A line on standard output, for results; on standard error, for everything else.
void printLine(const QString& text);
void printNote(const QString& text);

// A line on standard error that the next one overwrites; nothing where standard error is no terminal.
void printPassing(const QString& text);
// Makes room after passing lines.
void clearPassing();

// Shows in passing lines how far the search index of a store is made anew; nothing in the first half second.
std::function<void(std::int64_t done, std::int64_t total)> indexingLines();

}  // namespace wirepane

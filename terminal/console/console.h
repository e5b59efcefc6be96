// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>

namespace wirepane {

// A line on standard output, for results; on standard error, for everything else. What a console would obey
// instead of showing it (control characters, text-direction marks) is written as "\u001b".
void printLine(const QString& text);
void printNote(const QString& text);

// The bytes of such a line; bytes on standard output as they are. Result: errno, 0 when they got there.
QByteArray outputLine(const QString& text);
int writeOutput(const QByteArray& bytes);

// What the program returns after all: `status`, unless a line on standard output did not get there (a full
// disk), which is then said.
int statusOfOutput(int status);
// Takes down why something else was not written to standard output (errno; 0: it was).
void noteLostOutput(int systemError);

// A line on standard error that the next one overwrites; nothing where standard error is no terminal.
void printPassing(const QString& text);
// Makes room after passing lines.
void clearPassing();

// Shows in passing lines which share of some work is done; nothing in the first half second.
std::function<void(std::int64_t done, std::int64_t total)> passingShare(const QString& work);

// The same for the search index of a store that is made anew.
std::function<void(std::int64_t done, std::int64_t total)> indexingLines();

}  // namespace wirepane

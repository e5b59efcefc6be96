// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

// A line on standard output, for results; on standard error, for everything else.
void printLine(const QString& text);
void printNote(const QString& text);

// A line on standard error that the next one overwrites; nothing where standard error is no terminal.
void printPassing(const QString& text);
// Makes room after passing lines.
void clearPassing();

}  // namespace wirepane

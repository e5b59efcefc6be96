// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <vector>

namespace wirepane {

// Which lines of a plain text belong to a table that is set with blanks, so that its figures stand under and
// beside their labels only as long as nobody joins or trims its lines: two or more lines with runs of blanks
// inside, or rules, the short lines between them, and the indented ones right above. A rule counts alone.
// Linear in the text.
std::vector<bool> tableLines(const QList<QStringView>& lines);

// The lines of one table as they are to be kept: tabs as blanks up to the next eighth column, no blanks at
// the ends, and none at the starts that all of them have.
QStringList tableText(const QList<QStringView>& lines);

// Characters that are written without blanks between words, and take two columns. Korean is not among them:
// it has blanks.
bool isIdeographic(char32_t character);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

class BKQuoteInterface;

namespace wirepane {

// How characters of a text become glyphs.
enum class Shaping {
    None,  // each by itself, so that a PDF's reader finds them again: no ligatures, no forms beside
           // neighbours
    Full,
};

// What the text needs: Full where its characters join, turn around or stand over one another.
Shaping shapingFor(const QString& text);

// The font of printed pages: the face that the language in force names, and for what it lacks those of the
// host. A size below 1 counts as 1.
QFont pageFont(BKQuoteInterface& backEnd, int pixelSize, Shaping shaping);

}  // namespace wirepane

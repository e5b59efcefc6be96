// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QFont>
#include <QStringList>

namespace wirepane {

// How characters of a text become glyphs.
enum class Shaping {
    None,  // each by itself, so that a PDF's reader finds them again: no ligatures, no forms beside
           // neighbours
    Full,
};

// What the text needs: Full where its characters join, turn around or stand over one another.
WIREPANE_CONTRACT_EXPORT Shaping shapingFor(const QString& text);

// The font of printed pages: of the first of these families that has a character. A size below 1 counts as 1.
WIREPANE_CONTRACT_EXPORT QFont pageFont(const QStringList& families, int pixelSize, Shaping shaping);

}  // namespace wirepane

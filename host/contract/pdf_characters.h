// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QByteArray>
#include <QFont>
#include <QString>

namespace wirepane {

// Makes the text of a PDF that Qt has written the text that was drawn, for readers that search and copy.
// Where several characters share a glyph, Qt names the first of them: a tab for a blank, a radical for the
// ideograph. `drawn` holds every character that was drawn, in any order, `font` is what they were drawn in. A
// file of any other form stays as it is.
WIREPANE_CONTRACT_EXPORT void nameDrawnCharacters(QByteArray& pdf, const QString& drawn, const QFont& font);

}  // namespace wirepane

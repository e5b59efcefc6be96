// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace wirepane {

// Markup to text. Both are tolerant (any text is accepted, broken markup included), pure, and linear in the
// text. The result is text: what looks like markup in it is to be shown as it stands.

// The text of HTML or XHTML: tags, comments, scripts and styles dropped, entities decoded, white space
// folded but inside the lines of <pre>, and a blank line between the paragraphs (blocks, list items, table
// rows, <br>, lines of <pre>).
QString plainText(QStringView markup);

// The text of a value of which its format does not say whether it is text or markup: as plainText() where it
// holds well-known HTML tags, else as it stands with entities decoded. "<IBM.N>" stays in either case.
QString textOfUnknownForm(QStringView text);

}  // namespace wirepane

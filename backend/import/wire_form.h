// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace wirepane {

// Plain text from outside, made into the forms that the store keeps. All are pure, linear in the text, and
// take any text: what must not be shown (control characters, text-direction marks and overrides) goes out, a
// lone surrogate becomes the replacement character.

// A story in wire form: paragraphs with "@@@@" between them, none of them empty, no line breaks. A blank
// line, or a line that is indented, starts a paragraph; any other line goes on with the one before, after a
// blank, or after nothing where a Chinese or Japanese character stands on either side. The lines of a table
// (see table_lines.h) are paragraphs, with their blanks. A "@@@@" of the text
// becomes "@@ @@".
QString wireForm(QStringView text);

// One line, white space folded.
QString cleanLine(QStringView text);

// A title: one line, white space folded, at most 500 characters (cut at a word then, with an ellipsis).
QString titleLine(QStringView text);

// A title for a story that has none: its first paragraph, cut at a word near 80 characters with an ellipsis.
// `story` is in wire form.
QString titleFromStory(QStringView story);

}  // namespace wirepane

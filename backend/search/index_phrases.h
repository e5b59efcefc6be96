// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_choices.h"

#include <QByteArray>
#include <QString>

namespace wirepane {

// A text as a phrase of the index's own language; empty: there is no word in it. What is quoted is never read
// as operators. The text is split into words there, once: a word that is split again may fall apart ("1,234"
// is one, but "1,2345" is not, with which "1,234" and a full-width "5" go on).
QString indexPhrase(const QString& text);
// What phrases make, looked for in a scope alone.
QString withinScope(const QString& phrases, SearchScope scope);

// The words of a text in UTF-8, each between blanks, line ends among them: a text holds a phrase where its
// words hold those of the phrase. Empty: there is no word in it.
QByteArray wordsBetweenBlanks(const QString& text);
// The same of a phrase that is looked for; a line end in it is a blank.
QByteArray phraseBetweenBlanks(const QString& phrase);

}  // namespace wirepane

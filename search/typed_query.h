// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

// The query to look for while somebody is typing it: the word at its end may go on, once it is long enough to
// mean something. Empty: it has a fault so far.
QString typedQuery(const QString& text);

}  // namespace wirepane

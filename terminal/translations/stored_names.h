// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

// What a name that stands in a store is called in the language in force: the services and topics that every
// store begins with, and the codes of topics that newswires use instead of names. Any other name is called as
// it is.
QString shownName(const QString& stored);

}  // namespace wirepane

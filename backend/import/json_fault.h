// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

#include <QJsonParseError>

namespace wirepane {

// What Qt's parser found wrong, in the parser's own words.
Phrase jsonFault(const QJsonParseError& problem);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"
#include "host/contract/json_fields.h"

#include <QJsonParseError>

namespace wirepane {

// What Qt's parser found wrong, in the parser's own words.
Phrase jsonFault(const QJsonParseError& problem);

// What a field must be: "must be a text".
Phrase jsonFault(const JsonFault& fault);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QLatin1StringView>
#include <QString>

namespace wirepane {

// The text of a language key in the language in force, from the installed back end; the key itself without
// one.
WIREPANE_CONTRACT_EXPORT QString langText(QLatin1StringView key);

}  // namespace wirepane

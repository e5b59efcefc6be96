// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QDate>

#include <cstdint>

namespace wirepane {

// The one clock of host and module for what counts as the present moment. It runs with the machine's clock; a
// host can shift it, so that an archive can be read, or a script run, as of any day. Any thread.
namespace host_clock {

// The present moment in seconds since 1970 (UTC).
WIREPANE_CONTRACT_EXPORT std::int64_t now();

// The local calendar day of the present moment.
WIREPANE_CONTRACT_EXPORT QDate today();

// From here on the present moment is `secondsSince1970` plus the time that passes.
WIREPANE_CONTRACT_EXPORT void startAt(std::int64_t secondsSince1970);

}  // namespace host_clock

}  // namespace wirepane

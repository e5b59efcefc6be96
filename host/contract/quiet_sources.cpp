// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/quiet_sources.h"

namespace wirepane {

QuietTeller::~QuietTeller() = default;
QuietSources::~QuietSources() = default;

}  // namespace wirepane

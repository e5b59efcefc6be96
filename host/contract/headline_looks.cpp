// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/headline_looks.h"

namespace wirepane {

LookTeller::~LookTeller() = default;

HeadlineLooks::~HeadlineLooks() = default;

}  // namespace wirepane

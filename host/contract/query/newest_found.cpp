// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/newest_found.h"

namespace wirepane {

NewestFound::~NewestFound() = default;

}  // namespace wirepane

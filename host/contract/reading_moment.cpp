// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/reading_moment.h"

namespace wirepane {

ReadingMoment::~ReadingMoment() = default;

}  // namespace wirepane

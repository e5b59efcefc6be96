// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/news_origins.h"

namespace wirepane {

NewsOrigins::~NewsOrigins() = default;

}  // namespace wirepane

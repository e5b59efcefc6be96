// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/news_record.h"

namespace wirepane {

NewsRecord::~NewsRecord() = default;

}  // namespace wirepane

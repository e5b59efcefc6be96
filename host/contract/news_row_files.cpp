// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/news_row_files.h"

namespace wirepane {

NewsRowFiles::~NewsRowFiles() = default;

}  // namespace wirepane

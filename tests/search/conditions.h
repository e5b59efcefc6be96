// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <utility>

namespace wirepane {

inline CSearch condition(std::vector<QString> keywords, unsigned char scope = 0, unsigned char method = 1) {
    CSearch search;
    search.keywords = std::move(keywords);
    search.scope = scope;
    search.method = method;
    return search;
}

}  // namespace wirepane

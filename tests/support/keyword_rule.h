// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_choices.h"

#include <cstddef>

namespace wirepane {

// What each method means, told as plainly as can be: whether a text fits that holds `held` of `asked`
// keywords. Searches are compared with it on random conditions of every method.
inline bool fitsKeywords(SearchMethod method, std::size_t held, std::size_t asked) {
    switch (method) {
        case SearchMethod::NotSet:
        case SearchMethod::All:
            return held == asked;
        case SearchMethod::Any:
            break;
    }
    return held > 0;
}

}  // namespace wirepane

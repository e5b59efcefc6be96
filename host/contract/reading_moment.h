// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

namespace wirepane {

// What a back end may offer beside BKQuoteInterface, by inheriting this, too: its news can be read as of an
// earlier moment, at which lists and searches then end. A view that finds it (by dynamic_cast from the
// installed back end) says so beside its lists. Interface thread.
class WIREPANE_CONTRACT_EXPORT ReadingMoment {
public:
    virtual ~ReadingMoment();

    // True while lists end before the present of the world. A host opens its views anew when it changes.
    virtual bool isReadAsOf() const = 0;
};

}  // namespace wirepane

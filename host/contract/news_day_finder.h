// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

class QDate;

namespace wirepane {

// Optional for back ends, beside BKQuoteInterface: which days have news, as calendars mark them. Interface
// thread.
class WIREPANE_CONTRACT_EXPORT NewsDayFinder {
public:
    virtual ~NewsDayFinder();

    // Whether a service has a headline of this local day. Asked for some hundred days and services at once.
    virtual bool hasNewsOn(unsigned char service, const QDate& day) = 0;
};

}  // namespace wirepane

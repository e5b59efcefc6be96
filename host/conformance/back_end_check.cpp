// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/conformance/back_end_check.h"

#include "host/conformance/look_up_check.h"
#include "host/conformance/quote_check.h"
#include "host/conformance/request_check.h"

namespace wirepane {

std::vector<QString> brokenDuties(BKQuoteInterface& backEnd, std::chrono::milliseconds patience) {
    Findings findings;
    for (const unsigned char service : checkCatalogues(backEnd, findings))
        checkRequests(backEnd, service, checkNews(backEnd, service, findings), patience, findings);
    checkQuotes(backEnd, patience, findings);
    return findings.takeAll();
}

}  // namespace wirepane

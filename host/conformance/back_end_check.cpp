// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/conformance/back_end_check.h"

#include "host/conformance/look_up_check.h"
#include "host/conformance/quote_check.h"
#include "host/conformance/request_check.h"

std::vector<QString> BrokenDuties(BKQuoteInterface& backEnd, std::chrono::milliseconds patience) {
    Findings findings;
    for (const unsigned char service : CheckCatalogues(backEnd, findings))
        CheckRequests(backEnd, service, CheckNews(backEnd, service, findings), patience, findings);
    CheckQuotes(backEnd, patience, findings);
    return findings.Take();
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/left_out.h"

#include "headline_list/language_keys.h"
#include "host/contract/lang_text.h"

namespace wirepane {

NewsOutcome nothingToPutOut(BKQuoteInterface& backEnd) {
    NewsOutcome outcome;
    outcome.failed = true;
    outcome.message = langText(backEnd, keys::nothingToPutOut);
    return outcome;
}

void tellLeftOut(BKQuoteInterface& backEnd, std::size_t leftOut, NewsOutcome& outcome) {
    if (leftOut == 0 || outcome.count == 0)
        return;
    const QString told = langText(backEnd, keys::leftOut).arg(leftOut);
    outcome.message += outcome.message.isEmpty() ? told : QChar(u' ') + told;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/left_out.h"

#include "headline_list/language_keys.h"
#include "host/contract/lang_text.h"

NewsOutcome NothingToPutOut(BKQuoteInterface& backEnd) {
    NewsOutcome outcome;
    outcome.failed = true;
    outcome.message = LangText(backEnd, keys::nothingToPutOut);
    return outcome;
}

void TellLeftOut(BKQuoteInterface& backEnd, std::size_t leftOut, NewsOutcome& outcome) {
    if (leftOut == 0 || outcome.count == 0)
        return;
    const QString told = LangText(backEnd, keys::leftOut).arg(leftOut);
    outcome.message += outcome.message.isEmpty() ? told : QChar(u' ') + told;
}

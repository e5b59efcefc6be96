// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/lang_text.h"

#include "host/contract/bk_quote_interface.h"

namespace wirepane {

QString langText(QLatin1StringView key) {
    auto* backEnd = BKQuoteInterface::GetBKInterface();
    return backEnd != nullptr ? backEnd->LangGetLangString(QString(key)) : QString(key);
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/language_keys.h"

#include "host/contract/bk_quote_interface.h"

namespace wirepane {

QString langText(BKQuoteInterface& backEnd, QLatin1StringView key) {
    return backEnd.LangGetLangString(QString(key));
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/condition_texts.h"

#include "host/contract/lang_text.h"
#include "host/controls/plain_caption.h"

#include <algorithm>

namespace {

QString nameOf(QLatin1StringView captionKey) {
    return NameOfCaption(CaptionWithoutKey(LangText(captionKey)));
}

}  // namespace

QString ScopeText(int scope) {
    const std::size_t known = std::min(static_cast<std::size_t>(scope), scopeKeys.size() - 1);
    return nameOf(scopeKeys[known]);
}

QString MethodText(int method) {
    return nameOf(method == conditions::methodAll ? search_keys::methodAnd : search_keys::methodOr);
}

QStringList ScopeTexts() {
    return {ScopeText(0), ScopeText(1), ScopeText(2)};
}

QStringList MethodTexts() {
    return {MethodText(conditions::methodAll), MethodText(conditions::methodAny)};
}

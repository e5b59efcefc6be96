// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/index_phrases.h"

#include "backend/words/search_words.h"

using namespace Qt::StringLiterals;

namespace wirepane {

QString indexPhrase(const QString& text) {
    QString counted = keywordText(text);
    if (counted.isEmpty())
        return {};
    return u'"' + counted.replace(u'\0', u' ').replace(u'"', u"\"\""_s) + u'"';
}

QString withinScope(const QString& phrases, SearchScope scope) {
    if (scope == SearchScope::Both)
        return phrases;
    return (scope == SearchScope::Headlines ? u"title : ("_s : u"story : ("_s) + phrases + u')';
}

}  // namespace wirepane

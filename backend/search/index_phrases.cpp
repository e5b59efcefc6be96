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

QByteArray wordsBetweenBlanks(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    WordReader reader(utf8);
    QByteArray words;
    while (reader.next())
        words.append(' ').append(reader.word().data(), qsizetype(reader.word().size()));
    return words.isEmpty() ? words : words + ' ';
}

QByteArray phraseBetweenBlanks(const QString& phrase) {
    return wordsBetweenBlanks(keywordText(phrase));
}

}  // namespace wirepane

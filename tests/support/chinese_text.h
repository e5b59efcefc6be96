// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/words/simplified_chinese.h"

#include <QRegularExpression>
#include <QStringConverter>
#include <QStringList>

namespace wirepane {

// What stands in a text of the interface in Chinese, "zh-TW" or "zh-CN", and does not belong there: words of
// English, and characters that are written so in the other of the two alone. Names, codes and what is typed
// as it is may be there: the words of this list, keys with Ctrl, Alt or Shift, options, paths, placeholders.
inline QStringList strangeParts(const QString& text, const QString& language) {
    static const QRegularExpression asItIs(QStringLiteral(
        R"(\{market, code\}|\b(?:Wirepane|wirepane(?: import| check)?|RSS|Atom|OPML|WebSocket|ninjs|NewsML-G2|NewsML|CSV|WAV|JSON|XML|PDF|)"
        R"(UTF-8|UTF-16|MiB|KB|AND|OR|CHIPS|chips|ASCII|Unicode|English|true|false|AM|PM|pt|px|A4|A3)\b|)"
        R"(\b(?:Ctrl|Alt|Shift)(?:\+\S+)?|\b(?:Enter|Esc|Tab|Space|Home|End|Del|Menu)\b|\bPage (?:Up|Down)\b|)"
        R"(--\w+|\*\.\w+|(?:/[\w.+~-]+)+|“\w+”|「\w+」|:memory:|Noto Sans Mono CJK \w+|fonts-noto-cjk|#rrggbb)"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{2,}(?:[ '-][A-Za-z]+)*"));
    QStringList strange;
    QString rest = text;
    rest.remove(asItIs);
    for (auto words = word.globalMatch(rest); words.hasNext();)
        strange += words.next().captured();
    for (const QString& name : {QStringLiteral("繁體中文"), QStringLiteral("简体中文")})
        rest.remove(name);
    if (language == QStringLiteral("zh-CN")) {
        static SimplifiedChinese simplified;
        const QString converted = simplified.convert(rest);
        if (converted != rest)
            strange += converted;
        return strange;
    }
    for (const QChar letter : rest) {
        if (letter.script() == QChar::Script_Han &&
            QStringEncoder("windows-950").encode(letter) == QByteArray("?"))
            strange += letter;
    }
    return strange;
}

}  // namespace wirepane

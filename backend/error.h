// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <concepts>
#include <cstddef>
#include <string_view>
#include <vector>

class QJsonObject;

namespace wirepane {

// A way to fail: the key of its sentence in the language files, and the sentence in English, in which %1 to
// %9 stand for its arguments. Codes are constants that stand beside their users ("import_errors.h"), and are
// told apart by their addresses.
struct ErrorCode {
    const char* key;
    std::u16string_view english;
};

struct ErrorArgument;

// Why something failed, as a value: who shows it makes the sentence, in the language of who reads it. Made by
// makeError().
struct Error {
    Error(const ErrorCode& code, std::vector<ErrorArgument> arguments);

    bool operator==(const Error&) const;

    const ErrorCode* code;
    std::vector<ErrorArgument> arguments;
};

// A part of a sentence: "a text", "line 12".
using Phrase = Error;

// What stands in a sentence: a text as it is, such as a name or a number, or a part that each language has
// its own words for.
struct ErrorArgument {
    ErrorArgument(QString asItIs);
    ErrorArgument(QChar asItIs);
    ErrorArgument(QStringView asItIs);
    ErrorArgument(QLatin1StringView asItIs);
    template <std::integral Number>
    ErrorArgument(Number number) : text(QString::number(number)) {}
    ErrorArgument(double number);
    ErrorArgument(Error sentence);

    bool operator==(const ErrorArgument&) const;

    QString text;
    std::vector<Error> part;  // one, or none: it is the text
};

// How many arguments stand in a sentence; a number that leaves one out does not compile.
consteval std::size_t countArguments(std::u16string_view sentence) {
    std::size_t count = 0;
    bool found = true;
    while (found) {
        const char16_t next[]{u'%', static_cast<char16_t>(u'1' + count)};
        found = sentence.find(std::u16string_view(next, 2)) != std::u16string_view::npos;
        count += found ? 1 : 0;
    }
    return count;
}

// The error of this code with what its sentence asks for.
template <const ErrorCode& code, class... Arguments>
Error makeError(Arguments... arguments) {
    static_assert(countArguments(code.english) == sizeof...(Arguments),
                  "the sentence has as many arguments as are given");
    return {code, {ErrorArgument(std::move(arguments))...}};
}

// As it is kept, and as one program hands it to another: {"code": key, "arguments": [...]}, each argument a
// text as it is, or such an object in its turn.
QJsonObject errorValue(const Error& error);

// In English, as the command line shows it.
QString sentence(const Error& error);

// Of the two words in braces in a sentence, "{item|items}", the one that is wanted.
QString inNumber(const QString& sentence, bool isOne);

// The sentence with its arguments in place, none of which is looked into. Words in braces go by the argument
// that stands before them.
QString filledIn(QStringView sentence, const QStringList& arguments);

}  // namespace wirepane

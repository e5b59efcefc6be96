// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/error.h"

#include <algorithm>
#include <utility>

namespace wirepane {

Error::Error(const ErrorCode& ofError, std::vector<ErrorArgument> withArguments)
    : code(&ofError), arguments(std::move(withArguments)) {}

ErrorArgument::ErrorArgument(QString asItIs) : text(std::move(asItIs)) {}
ErrorArgument::ErrorArgument(QChar asItIs) : text(asItIs) {}
ErrorArgument::ErrorArgument(QStringView asItIs) : text(asItIs.toString()) {}
ErrorArgument::ErrorArgument(QLatin1StringView asItIs) : text(asItIs) {}
ErrorArgument::ErrorArgument(double number) : text(QString::number(number)) {}
ErrorArgument::ErrorArgument(Error sentence) : part{std::move(sentence)} {}

bool Error::operator==(const Error&) const = default;
bool ErrorArgument::operator==(const ErrorArgument&) const = default;

QString sentence(const Error& error) {
    QStringList arguments;
    for (const ErrorArgument& argument : error.arguments)
        arguments += argument.part.empty() ? argument.text : sentence(argument.part.front());
    return filledIn(error.code->english, arguments);
}

QString filledIn(QStringView sentence, const QStringList& arguments) {
    QString filled;
    for (qsizetype at = 0; at < sentence.size(); ++at) {
        const qsizetype number =
            sentence.at(at) == u'%' && at + 1 < sentence.size() ? sentence.at(at + 1).unicode() - u'1' : -1;
        if (number < 0 || number >= arguments.size()) {
            filled += sentence.at(at);
            continue;
        }
        filled += arguments.at(number);
        ++at;
    }
    return filled;
}

}  // namespace wirepane

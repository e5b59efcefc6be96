// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/error.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

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

QJsonObject errorValue(const Error& error) {
    QJsonArray arguments;
    for (const ErrorArgument& argument : error.arguments)
        arguments += argument.part.empty() ? QJsonValue(argument.text) : errorValue(argument.part.front());
    return {{u"code"_s, QString::fromLatin1(error.code->key)}, {u"arguments"_s, arguments}};
}

QString sentence(const Error& error) {
    QStringList arguments;
    for (const ErrorArgument& argument : error.arguments)
        arguments += argument.part.empty() ? argument.text : sentence(argument.part.front());
    return filledIn(error.code->english, arguments);
}

QString inNumber(const QString& sentence, bool isOne) {
    const qsizetype begin = sentence.indexOf(u'{');
    const qsizetype middle = sentence.indexOf(u'|', begin);
    const qsizetype end = sentence.indexOf(u'}', middle);
    if (begin < 0 || middle < begin || end < middle)
        return sentence;
    const QString word =
        isOne ? sentence.mid(begin + 1, middle - begin - 1) : sentence.mid(middle + 1, end - middle - 1);
    return sentence.left(begin) + word + sentence.mid(end + 1);
}

QString filledIn(QStringView given, const QStringList& arguments) {
    const qsizetype sign = given.left(std::max<qsizetype>(given.indexOf(u'{'), 0)).lastIndexOf(u'%');
    const qsizetype counted = sign < 0 ? -1 : given.at(sign + 1).unicode() - u'1';
    const QString sentence = inNumber(given.toString(), arguments.value(counted) == QStringView(u"1"));
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

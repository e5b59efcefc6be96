// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/params.h"

#include <QJsonArray>

#include <cmath>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int largestSide = 8192;

std::optional<std::int64_t> wholeNumber(const QJsonValue& value, std::int64_t least, std::int64_t most) {
    const double number = value.toDouble(std::nan(""));
    if (!(number == std::trunc(number)) || number < static_cast<double>(least) ||
        number > static_cast<double>(most))
        return std::nullopt;
    return value.toInteger();
}

}  // namespace

Params::Params(QJsonObject parameters) : values(std::move(parameters)) {}

void Params::fail(const QString& message, RpcCode code) {
    if (!firstError)
        firstError = RpcError{code, message};
}

bool Params::has(const QString& name) const {
    const QJsonValue found = values.value(name);
    return !found.isUndefined() && !found.isNull();
}

std::optional<std::int64_t> Params::optionalNumber(const QString& name, std::int64_t least,
                                                   std::int64_t most) {
    if (!has(name))
        return std::nullopt;
    const auto number = wholeNumber(value(name), least, most);
    if (!number)
        fail(u"\"%1\" must be a whole number from %2 to %3"_s.arg(name).arg(least).arg(most));
    return number;
}

std::optional<QString> Params::optionalText(const QString& name) {
    if (!has(name))
        return std::nullopt;
    if (!value(name).isString()) {
        fail(u"\"%1\" must be a text"_s.arg(name));
        return std::nullopt;
    }
    return value(name).toString();
}

std::optional<bool> Params::optionalBool(const QString& name) {
    if (!has(name))
        return std::nullopt;
    if (!value(name).isBool()) {
        fail(u"\"%1\" must be true or false"_s.arg(name));
        return std::nullopt;
    }
    return value(name).toBool();
}

std::optional<QSize> Params::optionalSize(const QString& name) {
    if (!has(name))
        return std::nullopt;
    const QJsonArray sides = value(name).toArray();
    const auto width = wholeNumber(sides.at(0), 1, largestSide);
    const auto height = wholeNumber(sides.at(1), 1, largestSide);
    if (sides.size() != 2 || !width || !height) {
        fail(u"\"%1\" must be [width, height], each from 1 to %2"_s.arg(name).arg(largestSide));
        return std::nullopt;
    }
    return QSize(static_cast<int>(*width), static_cast<int>(*height));
}

std::optional<std::vector<int>> Params::optionalNumbers(const QString& name) {
    if (!has(name))
        return std::nullopt;
    std::vector<int> numbers;
    const QJsonArray items = value(name).toArray();
    for (const auto& item : items) {
        if (const auto number = wholeNumber(item, 0, std::numeric_limits<std::int32_t>::max()))
            numbers.push_back(static_cast<int>(*number));
    }
    if (!value(name).isArray() || numbers.size() != static_cast<std::size_t>(items.size())) {
        fail(u"\"%1\" must be a list of whole numbers from 0 on"_s.arg(name));
        return std::nullopt;
    }
    return numbers;
}

QJsonObject Params::optionalObject(const QString& name) {
    if (has(name) && !value(name).isObject())
        fail(u"\"%1\" must be an object"_s.arg(name));
    return value(name).toObject();
}

template <class Value>
Value Params::required(const QString& name, const std::optional<Value>& read) {
    if (!has(name))
        fail(u"\"%1\" is missing"_s.arg(name));
    return read.value_or(Value());
}

std::int64_t Params::number(const QString& name, std::int64_t least, std::int64_t most) {
    return required(name, optionalNumber(name, least, most));
}

double Params::real(const QString& name) {
    if (!value(name).isDouble())
        fail(u"\"%1\" must be a number"_s.arg(name));
    return value(name).toDouble();
}

QString Params::text(const QString& name) {
    return required(name, optionalText(name));
}

bool Params::boolean(const QString& name) {
    return required(name, optionalBool(name));
}

QSize Params::size(const QString& name) {
    return required(name, optionalSize(name));
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/params.h"

#include "backend/import/json_fault.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int largestSide = 8192;

QString messageOf(const JsonFault& fault) {
    return u"\"%1\" %2"_s.arg(fault.field, sentence(jsonFault(fault)));
}

}  // namespace

Params::Params(QJsonObject parameters) : fields(std::move(parameters)) {}

void Params::fail(const QString& message, RpcCode code) {
    if (!firstError)
        firstError = RpcError{code, message};
}

template <class Value>
Value Params::checked(Value read) {
    if (fields.fault())
        fail(messageOf(*fields.fault()));
    return read;
}

std::optional<std::int64_t> Params::optionalNumber(const QString& name, std::int64_t least,
                                                   std::int64_t most) {
    return checked(fields.optionalNumber(name, least, most));
}

std::optional<QString> Params::optionalText(const QString& name) {
    return checked(fields.optionalText(name));
}

std::optional<bool> Params::optionalBool(const QString& name) {
    return checked(fields.optionalFlag(name));
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
    return checked(fields.optionalObject(name)).value_or(QJsonObject());
}

std::int64_t Params::number(const QString& name, std::int64_t least, std::int64_t most) {
    return checked(fields.number(name, least, most));
}

double Params::real(const QString& name) {
    return checked(fields.real(name));
}

QString Params::text(const QString& name) {
    return checked(fields.text(name));
}

bool Params::boolean(const QString& name) {
    return checked(fields.flag(name));
}

QSize Params::size(const QString& name) {
    if (!has(name))
        fail(messageOf({name}));
    return optionalSize(name).value_or(QSize());
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/json_fields.h"

#include <utility>

namespace wirepane {

namespace {

std::optional<QString> textOf(const QJsonValue& value) {
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

std::optional<double> realOf(const QJsonValue& value) {
    return value.isDouble() ? std::optional(value.toDouble()) : std::nullopt;
}

std::optional<bool> flagOf(const QJsonValue& value) {
    return value.isBool() ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<QJsonArray> listOf(const QJsonValue& value) {
    return value.isArray() ? std::optional(value.toArray()) : std::nullopt;
}

std::optional<QJsonObject> objectOf(const QJsonValue& value) {
    return value.isObject() ? std::optional(value.toObject()) : std::nullopt;
}

}  // namespace

std::optional<std::int64_t> wholeNumber(const QJsonValue& value, std::int64_t least, std::int64_t most) {
    const std::int64_t number = value.toInteger(0);
    const bool isWhole = value.toInteger(1) == number;  // what is none is what it is asked to be instead
    return isWhole && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

JsonFields::JsonFields(QJsonObject object) : fields(std::move(object)) {}

QStringList JsonFields::unknown() const {
    QStringList names = fields.keys();
    names.removeIf([this](const QString& name) { return asked.contains(name); });
    return names;
}

bool JsonFields::has(const QString& name) const {
    return !fields.value(name).isNull() && !fields.value(name).isUndefined();
}

QJsonValue JsonFields::value(const QString& name) {
    asked += name;
    return fields.value(name);
}

void JsonFields::fail(const JsonFault& fault) {
    if (!firstFault)
        firstFault = fault;
}

template <class Value>
std::optional<Value> JsonFields::read(const QString& name, std::optional<Value> (*convert)(const QJsonValue&),
                                      JsonMust must) {
    const QJsonValue found = value(name);
    const std::optional<Value> converted = convert(found);
    if (!converted && has(name))
        fail({name, must});
    return converted;
}

std::optional<QString> JsonFields::optionalText(const QString& name) {
    return read(name, textOf, JsonMust::BeText);
}

std::optional<std::int64_t> JsonFields::optionalNumber(const QString& name, std::int64_t least,
                                                       std::int64_t most) {
    const auto number = wholeNumber(value(name), least, most);
    if (!number && has(name))
        fail({name, JsonMust::BeWholeNumber, least, most});
    return number;
}

std::optional<double> JsonFields::optionalReal(const QString& name) {
    return read(name, realOf, JsonMust::BeNumber);
}

std::optional<bool> JsonFields::optionalFlag(const QString& name) {
    return read(name, flagOf, JsonMust::BeTrueOrFalse);
}

std::optional<QJsonArray> JsonFields::optionalList(const QString& name) {
    return read(name, listOf, JsonMust::BeList);
}

std::optional<QJsonObject> JsonFields::optionalObject(const QString& name) {
    return read(name, objectOf, JsonMust::BeObject);
}

template <class Value>
Value JsonFields::needed(const QString& name, const std::optional<Value>& found) {
    if (!has(name))
        fail({name});
    return found.value_or(Value());
}

QString JsonFields::text(const QString& name) {
    return needed(name, optionalText(name));
}

std::int64_t JsonFields::number(const QString& name, std::int64_t least, std::int64_t most) {
    return needed(name, optionalNumber(name, least, most));
}

double JsonFields::real(const QString& name) {
    return needed(name, optionalReal(name));
}

bool JsonFields::flag(const QString& name) {
    return needed(name, optionalFlag(name));
}

QJsonArray JsonFields::list(const QString& name) {
    return needed(name, optionalList(name));
}

}  // namespace wirepane

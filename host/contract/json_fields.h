// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace wirepane {

// What a field of a JSON object must be and is not.
enum class JsonMust { BeThere, BeText, BeNumber, BeWholeNumber, BeTrueOrFalse, BeList, BeObject };

struct JsonFault {
    QString field;
    JsonMust must = JsonMust::BeThere;
    std::int64_t least = 0;  // of a whole number
    std::int64_t most = 0;
};

// The fields of a JSON object from outside, and the first that is wrong: read them all, then ask for the
// fault. One that is null counts as absent. An optional one is nothing when it is absent or wrong, any other
// one is empty, 0 or false then. Any thread.
class WIREPANE_CONTRACT_EXPORT JsonFields {
public:
    explicit JsonFields(QJsonObject object);

    const std::optional<JsonFault>& fault() const { return firstFault; }
    // Names that the object has and nobody has asked for.
    QStringList unknown() const;

    const QJsonObject& all() const { return fields; }
    bool has(const QString& name) const;
    // As it stands, whatever it is.
    QJsonValue value(const QString& name);

    std::optional<QString> optionalText(const QString& name);
    std::optional<std::int64_t> optionalNumber(const QString& name, std::int64_t least, std::int64_t most);
    std::optional<double> optionalReal(const QString& name);
    std::optional<bool> optionalFlag(const QString& name);
    std::optional<QJsonArray> optionalList(const QString& name);
    std::optional<QJsonObject> optionalObject(const QString& name);

    QString text(const QString& name);
    std::int64_t number(const QString& name, std::int64_t least, std::int64_t most);
    double real(const QString& name);
    bool flag(const QString& name);
    QJsonArray list(const QString& name);

private:
    template <class Value>
    std::optional<Value> read(const QString& name, std::optional<Value> (*convert)(const QJsonValue&),
                              JsonMust must);
    template <class Value>
    Value needed(const QString& name, const std::optional<Value>& found);
    void fail(const JsonFault& fault);

    QJsonObject fields;
    QStringList asked;
    std::optional<JsonFault> firstFault;
};

// The whole number that a value is, when it lies between these.
WIREPANE_CONTRACT_EXPORT std::optional<std::int64_t> wholeNumber(const QJsonValue& value, std::int64_t least,
                                                                 std::int64_t most);

}  // namespace wirepane

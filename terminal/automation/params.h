// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/json_fields.h"
#include "terminal/automation/json_rpc.h"

#include <QSize>

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace wirepane {

// Reads the parameters of a request and remembers the first one that is missing or wrong: read them all, then
// ask for the error. A parameter that is null counts as absent. What could not be read comes back as nothing.
class Params {
public:
    explicit Params(QJsonObject values);

    const std::optional<RpcError>& error() const { return firstError; }
    // Records an error of the caller's own, unless there is one already.
    void fail(const QString& message, RpcCode code = RpcCode::BadParameters);

    bool has(const QString& name) const { return fields.has(name); }
    const QJsonObject& all() const { return fields.all(); }
    QJsonValue value(const QString& name) const { return fields.all().value(name); }

    // The value, nothing when it is absent.
    std::optional<std::int64_t> optionalNumber(const QString& name,
                                               std::int64_t least = std::numeric_limits<std::int32_t>::min(),
                                               std::int64_t most = std::numeric_limits<std::int32_t>::max());
    std::optional<QString> optionalText(const QString& name);
    std::optional<bool> optionalBool(const QString& name);
    // [width, height], each 1..8192.
    std::optional<QSize> optionalSize(const QString& name);
    std::optional<std::vector<int>> optionalNumbers(const QString& name);
    QJsonObject optionalObject(const QString& name);

    // The value; it is an error when it is absent.
    std::int64_t number(const QString& name, std::int64_t least = std::numeric_limits<std::int32_t>::min(),
                        std::int64_t most = std::numeric_limits<std::int32_t>::max());
    double real(const QString& name);
    QString text(const QString& name);
    bool boolean(const QString& name);
    QSize size(const QString& name);

private:
    // What was read, after a fault that it may have has been kept.
    template <class Value>
    Value checked(Value read);

    JsonFields fields;
    std::optional<RpcError> firstError;
};

}  // namespace wirepane

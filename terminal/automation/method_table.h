// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/params.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <functional>
#include <optional>

namespace wirepane {

// What a method came to: its result, {} when it has none to give, or why it could not be done.
struct Answer {
    Answer() = default;
    Answer(const QJsonObject& object) : result(object) {}
    Answer(const QJsonArray& array) : result(array) {}
    Answer(RpcError failure) : error(std::move(failure)) {}

    QJsonValue result = QJsonObject();
    std::optional<RpcError> error;
};

// Called exactly once per request, at once or later, on the interface thread.
using Reply = std::function<void(const Answer&)>;

// The methods by name.
class MethodTable {
public:
    // A method that answers at once.
    void add(const QString& name, std::function<Answer(Params&)> method);
    // A method that answers at once, whose parameters may also be a bare list: they are then read under
    // `listName`.
    void addWithList(const QString& name, const QString& listName, std::function<Answer(Params&)> method);
    // A method that may open a dialog or a menu: it is answered when it returns or, with {}, as soon as a
    // loop that it has opened runs, so that further requests can act on what it shows.
    void addModal(const QString& name, std::function<Answer(Params&)> method);
    // A method that answers when it can.
    void addDeferred(const QString& name, const std::function<void(Params&, const Reply&)>& method);

    // Calls the method. Parameters that it found wrong are its answer, whatever else it came to.
    void call(const RpcRequest& request, const Reply& reply) const;

private:
    QHash<QString, std::function<void(Params&, const Reply&)>> methods;
    QHash<QString, QString> listNames;  // of the methods that take a bare list
};

}  // namespace wirepane

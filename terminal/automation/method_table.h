// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/params.h"

#include <QHash>
#include <QJsonObject>

#include <functional>
#include <variant>

namespace wirepane {

// What a method came to: its result, or why it could not be done.
using Answer = std::variant<QJsonObject, RpcError>;

// Called exactly once per request, at once or later, on the interface thread.
using Reply = std::function<void(const Answer&)>;

// The methods by name.
class MethodTable {
public:
    // A method that answers at once.
    void add(const QString& name, std::function<Answer(Params&)> method);
    // A method that may open a dialog or a menu: it is answered when it returns or, with {}, as soon as a
    // loop that it has opened runs, so that further requests can act on what it shows.
    void addModal(const QString& name, std::function<Answer(Params&)> method);
    // A method that answers when it can.
    void addDeferred(const QString& name, std::function<void(Params&, const Reply&)> method);

    // Calls the method. Parameters that it found wrong are its answer, whatever else it came to.
    void call(const RpcRequest& request, const Reply& reply) const;

private:
    QHash<QString, std::function<void(Params&, const Reply&)>> methods;
};

}  // namespace wirepane

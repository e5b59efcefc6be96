// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/method_table.h"

#include <QCoreApplication>
#include <QTimer>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

void MethodTable::add(const QString& name, std::function<Answer(Params&)> method) {
    addDeferred(name, [method = std::move(method)](Params& params, const Reply& reply) {
        const Answer answer = method(params);
        reply(params.error() ? Answer(*params.error()) : answer);
    });
}

void MethodTable::addWithList(const QString& name, const QString& listName,
                              std::function<Answer(Params&)> method) {
    listNames.insert(name, listName);
    add(name, std::move(method));
}

void MethodTable::addModal(const QString& name, std::function<Answer(Params&)> method) {
    addDeferred(name, [method = std::move(method)](Params& params, const Reply& reply) {
        auto answered = std::make_shared<bool>(false);
        // Runs no earlier than in a loop that the method opens, or after the method.
        QTimer::singleShot(0, qApp, [answered, reply] {
            if (!std::exchange(*answered, true))
                reply({});
        });
        const Answer answer = method(params);
        if (!std::exchange(*answered, true))
            reply(params.error() ? Answer(*params.error()) : answer);
    });
}

void MethodTable::addDeferred(const QString& name, const std::function<void(Params&, const Reply&)>& method) {
    methods.insert(name, method);
}

void MethodTable::call(const RpcRequest& request, const Reply& reply) const {
    const auto method = methods.constFind(request.method);
    if (method == methods.constEnd()) {
        reply(RpcError{RpcCode::UnknownMethod, u"there is no method \"%1\""_s.arg(request.method)});
        return;
    }
    QJsonObject values = request.params;
    if (request.list) {
        const QString listName = listNames.value(request.method);
        if (listName.isEmpty()) {
            reply(RpcError{RpcCode::BadParameters, u"\"%1\" takes named parameters"_s.arg(request.method)});
            return;
        }
        values.insert(listName, *request.list);
    }
    Params params(values);
    (*method)(params, reply);
}

}  // namespace wirepane

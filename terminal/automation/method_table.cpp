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

void MethodTable::addModal(const QString& name, std::function<Answer(Params&)> method) {
    addDeferred(name, [method = std::move(method)](Params& params, const Reply& reply) {
        auto answered = std::make_shared<bool>(false);
        // Runs no earlier than in a loop that the method opens, or after the method.
        QTimer::singleShot(0, qApp, [answered, reply] {
            if (!std::exchange(*answered, true))
                reply(QJsonObject());
        });
        const Answer answer = method(params);
        if (!std::exchange(*answered, true))
            reply(params.error() ? Answer(*params.error()) : answer);
    });
}

void MethodTable::addDeferred(const QString& name, std::function<void(Params&, const Reply&)> method) {
    methods.insert(name, std::move(method));
}

void MethodTable::call(const RpcRequest& request, const Reply& reply) const {
    const auto method = methods.constFind(request.method);
    if (method == methods.constEnd()) {
        reply(RpcError{RpcCode::UnknownMethod, u"there is no method \"%1\""_s.arg(request.method)});
        return;
    }
    Params params(request.params);
    (*method)(params, reply);
}

}  // namespace wirepane

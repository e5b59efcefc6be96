// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/output_methods.h"

#include "terminal/automation/view_lookup.h"
#include "terminal/session/session.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

Answer answerOf(const NewsOutcome& outcome, const QString& name) {
    if (outcome.failed)
        return RpcError{RpcCode::Refused, outcome.message.isEmpty() ? u"it was stopped"_s : outcome.message};
    QJsonObject result{{name, outcome.count}};
    if (outcome.waiting)
        result.insert(u"waiting"_s, true);
    return result;
}

}  // namespace

void OutputMethods::addTo(MethodTable& table) {
    table.addDeferred(u"print.pdf"_s, [this](Params& params, const Reply& reply) { print(params, reply); });
    table.addDeferred(u"save.file"_s, [this](Params& params, const Reply& reply) { save(params, reply); });
}

void OutputMethods::print(Params& params, const Reply& reply) {
    OutputTarget target;
    target.file = params.text(u"path"_s);
    target.paper = params.optionalText(u"paper"_s).value_or(QString());
    putOut(params, reply, target, &NewsViewAccess::printSelection, u"pages"_s);
}

void OutputMethods::save(Params& params, const Reply& reply) {
    OutputTarget target;
    target.file = params.text(u"path"_s);
    const QString type = params.optionalText(u"type"_s).value_or(u"txt"_s);
    if (type != u"txt"_s && type != u"utf8"_s)
        params.fail(u"\"type\" must be \"txt\" or \"utf8\""_s);
    target.type = type == u"utf8"_s ? NewsFileType::Utf8 : NewsFileType::CodePage950;
    putOut(params, reply, target, &NewsViewAccess::saveSelection, u"bytes"_s);
}

// Answered when the file is there, unless something of it is still to come.
void OutputMethods::putOut(Params& params, const Reply& reply, OutputTarget& target, PutOut method,
                           const QString& counted) {
    const OpenView* view = viewOf(params, session.workspace());
    if (view == nullptr || params.error()) {
        reply(params.error() ? Answer(*params.error()) : Answer());
        return;
    }
    const auto answered = std::make_shared<bool>(false);
    target.told = [reply, answered, counted, here = std::weak_ptr(alive)](const NewsOutcome& outcome) {
        if (!here.expired() && !std::exchange(*answered, true))
            reply(answerOf(outcome, counted));
    };
    const NewsOutcome outcome = (view->access->*method)(target);
    if (!outcome.underWay && !std::exchange(*answered, true))
        reply(answerOf(outcome, counted));
}

}  // namespace wirepane

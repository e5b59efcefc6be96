// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/json_rpc.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

RejectedLine rejected(const QJsonValue& id, RpcCode code, const QString& message) {
    return {id, {code, message}};
}

QByteArray answerLine(const QJsonValue& id, const QString& member, const QJsonValue& content) {
    const QJsonObject answer{{u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, id}, {member, content}};
    return QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n';
}

}  // namespace

std::variant<RpcRequest, RejectedLine> parseRequest(const QByteArray& line) {
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(line, &problem);
    if (problem.error != QJsonParseError::NoError)
        return rejected(QJsonValue::Null, RpcCode::ParseError,
                        u"not JSON: %1 at byte %2"_s.arg(problem.errorString()).arg(problem.offset));
    if (!document.isObject())
        return rejected(QJsonValue::Null, RpcCode::InvalidRequest, u"a request is one JSON object"_s);
    const QJsonObject object = document.object();
    const QJsonValue id = object.value("id"_L1);
    const bool idIsValid = id.isUndefined() || id.isNull() || id.isString() || id.isDouble();
    const QJsonValue answerId = idIsValid && !id.isUndefined() ? id : QJsonValue(QJsonValue::Null);
    if (!idIsValid)
        return rejected(answerId, RpcCode::InvalidRequest, u"an id is a number, a text or null"_s);
    if (object.value("jsonrpc"_L1) != "2.0"_L1)
        return rejected(answerId, RpcCode::InvalidRequest, u"\"jsonrpc\" must be \"2.0\""_s);
    if (!object.value("method"_L1).isString())
        return rejected(answerId, RpcCode::InvalidRequest, u"\"method\" must be a text"_s);
    const QJsonValue params = object.value("params"_L1);
    if (!params.isUndefined() && !params.isObject() && !params.isArray())
        return rejected(answerId, RpcCode::BadParameters, u"parameters are an object of names and values"_s);
    return RpcRequest{id, object.value("method"_L1).toString(), params.toObject(),
                      params.isArray() ? std::optional(params.toArray()) : std::nullopt};
}

QByteArray resultLine(const QJsonValue& id, const QJsonValue& result) {
    return answerLine(id, u"result"_s, result);
}

QByteArray errorLine(const QJsonValue& id, const RpcError& error) {
    return answerLine(id, u"error"_s,
                      QJsonObject{{u"code"_s, static_cast<int>(error.code)}, {u"message"_s, error.message}});
}

}  // namespace wirepane

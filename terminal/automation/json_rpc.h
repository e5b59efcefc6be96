// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>
#include <variant>

namespace wirepane {

// The error codes of the automation interface.
enum class RpcCode : int {
    ParseError = -32700,
    InvalidRequest = -32600,
    UnknownMethod = -32601,
    BadParameters = -32602,
    NotFound = -32001,  // no such view, control, row or dialog
    Refused = -32002,   // not in this state
};

struct RpcError {
    RpcCode code = RpcCode::InvalidRequest;
    QString message;  // what and why
};

struct RpcRequest {
    QJsonValue id;  // Undefined: a notification, which is carried out and not answered
    QString method;
    QJsonObject params;
    std::optional<QJsonArray> list;  // the parameters where they are a bare list
};

// A line that is no request, with the id that its answer carries (null when none could be read).
struct RejectedLine {
    QJsonValue id;
    RpcError error;
};

// Reads one line of JSON-RPC 2.0. Batches are not part of the interface.
std::variant<RpcRequest, RejectedLine> parseRequest(const QByteArray& line);

// Answers, each one line with its line feed.
QByteArray resultLine(const QJsonValue& id, const QJsonValue& result);
QByteArray errorLine(const QJsonValue& id, const RpcError& error);

}  // namespace wirepane

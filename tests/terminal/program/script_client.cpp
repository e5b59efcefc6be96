// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/terminal/program/script_client.h"

#include "tests/terminal/program/program_runner.h"

#include <QJsonDocument>

#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane::test {

namespace {
constexpr int answerMs = 60000;
}

ScriptClient::ScriptClient(const QStringList& arguments) {
    process.start(programFile(), QStringList{u"--automation"_s, u"--offscreen"_s} + arguments);
    process.waitForStarted();
}

ScriptClient::~ScriptClient() {
    process.closeWriteChannel();
    if (!process.waitForFinished(answerMs))
        process.kill();
    process.waitForFinished();
}

void ScriptClient::send(const QByteArray& line) {
    process.write(line + '\n');
    while (process.bytesToWrite() > 0 && process.waitForBytesWritten(answerMs)) {
    }
}

QJsonObject ScriptClient::read() {
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(answerMs))
            return {};
    }
    const QByteArray line = process.readLine();
    const QJsonDocument answer = QJsonDocument::fromJson(line);
    EXPECT_TRUE(answer.isObject()) << "on standard output: " << line.toStdString();
    return answer.object();
}

QJsonObject ScriptClient::ask(const QString& method, const QJsonValue& params) {
    const QJsonObject request{
        {u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, ++lastId}, {u"method"_s, method}, {u"params"_s, params}};
    send(QJsonDocument(request).toJson(QJsonDocument::Compact));
    const QJsonObject answer = read();
    EXPECT_EQ(answer[u"id"_s].toInt(), lastId);
    return answer;
}

QJsonValue ScriptClient::result(const QString& method, const QJsonValue& params) {
    const QJsonObject answer = ask(method, params);
    EXPECT_TRUE(answer.contains(u"result"_s))
        << method.toStdString() << ": " << QJsonDocument(answer).toJson(QJsonDocument::Compact).toStdString()
        << notes().toStdString();
    return answer[u"result"_s];
}

int ScriptClient::errorCode(const QString& method, const QJsonValue& params) {
    const QJsonObject error = ask(method, params)[u"error"_s].toObject();
    EXPECT_FALSE(error[u"message"_s].toString().isEmpty()) << method.toStdString();
    return error[u"code"_s].toInt();
}

int ScriptClient::endInput() {
    process.closeWriteChannel();
    return process.waitForFinished(answerMs) && process.exitStatus() == QProcess::NormalExit
               ? process.exitCode()
               : -1;
}

int ScriptClient::end(int signal) {
    ::kill(static_cast<pid_t>(process.processId()), signal);
    return process.waitForFinished(answerMs) && process.exitStatus() == QProcess::NormalExit
               ? process.exitCode()
               : -1;
}

void ScriptClient::kill() {
    process.kill();
    process.waitForFinished(answerMs);
}

QStringList titlesOf(const QJsonObject& grid) {
    const QJsonArray columns = grid[QStringLiteral("columns")].toArray();
    qsizetype title = 0;
    while (title < columns.size() && columns[title][u"key"] != QStringLiteral("title"))
        ++title;
    QStringList titles;
    const QJsonArray cells = grid[QStringLiteral("cells")].toArray();
    for (const QJsonValue& row : cells)
        titles.append(row[title].toString());
    return titles;
}

}  // namespace wirepane::test

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace wirepane::test {

// Drives a terminal of its own over standard input and output, as a user's script does.
class ScriptClient {
public:
    // Starts the terminal. `arguments` go beside those for automation.
    explicit ScriptClient(const QStringList& arguments);
    ~ScriptClient();

    // Sends a request and waits for its answer: the whole object. Empty when none comes.
    QJsonObject ask(const QString& method, const QJsonValue& params = QJsonObject());
    // The result of a request that must succeed.
    QJsonValue result(const QString& method, const QJsonValue& params = QJsonObject());
    // The code of the error of a request that must fail.
    int errorCode(const QString& method, const QJsonValue& params = QJsonObject());

    // Writes a raw line; reads the next answer.
    void send(const QByteArray& line);
    QJsonObject read();
    // Ends the terminal's input; its exit status once it has ended.
    int endInput();
    // Sends the terminal a signal; its exit status once it has ended, -1: it did not, or not by itself.
    int end(int signal);
    // What the terminal has said on standard error.
    QString notes() { return QString::fromUtf8(process.readAllStandardError()); }
    // Ends the terminal at once, as a crash would.
    void kill();
    bool isRunning() const { return process.state() == QProcess::Running; }

private:
    QProcess process;
    int lastId = 0;
};

// The titles of the rows that "grid.read" has answered with.
QStringList titlesOf(const QJsonObject& grid);

}  // namespace wirepane::test

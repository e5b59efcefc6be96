// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace wirepane::test {

// A PostgreSQL of the test's own: in a temporary folder, as a user without rights, reached by a socket there
// and by no network. Programs of the test find it under the service "floor".
class TestServer {
public:
    TestServer();
    ~TestServer();

    // Whether there is one to start here.
    static bool isInstalled();
    bool start();
    // As a crash of the machine's kernel would not, but a killed process does.
    void kill();
    void stop();

private:
    void run(QProcess& process, const QString& program, const QStringList& arguments);

    QTemporaryDir folder;
    QProcess server;
};

}  // namespace wirepane::test

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/wire/test_server.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace wirepane::test {

namespace {

constexpr uid_t nobody = 65534;
constexpr qint64 patienceMs = 30000;
constexpr unsigned long pauseMs = 50;

QString programs() {
    const QDir versions(u"/usr/lib/postgresql"_s);
    const QStringList found =
        versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed);
    return found.isEmpty() ? QString() : versions.filePath(found.constFirst() + u"/bin/"_s);
}

}  // namespace

TestServer::TestServer() {
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (geteuid() == 0)
        (void)chown(folder.path().toLocal8Bit().constData(), nobody, nobody);
    QProcess making;
    run(making, u"initdb"_s, {u"-D"_s, folder.filePath(u"data"_s), u"-A"_s, u"trust"_s, u"-U"_s, u"wire"_s});
    making.waitForFinished();
    QFile services(folder.filePath(u"services.conf"_s));
    if (services.open(QIODevice::WriteOnly))
        services.write("[floor]\nhost=" + folder.path().toUtf8() + "\nuser=wire\ndbname=postgres\n");
    qputenv("PGSERVICEFILE", services.fileName().toLocal8Bit());
}

TestServer::~TestServer() {
    stop();
}

bool TestServer::isInstalled() {
    return QFile::exists(programs() + u"postgres"_s);
}

// The server starts for nobody who could harm the system.
void TestServer::run(QProcess& process, const QString& program, const QStringList& arguments) {
    process.setChildProcessModifier([] {
        if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0))
            _exit(1);
    });
    process.setWorkingDirectory(folder.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(programs() + program, arguments);
}

bool TestServer::start() {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < patienceMs) {
        // The processes of one that was killed may not have ended yet; then this one ends at once.
        if (server.state() == QProcess::NotRunning)
            run(server, u"postgres"_s,
                {u"-D"_s, folder.filePath(u"data"_s), u"-k"_s, folder.path(), u"-c"_s,
                 u"listen_addresses="_s});
        QProcess asking;
        run(asking, u"pg_isready"_s, {u"-q"_s, u"-h"_s, folder.path()});
        asking.waitForFinished();
        if (asking.exitCode() == 0 && server.state() == QProcess::Running)
            return true;
        server.waitForFinished(pauseMs);
    }
    return false;
}

void TestServer::kill() {
    server.kill();
    server.waitForFinished();
}

void TestServer::stop() {
    if (server.state() == QProcess::NotRunning)
        return;
    ::kill(static_cast<pid_t>(server.processId()), SIGINT);
    server.waitForFinished();
}

}  // namespace wirepane::test

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

namespace wirepane::test {

// The web server of the distribution, in a folder of its own, as whoever runs the program; it serves that
// folder on a port of the loopback that is free.
class NginxServer {
public:
    NginxServer() {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        free = probe.serverPort();
    }
    ~NginxServer() { stop(); }
    NginxServer(const NginxServer&) = delete;
    NginxServer& operator=(const NginxServer&) = delete;

    static QString program() {
        return QStandardPaths::findExecutable(QStringLiteral("nginx"), {QStringLiteral("/usr/sbin")});
    }
    quint16 port() const { return free; }
    QString path(const QString& name) const { return folder.filePath(name); }
    // At once: nobody is served a half.
    bool write(const QString& name, const QByteArray& content) const {
        QSaveFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    }

    // `more`: lines of its configuration, inside the server. False where it does not come up.
    bool start(const QString& more = {}) {
        stop();
        write(
            QStringLiteral("nginx.conf"),
            QStringLiteral("daemon off; master_process off; pid %1/nginx.pid; error_log %1/error.log;\n"
                           "events { worker_connections 64; }\n"
                           "http { access_log %1/access.log; client_body_temp_path %1; proxy_temp_path %1;\n"
                           "fastcgi_temp_path %1; uwsgi_temp_path %1; scgi_temp_path %1;\n"
                           "types { application/rss+xml xml; } gzip on; gzip_types *; gzip_min_length 1;\n"
                           "server { listen 127.0.0.1:%2; root %1;\n%3\n} }\n")
                .arg(folder.path())
                .arg(free)
                .arg(more)
                .toUtf8());
        server.start(program(), {QStringLiteral("-c"), path(QStringLiteral("nginx.conf"))});
        for (QElapsedTimer since; server.state() != QProcess::NotRunning; server.waitForFinished(20)) {
            if (!since.isValid())
                since.start();
            QTcpSocket probe;
            probe.connectToHost(QHostAddress(QHostAddress::LocalHost), free);
            if (probe.waitForConnected(100))
                return true;
            if (since.elapsed() > 10'000)
                break;
        }
        return false;
    }
    void stop() {
        server.kill();
        server.waitForFinished();
    }

private:
    QTemporaryDir folder;
    QProcess server;
    quint16 free = 0;
};

}  // namespace wirepane::test

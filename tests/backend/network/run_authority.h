// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace wirepane {

// An authority that is made for the run (ca.pem), and servers' certificates from it.
class RunAuthority {
public:
    RunAuthority() {
        run(
            QStringLiteral("openssl req -x509 -newkey rsa:2048 -nodes -keyout ca.key -out ca.pem -days 9 "
                           "-subj /CN=ca"));
    }

    // NAME.pem and NAME.key, for this host; `days`: "-days 5".
    void make(const QString& name, const QString& host, const QString& days) {
        run(QStringLiteral("openssl req -newkey rsa:2048 -nodes -keyout %1.key -subj /CN=%2 -out %1.csr && "
                           "printf 'subjectAltName=DNS:%2' > %1.ext && "
                           "openssl x509 -req -in %1.csr -CA ca.pem -CAkey ca.key -CAcreateserial %3 "
                           "-extfile %1.ext -out %1.pem")
                .arg(name, host, days));
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    QByteArray bytes(const QString& name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

private:
    void run(const QString& command) {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral("sh"), {QStringLiteral("-c"), command + QStringLiteral(" 2>/dev/null")});
        process.waitForFinished();
        EXPECT_EQ(process.exitCode(), 0) << command.toStdString();
    }

    QTemporaryDir folder;
};

}  // namespace wirepane

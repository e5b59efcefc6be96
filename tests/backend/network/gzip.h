// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QProcess>

namespace wirepane::test {

// As the coding "gzip" has it, of so many times the same byte.
inline QByteArray gzipOf(qsizetype count) {
    QProcess gzip;
    gzip.start(QStringLiteral("sh"),
               {QStringLiteral("-c"), QStringLiteral("head -c %1 /dev/zero | gzip -9").arg(count)});
    gzip.waitForFinished();
    return gzip.readAllStandardOutput();
}

}  // namespace wirepane::test

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/secret_file.h"

#include "terminal/sources/source_errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace wirepane {

namespace {

// Of the file that is open, whatever its name leads to meanwhile.
bool isTheUsersAlone(const QFile& file) {
#ifdef Q_OS_UNIX
    struct stat status {};
    return ::fstat(file.handle(), &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
#else
    constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    return (file.permissions() & others) == 0;
#endif
}

}  // namespace

Result<QString> readSecretFile(const QString& path) {
    QFile file(path);
    // A pipe would wait for a writer.
    if (!QFileInfo(path).isFile())
        return makeError<source_errors::secretFileMissing>(QDir::toNativeSeparators(path));
    if (!file.open(QIODevice::ReadOnly))
        return makeError<source_errors::secretFileNotRead>(QDir::toNativeSeparators(path),
                                                           file.errorString());
    if (!isTheUsersAlone(file))
        return makeError<source_errors::secretFileOpen>(QDir::toNativeSeparators(path));
    QString secret = QString::fromUtf8(file.read(largestSecret));
    while (secret.endsWith(u'\n') || secret.endsWith(u'\r'))
        secret.chop(1);
    return secret;
}

Done writeSecretFile(const QString& path, const QString& secret) {
    const QString folder = QFileInfo(path).absolutePath();
    QSaveFile file(path);
    const bool isWritten =
        (QFileInfo(folder).isDir() ||
         (QDir().mkpath(folder) &&
          QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))) &&
        file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
        file.write(secret.toUtf8()) >= 0 && file.commit();
    if (isWritten)
        return Nothing{};
    return makeError<source_errors::secretFileNotWritten>(QDir::toNativeSeparators(path), file.errorString());
}

}  // namespace wirepane

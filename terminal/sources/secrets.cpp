// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/secrets.h"

#include "terminal/sources/keychain.h"
#include "terminal/sources/secret_file.h"
#include "terminal/sources/source_errors.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr auto filePrefix = "file:"_L1;

}  // namespace

Secrets::Secrets(Keychain& systemKeychain, QString filesFolder)
    : keychain(systemKeychain), folder(std::move(filesFolder)) {}

QString secretsFolder() {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).filePath(u"secrets"_s);
}

// Names come from outside: none of them is part of a path.
QString Secrets::fileOf(const QString& name) const {
    const QByteArray digest = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QDir(folder).filePath(QString::fromLatin1(digest.left(32)) + u".secret"_s);
}

void Secrets::find(const QString& name, const Found& found) {
    if (name.startsWith(filePrefix))
        found(readSecretFile(name.sliced(filePrefix.size())));
    else
        keychain.read(name, found);
}

void Secrets::keep(const QString& name, const QString& secret, const Found& found) {
    keychain.write(name, secret, [name, secret, found, file = fileOf(name)](const Done& kept) {
        if (kept) {
            found(name);
            return;
        }
        const Done written = writeSecretFile(file, secret);
        found(written ? Result<QString>(filePrefix + file) : Result<QString>(written.error()));
    });
}

void Secrets::forget(const QString& name, const std::function<void(const Done&)>& finished) {
    if (!name.startsWith(filePrefix)) {
        keychain.remove(name, finished);
        return;
    }
    const QFileInfo info(name.sliced(filePrefix.size()));
    QFile file(info.filePath());
    const bool isOurs = info.absolutePath() == QDir(folder).absolutePath();
    const bool stays = isOurs && info.exists() && !file.remove();
    finished(stays ? Done(makeError<source_errors::secretFileNotRemoved>(
                         QDir::toNativeSeparators(info.filePath()), file.errorString()))
                   : Done(Nothing{}));
}

}  // namespace wirepane

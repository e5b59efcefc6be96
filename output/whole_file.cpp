// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/whole_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

std::optional<QString> WriteWholeFile(const QString& file, const QByteArray& bytes,
                                      QIODevice::OpenMode mode) {
    // A device, a pipe: written to, not replaced.
    const QFileInfo existing(file);
    if (existing.exists() && !existing.isFile() && !existing.isDir()) {
        QFile device(file);
        if (device.open(QIODevice::WriteOnly | mode) && device.write(bytes) == bytes.size() && device.flush())
            return std::nullopt;
        return device.errorString();
    }
    QSaveFile whole(file);
    if (whole.open(QIODevice::WriteOnly | mode)) {
        whole.write(bytes);
        if (whole.commit())
            return std::nullopt;
    }
    return whole.errorString();
}

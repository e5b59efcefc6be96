// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/whole_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace wirepane {

namespace {

// A disk that fills up takes a part without an error: the rest meets it.
bool writeAll(QIODevice& device, const QByteArray& bytes) {
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 written = device.write(bytes.constData() + done, bytes.size() - done);
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}

}  // namespace

std::optional<QString> writeWholeFile(const QString& file, const QByteArray& bytes,
                                      QIODevice::OpenMode mode) {
    // A device, a pipe: written to, not replaced.
    const QFileInfo existing(file);
    if (existing.exists() && !existing.isFile() && !existing.isDir()) {
        QFile device(file);
        if (device.open(QIODevice::WriteOnly | mode) && writeAll(device, bytes) && device.flush())
            return std::nullopt;
        return device.errorString();
    }
    QSaveFile whole(file);
    // Flushed first: the part that is still in memory may be what the disk has no room for.
    if (whole.open(QIODevice::WriteOnly | mode) && writeAll(whole, bytes) && whole.flush() && whole.commit())
        return std::nullopt;
    return whole.errorString();
}

}  // namespace wirepane

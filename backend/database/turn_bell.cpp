// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/turn_bell.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace wirepane {

QByteArray turnFileOf(const QString& databasePath) {
    return QFile::encodeName(databasePath) + "-import";
}

// The time of the file is the bell: it needs no room, and nobody who dies leaves it ringing.
void ringForTurn(const QString& databasePath) {
    utimensat(AT_FDCWD, turnFileOf(databasePath).constData(), nullptr, AT_SYMLINK_NOFOLLOW);
}

std::int64_t TurnBell::lastRing() const {
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    struct stat file {};
    return lstat(path.constData(), &file) == 0 ? file.st_mtim.tv_sec * nanoseconds + file.st_mtim.tv_nsec : 0;
}

}  // namespace wirepane

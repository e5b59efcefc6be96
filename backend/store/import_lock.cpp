// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/import_lock.h"

#include "backend/database/turn_bell.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wirepane {

namespace {

// Who had the lock before may have removed the file that was opened.
bool isStillThere(int file, const QByteArray& path) {
    struct stat opened {};
    struct stat named {};
    return fstat(file, &opened) == 0 && lstat(path.constData(), &named) == 0 &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

}  // namespace

ImportLock::ImportLock(const QString& storePath) : path(turnFileOf(storePath)) {}

ImportLock::Taken ImportLock::take() {
    if (isHeld())
        return Taken::Yes;
    file = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (file < 0)
        return Taken::No;
    if (flock(file, LOCK_EX | LOCK_NB) == 0 && isStillThere(file, path))
        return Taken::Yes;
    close(file);
    file = -1;
    return Taken::Busy;
}

void ImportLock::release() {
    if (!isHeld())
        return;
    unlink(path.constData());
    close(file);
    file = -1;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/open_elsewhere.h"

#include <QFile>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace wirepane {

// Linux refuses a reading lease on a file that anybody has open for writing.
bool isOpenForWriting([[maybe_unused]] const QString& path) {
#ifdef Q_OS_LINUX
    // Whoever opens the file while the lease is held makes the system send a signal that ends the program.
    [[maybe_unused]] static const auto ignored = std::signal(SIGIO, SIG_IGN);
    const int file =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool isFree = fcntl(file, F_SETLEASE, F_RDLCK) == 0;
    const bool isWritten = !isFree && errno == EAGAIN;
    if (isFree)
        fcntl(file, F_SETLEASE, F_UNLCK);
    close(file);
    return isWritten;
#else
    return false;
#endif
}

}  // namespace wirepane

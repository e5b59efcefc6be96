// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/standard_channel.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace wirepane {

StandardChannel::StandardChannel(QObject* parent)
    : LineChannel(parent), output(dup(STDOUT_FILENO)), notifier(STDIN_FILENO, QSocketNotifier::Read) {
    dup2(STDERR_FILENO, STDOUT_FILENO);
    // A reader that is gone must not end the program.
    std::signal(SIGPIPE, SIG_IGN);
    connect(&notifier, &QSocketNotifier::activated, this, &StandardChannel::read);
}

StandardChannel::~StandardChannel() {
    if (output >= 0)
        close(output);
}

void StandardChannel::read() {
    std::array<char, chunk> buffer;
    const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count > 0) {
        received(QByteArray(buffer.data(), count));
    } else if (count == 0 || (errno != EINTR && errno != EAGAIN)) {
        hasEnded = true;
        notifier.setEnabled(false);
        receivedAll();
    }
}

void StandardChannel::heldChanged() {
    notifier.setEnabled(!isHeld() && !hasEnded);
}

void StandardChannel::send(const QByteArray& line) {
    qsizetype sent = 0;
    while (sent < line.size()) {
        const ssize_t count =
            ::write(output, line.constData() + sent, static_cast<std::size_t>(line.size() - sent));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            if (lostBy == 0 && errno != EPIPE)
                lostBy = errno;
            return;
        }
        sent += count;
    }
}

}  // namespace wirepane

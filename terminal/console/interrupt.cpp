// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/console/interrupt.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <utility>

namespace wirepane {

namespace {

std::function<void()> onInterrupt;

void handle(int) {
    onInterrupt();
}

// A signal may do little; what it writes here wakes the event loop.
int signalPipe[2] = {-1, -1};
constexpr int endSignals[] = {SIGINT, SIGTERM, SIGHUP};

void wakeEventLoop(int) {
    const int before = errno;
    const char any = 0;
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &any, 1);
    errno = before;
}

void handleEndSignals(void (*handler)(int)) {
    for (const int signal : endSignals) {
        struct sigaction present {};
        sigaction(signal, nullptr, &present);
        if (present.sa_handler == SIG_IGN)
            continue;
        struct sigaction wanted {};
        wanted.sa_handler = handler;
        wanted.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
        sigaction(signal, &wanted, nullptr);
    }
}

volatile std::sig_atomic_t signalHasCome = 0;

void noteSignal(int) {
    signalHasCome = 1;
}

// Within so many milliseconds; a signal ends the waiting.
bool isReaderGone(int ms) {
    pollfd output{STDOUT_FILENO, 0, 0};
    return poll(&output, 1, ms) > 0 && (output.revents & (POLLERR | POLLHUP)) != 0;
}

}  // namespace

OnInterrupt::OnInterrupt(std::function<void()> action) {
    onInterrupt = std::move(action);
    std::signal(SIGINT, &handle);
    std::signal(SIGTERM, &handle);
}

OnInterrupt::~OnInterrupt() {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    onInterrupt = nullptr;
}

OnEndSignal::OnEndSignal(std::function<void()> action) {
    if (pipe(signalPipe) != 0)
        return;
    for (const int end : signalPipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    notifier = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                     [this, action = std::move(action)] {
                         notifier->setEnabled(false);
                         come = true;
                         action();
                     });
    handleEndSignals(&wakeEventLoop);
}

OnEndSignal::~OnEndSignal() {
    if (!notifier)
        return;
    handleEndSignals(SIG_DFL);
    notifier.reset();
    for (int& end : signalPipe)
        close(std::exchange(end, -1));
}

OutputEnd::OutputEnd() {
    signalHasCome = 0;
    handleEndSignals(&noteSignal);
    std::signal(SIGPIPE, SIG_IGN);
}

OutputEnd::~OutputEnd() {
    handleEndSignals(SIG_DFL);
    std::signal(SIGPIPE, SIG_DFL);
}

bool OutputEnd::hasCome() const {
    return signalHasCome != 0 || isReaderGone(0);
}

void OutputEnd::wait(std::int64_t ms) const {
    constexpr std::int64_t least = 200;
    constexpr std::int64_t most = 5000;
    isReaderGone(static_cast<int>(std::clamp(ms, least, most)));
}

}  // namespace wirepane

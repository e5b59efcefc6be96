// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <cstdint>
#include <functional>
#include <memory>

namespace wirepane {

// While it lives, Ctrl+C and a polite kill call `action` instead of ending the program. One at a time.
class OnInterrupt {
public:
    // `action` runs inside a signal: it may do no more than set an atomic flag.
    explicit OnInterrupt(std::function<void()> action);
    OnInterrupt(const OnInterrupt&) = delete;
    OnInterrupt& operator=(const OnInterrupt&) = delete;
    ~OnInterrupt();
};

// While it lives, Ctrl+C, a polite kill and the end of the user's session (SIGINT, SIGTERM, SIGHUP) call
// `action` from the event loop, so that the program can put its things in order; a second signal ends it at
// once. One that was ignored from the start, as under nohup, still is. One at a time.
class OnEndSignal {
public:
    explicit OnEndSignal(std::function<void()> action);
    OnEndSignal(const OnEndSignal&) = delete;
    OnEndSignal& operator=(const OnEndSignal&) = delete;
    ~OnEndSignal();

    // Whether a signal has come and `action` was called.
    bool hasCome() const { return come; }

private:
    bool come = false;
    std::unique_ptr<QSocketNotifier> notifier;
};

// While it lives, Ctrl+C, a polite kill, the end of the user's session and a reader of standard output who
// has gone do not end the program, which asks for them instead: for commands that print until they are ended.
// A second signal ends it at once. One at a time.
class OutputEnd {
public:
    OutputEnd();
    OutputEnd(const OutputEnd&) = delete;
    OutputEnd& operator=(const OutputEnd&) = delete;
    ~OutputEnd();

    bool hasCome() const;
    // Waits so many milliseconds, at least a moment, or until it has come.
    void wait(std::int64_t ms = 0) const;
};

}  // namespace wirepane

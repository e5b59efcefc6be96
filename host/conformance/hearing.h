// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/conformance/findings.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <chrono>

namespace wirepane {

// Waits in the event loop for what the back end tells. Result: whether it came in time.
template <class HasCome>
bool waitUntil(HasCome hasCome, std::chrono::milliseconds patience) {
    const QDeadlineTimer limit(patience);
    while (!hasCome() && !limit.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return hasCome();
}

// An answer to `request` has come: on the interface thread, and not while it was `sending`.
inline void checkMoment(const QString& request, bool sending, Findings& findings) {
    findings.expect(!sending, request + QStringLiteral(": the answer comes before the request returns."));
    findings.expect(QThread::currentThread() == QCoreApplication::instance()->thread(),
                    request + QStringLiteral(": the answer comes on another thread."));
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/misuse.h"

#include <QCoreApplication>
#include <QThread>

namespace wirepane {

void requireOfHost(bool kept, const char* mistake) {
    if (!kept)
        qFatal("wirepane: %s", mistake);
}

void requireInterfaceThread(const char* operation) {
    const QCoreApplication* application = QCoreApplication::instance();
    if (application != nullptr && QThread::currentThread() != application->thread())
        qFatal(
            "wirepane: %s was called on another thread than the interface thread, that of the application "
            "object.",
            operation);
}

}  // namespace wirepane

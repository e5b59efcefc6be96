// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/process_channel.h"

namespace wirepane {

namespace {
constexpr int killMs = 5000;
}

ProcessChannel::ProcessChannel(const QString& program, const QStringList& arguments) {
    connect(&process, &QProcess::readyReadStandardOutput, this, &ProcessChannel::read);
    connect(&process, &QProcess::finished, this, &ProcessChannel::stop);
    connect(&process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            stop();
    });
    process.start(program, arguments);
}

ProcessChannel::~ProcessChannel() {
    process.disconnect(this);
    process.kill();
    process.waitForFinished(killMs);
}

void ProcessChannel::send(const QByteArray& line) {
    process.write(line);
}

void ProcessChannel::read() {
    while (!isHeld() && process.bytesAvailable() > 0)
        received(process.read(chunk));
}

void ProcessChannel::heldChanged() {
    if (!isHeld())
        QMetaObject::invokeMethod(this, &ProcessChannel::read, Qt::QueuedConnection);
}

void ProcessChannel::stop() {
    if (isOver)
        return;
    isOver = true;
    read();
    receivedAll();
    const QString words = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    emit stopped(words.isEmpty() ? process.errorString() : words);
}

}  // namespace wirepane

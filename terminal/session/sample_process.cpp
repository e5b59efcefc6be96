// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/sample_process.h"

#include "terminal/session/session_errors.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int noLimit = -1;
constexpr int killMs = 5000;

QString momentOf(std::int64_t seconds) {
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate);
}

}  // namespace

SampleProcess::SampleProcess(const SampleOptions& options) {
    const QDir programFolder(QCoreApplication::applicationDirPath());
    process.start(
        programFolder.filePath(QStringLiteral(WIREPANE_SAMPLE_WIRE_FILE)),
        {u"--seed"_s, QString::number(options.seed), u"--days"_s, QString::number(options.days),
         u"--per-day"_s, QString::number(options.headlinesPerDay), u"--now"_s, momentOf(options.now)});
    process.closeWriteChannel();
    process.waitForStarted(noLimit);
}

SampleProcess::~SampleProcess() {
    process.kill();
    process.waitForFinished(killMs);
}

std::optional<QByteArray> SampleProcess::nextLine() {
    while (!process.canReadLine())
        if (!process.waitForReadyRead(noLimit))
            break;
    if (!process.canReadLine())
        return std::nullopt;
    return process.readLine();
}

Done SampleProcess::end() {
    if (process.error() == QProcess::FailedToStart)
        return makeError<session_errors::sampleNotStarted>(process.program(), process.errorString());
    process.waitForFinished(noLimit);
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return Nothing{};
    const QString words = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return words.isEmpty() ? makeError<session_errors::sampleBrokeOffSilently>()
                           : makeError<session_errors::sampleBrokeOff>(words);
}

}  // namespace wirepane

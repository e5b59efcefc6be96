// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/sample_process.h"

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
        return Error{
            u"The sample wire %1 cannot be started: %2"_s.arg(process.program(), process.errorString())};
    process.waitForFinished(noLimit);
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return Nothing{};
    const QString words = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return Error{u"The sample wire broke off. %1"_s.arg(words).trimmed()};
}

}  // namespace wirepane

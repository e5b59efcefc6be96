// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/sample_process.h"

#include "backend/feed/feed_line.h"
#include "backend/feed/program_source.h"
#include "terminal/session/session_errors.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

#include <utility>
#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int noLimit = -1;
constexpr int killMs = 5000;
constexpr unsigned char ownService = 1;  // of records that name none; those of the wire do

QString momentOf(std::int64_t seconds) {
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate);
}

QString programFile() {
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral(WIREPANE_SAMPLE_WIRE_FILE));
}

QStringList argumentsOf(const SampleOptions& options) {
    return {u"--seed"_s,      QString::number(options.seed),
            u"--days"_s,      QString::number(options.days),
            u"--per-day"_s,   QString::number(options.headlinesPerDay),
            u"--leave-out"_s, QString::number(options.leftOut),
            u"--now"_s,       momentOf(options.now)};
}

}  // namespace

SampleProcess::SampleProcess(const SampleOptions& options) {
    process.start(programFile(), argumentsOf(options));
    process.closeWriteChannel();
    process.waitForStarted(noLimit);
}

SampleProcess::~SampleProcess() {
    process.kill();
    process.waitForFinished(killMs);
}

std::optional<Result<StoreItem>> SampleProcess::nextItem() {
    while (const auto line = nextLine()) {
        FeedLine parsed = parsedFeedLine(*line, ownService);
        if (auto* record = std::get_if<FeedRecord>(&parsed))
            return std::move(record->item);
    }
    return std::nullopt;
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

std::shared_ptr<FeedSource> followedSample(const SampleOptions& options) {
    return std::make_shared<ProgramSource>(u"wirepane-sample-wire"_s, programFile(),
                                           argumentsOf(options) + QStringList{u"--follow"_s});
}

}  // namespace wirepane

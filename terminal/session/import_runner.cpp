// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/import_runner.h"

#include "host/contract/clock.h"
#include "terminal/console/exit_status.h"
#include "terminal/translations/shown_text.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int patienceMs = 3000;  // with a program that has been told to end
// Of a file with a million faults nobody reads more.
constexpr qsizetype mostNotes = 200'000;  // bytes

ImportOutcome::Kind kindOf(int status, bool stopped) {
    if (status == exitDone)
        return ImportOutcome::Complete;
    if (stopped)
        return ImportOutcome::Cancelled;
    return status == exitPartly ? ImportOutcome::Partial : ImportOutcome::Failed;
}

}  // namespace

ImportRunner::ImportRunner(const QString& program, QObject* parent) : QObject(parent) {
    process.setProgram(program);
    process.setStandardInputFile(QProcess::nullDevice());
    connect(&process, &QProcess::readyReadStandardError, this, &ImportRunner::hear);
    connect(&process, &QProcess::finished, this, &ImportRunner::finish);
    connect(&process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            emit finished({ImportOutcome::NotStarted,
                           {QDir::toNativeSeparators(process.program()) + u": "_s + process.errorString()}});
    });
}

ImportRunner::~ImportRunner() {
    process.disconnect(this);
    if (!isRunning())
        return;
    process.terminate();
    if (process.waitForFinished(patienceMs))
        return;
    process.kill();
    process.waitForFinished();
}

void ImportRunner::start(const QString& storeFile, const QStringList& files) {
    // Absolute paths cannot be taken for options.
    QStringList arguments{
        u"import"_s,  u"--values"_s,
        u"--now"_s,   QDateTime::fromSecsSinceEpoch(host_clock::now()).toString(Qt::ISODate),
        u"--store"_s, QFileInfo(storeFile).absoluteFilePath()};
    for (const QString& file : files)
        arguments.append(QFileInfo(file).absoluteFilePath());
    stopped = false;
    notes.clear();
    leftOut = 0;
    process.setArguments(arguments);
    process.start();
}

void ImportRunner::stop() {
    if (!isRunning() || stopped)
        return;
    stopped = true;
    process.terminate();
    // It is this import's end that is waited for, not that of a later one.
    auto* patience = new QTimer(&process);
    patience->setSingleShot(true);
    connect(patience, &QTimer::timeout, &process, &QProcess::kill);
    connect(&process, &QProcess::finished, patience, &QObject::deleteLater);
    patience->start(patienceMs);
}

// In whole lines: the rest of a line that is begun is taken with its end.
void ImportRunner::hear() {
    process.setReadChannel(QProcess::StandardError);
    while (process.canReadLine() || (!isRunning() && process.bytesAvailable() > 0)) {
        const QByteArray line = process.readLine();
        if (notes.size() < mostNotes)
            notes += line;
        else
            ++leftOut;
    }
}

void ImportRunner::finish(int status, QProcess::ExitStatus exit) {
    const bool crashed = exit == QProcess::CrashExit;
    hear();
    std::vector<QJsonValue> said;
    const QString lines = QString::fromLocal8Bit(process.readAllStandardOutput() + notes);
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts))
        said.push_back(valueFrom(line));
    if (crashed && !stopped)
        said.emplace_back(process.errorString());
    emit finished({kindOf(crashed ? exitUnusable : status, stopped), said, leftOut});
}

}  // namespace wirepane

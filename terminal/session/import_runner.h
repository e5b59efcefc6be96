// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QObject>
#include <QProcess>
#include <QStringList>

#include <vector>

namespace wirepane {

struct ImportOutcome {
    enum Kind {
        Complete,    // everything was taken in or was there already
        Partial,     // something was rejected
        Failed,      // no file could be read, or the store failed, or the program crashed
        Cancelled,   // by stop()
        NotStarted,  // there is no program
    };

    Kind kind = Complete;
    // What the program said, a line each: the totals first, then what was rejected and why. Values of errors,
    // or texts as they are (terminal/translations/shown_text.h).
    std::vector<QJsonValue> said;
    qint64 leftOut = 0;  // further lines
};

// Takes files into a store by running the import command as a program of its own, one import at a time.
// Whatever ends it, each file has been taken in as a whole or not at all.
class ImportRunner : public QObject {
    Q_OBJECT

public:
    // `program` is the one that knows the command.
    explicit ImportRunner(const QString& program, QObject* parent = nullptr);
    // Ends the import that is running, and waits for that.
    ~ImportRunner() override;

    bool isRunning() const { return process.state() != QProcess::NotRunning; }
    // Not while one is running.
    void start(const QString& storeFile, const QStringList& files);
    // Gives up the file that is being read; finished() follows.
    void stop();

signals:
    void finished(const wirepane::ImportOutcome& outcome);

private:
    void hear();
    void finish(int status, QProcess::ExitStatus exit);

    QProcess process;
    QByteArray notes;
    qint64 leftOut = 0;  // lines
    bool stopped = false;
};

}  // namespace wirepane

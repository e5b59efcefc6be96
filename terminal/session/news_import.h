// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/session/import_runner.h"

#include <QPointer>
#include <QProgressDialog>

#include <functional>

namespace wirepane {

// What the user sees of taking files into the store: which files, that it takes its time, and what came of
// it. The terminal goes on meanwhile.
class NewsImport : public QObject {
    Q_OBJECT

public:
    // The window, which is not owned, is that over which the dialogs stand; it outlives this. `program` knows
    // the import command.
    // `picked` is given the files that the user picks.
    NewsImport(const QString& storeFile, QWidget& window, const QString& program,
               std::function<void(const QStringList&)> picked);

    // Lets the user pick files. While an import runs, that is shown instead.
    void ask();
    // Not while an import is running.
    void takeIn(const QStringList& files);

signals:
    // The user wants to read what was taken in, at its moment (seconds since 1970, UTC).
    void readAsOfAsked(std::int64_t moment);

private:
    void showOutcome(const ImportOutcome& outcome);

    QString storeFile;
    std::function<void(const QStringList&)> picked;
    QWidget& window;
    ImportRunner runner;
    QPointer<QProgressDialog> progress;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/news_import.h"

#include "host/controls/heap_dialog.h"
#include "terminal/frame/import_report_dialog.h"
#include "terminal/translations/terminal_text.h"

#include <QFileDialog>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int silentMs = 500;  // a shorter import shows no progress

QStringList fileFilters() {
    const QString records = u"*.json *.jsonl *.ndjson *.ninjs"_s;
    const QString markup = u"*.xml *.rss *.rdf *.atom *.newsml"_s;
    const QString tables = u"*.csv *.txt"_s;
    return {terminalText(TextId::ImportAllKinds) + u" (%1 %2 %3)"_s.arg(records, markup, tables),
            u"ninjs (%1)"_s.arg(records), u"RSS, Atom, NewsML-G2 (%1)"_s.arg(markup),
            terminalText(TextId::ImportTables) + u" (%1)"_s.arg(tables),
            terminalText(TextId::ImportAnyFile) + u" (*)"_s};
}

TextId headlineOf(ImportOutcome::Kind kind) {
    switch (kind) {
        case ImportOutcome::Complete:
            return TextId::ImportComplete;
        case ImportOutcome::Partial:
            return TextId::ImportPartial;
        case ImportOutcome::Cancelled:
            return TextId::ImportCancelled;
        case ImportOutcome::NotStarted:
            return TextId::ImportNotStarted;
        case ImportOutcome::Failed:
            break;
    }
    return TextId::ImportFailed;
}

}  // namespace

NewsImport::NewsImport(const QString& storeFileName, QWidget& over, const QString& program)
    : storeFile(storeFileName), window(over), runner(program) {
    connect(&runner, &ImportRunner::finished, this, &NewsImport::showOutcome);
}

void NewsImport::ask() {
    if (runner.isRunning()) {
        if (progress != nullptr) {
            progress->show();
            progress->raise();
            progress->activateWindow();
        }
        return;
    }
    const HeapDialog dialog(new QFileDialog(&window, terminalText(TextId::ImportTitle)));
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters(fileFilters());
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    if (dialog->exec() == QDialog::Accepted && !dialog->selectedFiles().isEmpty())
        takeIn(dialog->selectedFiles());
}

void NewsImport::takeIn(const QStringList& files) {
    progress =
        new QProgressDialog(terminalText(TextId::ImportRunning), terminalText(TextId::Cancel), 0, 0, &window);
    progress->setWindowTitle(terminalText(TextId::ImportTitle));
    connect(progress, &QProgressDialog::canceled, &runner, &ImportRunner::stop);
    QTimer::singleShot(silentMs, progress, [this] {
        if (!progress->wasCanceled())
            progress->show();
    });
    runner.start(storeFile, files);
}

void NewsImport::showOutcome(const ImportOutcome& outcome) {
    delete progress;
    QString said = outcome.said;
    if (outcome.leftOut > 0)
        said += u'\n' + terminalText(TextId::ImportLeftOut).arg(outcome.leftOut);
    auto* report = new ImportReportDialog(terminalText(headlineOf(outcome.kind)), said,
                                          outcome.kind != ImportOutcome::Complete, &window);
    report->setAttribute(Qt::WA_DeleteOnClose);
    report->show();
}

}  // namespace wirepane

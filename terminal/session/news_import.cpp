// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/news_import.h"

#include "backend/clean_text.h"
#include "backend/import/source_formats.h"
#include "host/controls/heap_dialog.h"
#include "terminal/frame/import_report_dialog.h"
#include "terminal/session/import_report.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QFileDialog>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int silentMs = 500;  // a shorter import shows no progress

QStringList fileFilters() {
    QStringList patterns;
    QStringList filters;
    for (const SourceFormat& format : sourceFormats()) {
        patterns += format.patterns.toString().split(u' ');
        filters += u"%1 (%2)"_s.arg(format.name, format.patterns);
    }
    patterns.removeDuplicates();
    filters.prepend(u"%1 (%2)"_s.arg(terminalText(TextId::ImportAllKinds), patterns.join(u' ')));
    return filters << terminalText(TextId::ImportAnyFile) + u" (*)"_s;
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

NewsImport::NewsImport(const QString& storeFileName, QWidget& over, const QString& program,
                       std::function<void(const QStringList&)> takePicked)
    : storeFile(storeFileName), picked(std::move(takePicked)), window(over), runner(program) {
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
        picked(dialog->selectedFiles());
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
    QStringList said;
    QDateTime moment;
    for (const QJsonValue& line : outcome.said) {
        const bool isOld = line["code"_L1].toString() == QLatin1StringView(import_report::nothingRecent.key);
        if (isOld)
            moment = QDateTime::fromString(line["arguments"_L1][0].toString(), Qt::ISODate);
        said += isOld ? terminalText(TextId::ImportNothingRecent) : escapedText(shownText(line));
    }
    if (outcome.leftOut > 0)
        said += countText(TextId::ImportLeftOut, outcome.leftOut);
    auto* report = new ImportReportDialog(terminalText(headlineOf(outcome.kind)), said.join(u'\n'),
                                          outcome.kind != ImportOutcome::Complete, &window);
    report->setAttribute(Qt::WA_DeleteOnClose);
    if (moment.isValid())
        report->offerReadingAsOf(moment);
    connect(report, &ImportReportDialog::readAsOfAsked, this, &NewsImport::readAsOfAsked);
    report->show();
}

}  // namespace wirepane

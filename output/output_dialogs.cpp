// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/output_dialogs.h"

#include "headline_list/language_keys.h"
#include "host/controls/heap_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>

namespace wirepane {

bool OutputDialogs::askPrinter(QPrinter& printer, QWidget* parent) {
    printer.setCollateCopies(true);
    const bool toFile = QPrinterInfo::availablePrinters().isEmpty();
    // But under X the dialog would propose a folder, which it then refuses.
    if (toFile && printer.outputFileName().isEmpty())
        printer.setOutputFileName(QDir::home().filePath(QStringLiteral("news.pdf")));
    const HeapDialog dialog(new QPrintDialog(&printer, parent));
    dialog->setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog->setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog->setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog->setOption(QAbstractPrintDialog::PrintCollateCopies, true);
    dialog->setOption(QAbstractPrintDialog::PrintToFile, toFile);
    return dialog->exec() == QDialog::Accepted;
}

void OutputDialogs::proposeName(const QString& name) {
    constexpr qsizetype longest = 60;
    static const QRegularExpression untaken(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]+"));
    proposal = QString(name).replace(untaken, QStringLiteral(" ")).left(longest).simplified();
}

std::optional<OutputTarget> OutputDialogs::askFile(BKQuoteInterface& backEnd, QWidget* parent) {
    const QString pattern = QStringLiteral(" (*.txt)");
    const QString utf8Filter = langText(backEnd, keys::utf8FileFilter) + pattern;
    const HeapDialog dialog(new QFileDialog(parent));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setNameFilters({langText(backEnd, keys::fileFilter) + pattern, utf8Filter});
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    if (!proposal.isEmpty())
        dialog->selectFile(proposal + QStringLiteral(".txt"));
    if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty())
        return std::nullopt;
    return OutputTarget{
        dialog->selectedFiles().constFirst(),
        dialog->selectedNameFilter() == utf8Filter ? NewsFileType::Utf8 : NewsFileType::CodePage950,
        {}};
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/output_dialogs.h"

#include "headline_list/language_keys.h"

#include <QFileDialog>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

bool OutputDialogs::bAskPrinter(QPrinter& printer, QWidget* parent) {
    printer.setCollateCopies(true);
    const QPointer<QPrintDialog> dialog = new QPrintDialog(&printer, parent);
    dialog->setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog->setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog->setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog->setOption(QAbstractPrintDialog::PrintCollateCopies, true);
    dialog->setOption(QAbstractPrintDialog::PrintToFile, QPrinterInfo::availablePrinters().isEmpty());
    const bool accepted = dialog->exec() == QDialog::Accepted && !dialog.isNull();
    delete dialog;
    return accepted;
}

std::optional<OutputTarget> OutputDialogs::AskFile(BKQuoteInterface& backEnd, QWidget* parent) {
    const QString pattern = QStringLiteral(" (*.txt)");
    const QString utf8Filter = LangText(backEnd, keys::utf8FileFilter) + pattern;
    const QPointer<QFileDialog> dialog = new QFileDialog(parent);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setNameFilters({LangText(backEnd, keys::fileFilter) + pattern, utf8Filter});
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    const bool accepted = dialog->exec() == QDialog::Accepted && !dialog.isNull();
    std::optional<OutputTarget> target;
    if (accepted && !dialog->selectedFiles().isEmpty())
        target = OutputTarget{
            dialog->selectedFiles().constFirst(),
            dialog->selectedNameFilter() == utf8Filter ? NewsFileType::Utf8 : NewsFileType::CodePage950,
            {}};
    delete dialog;
    return target;
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QDialog>

class QDialogButtonBox;

namespace wirepane {

// Tells what an import has come to.
class ImportReportDialog : public QDialog {
    Q_OBJECT

public:
    // `headline` is a sentence, `details` plain text of any length that can be scrolled and copied; empty:
    // there are none. `warns`: not everything went well.
    ImportReportDialog(const QString& headline, const QString& details, bool warns,
                       QWidget* parent = nullptr);

    // Adds a button that goes to the moment of news that is too old for the lists of today.
    void offerReadingAsOf(const QDateTime& moment);

signals:
    void readAsOfAsked(std::int64_t moment);

private:
    QDialogButtonBox* buttons;
};

}  // namespace wirepane

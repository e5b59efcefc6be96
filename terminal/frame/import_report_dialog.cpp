// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/import_report_dialog.h"

#include "backend/error.h"
#include "host/controls/line_icon.h"
#include "terminal/translations/terminal_text.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace wirepane {

namespace {

constexpr int widthInCharacters = 76;
constexpr int signSize = 24;
constexpr int fewestLines = 3;
constexpr int mostLines = 12;  // more are scrolled

QLayout* headlineRow(const QString& headline, bool warns) {
    auto* sign = new QLabel;
    sign->setPixmap(
        lineIcon(warns ? LineIcon::Warning : LineIcon::Check, QPalette::WindowText).pixmap(signSize));
    auto* text = new QLabel(headline);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(sign);
    row->addWidget(text, 1);
    return row;
}

QPlainTextEdit* detailsText(const QString& details, const QString& name) {
    auto* text = new QPlainTextEdit(details);
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setTabChangesFocus(true);
    text->setAccessibleName(name);
    text->ensurePolished();
    // One line more than there are breaks, and room for two that are folded.
    const int lines = qBound(fewestLines, static_cast<int>(details.count(u'\n')) + 3, mostLines);
    text->setMinimumHeight(text->fontMetrics().lineSpacing() * lines + 2 * text->frameWidth() + 8);
    return text;
}

}  // namespace

ImportReportDialog::ImportReportDialog(const QString& headline, const QString& details, bool warns,
                                       QWidget* parent)
    : QDialog(parent), buttons(new QDialogButtonBox(QDialogButtonBox::Ok)) {
    setWindowTitle(terminalText(TextId::ImportTitle));
    buttons->button(QDialogButtonBox::Ok)->setText(terminalText(TextId::CloseButton));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addLayout(headlineRow(headline, warns));
    if (!details.isEmpty())
        column->addWidget(detailsText(details, headline), 1);
    column->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * widthInCharacters);
    // A text's own idea of its height is that of many lines.
    resize(minimumSizeHint().expandedTo(minimumSize()));
    buttons->button(QDialogButtonBox::Ok)->setFocus();
}

void ImportReportDialog::offerReadingAsOf(const QDateTime& moment) {
    const QDate day = moment.date();
    const QString text = filledIn(terminalText(TextId::ImportReadAsOf),
                                  {QString::number(day.year()), QString::number(day.month()),
                                   QString::number(day.day()), QLocale().standaloneMonthName(day.month())});
    auto* button = buttons->addButton(text, QDialogButtonBox::ActionRole);
    connect(button, &QPushButton::clicked, this, [this, moment] {
        accept();
        emit readAsOfAsked(moment.toSecsSinceEpoch());
    });
    button->setDefault(true);
    button->setFocus();
}

}  // namespace wirepane

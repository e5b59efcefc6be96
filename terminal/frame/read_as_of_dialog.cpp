// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/read_as_of_dialog.h"

#include "host/contract/clock.h"
#include "terminal/frame/dialog_buttons.h"
#include "terminal/translations/terminal_text.h"

#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace wirepane {

ReadAsOfDialog::ReadAsOfDialog(QWidget* parent) : QDialog(parent) {
    setWindowTitle(terminalText(TextId::ReadAsOfTitle));
    auto* explanation = new QLabel(terminalText(TextId::ReadAsOfExplanation));
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    edit = new QDateTimeEdit(QDateTime::fromSecsSinceEpoch(host_clock::now()));
    edit->setAccessibleName(windowTitle());
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(u"yyyy/MM/dd HH:mm"_s);
    QDialogButtonBox* buttons = dialogButtons(*this, TextId::ReadAsOfRead);
    auto* now = buttons->addButton(terminalText(TextId::ReadAsOfNow), QDialogButtonBox::ResetRole);
    connect(now, &QPushButton::clicked, edit, [this] { edit->setDateTime(QDateTime::currentDateTime()); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(explanation);
    column->addWidget(edit);
    column->addWidget(buttons);
    edit->setFocus();
}

std::int64_t ReadAsOfDialog::moment() const {
    return edit->dateTime().toSecsSinceEpoch();
}

}  // namespace wirepane

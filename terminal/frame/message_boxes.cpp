// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/message_boxes.h"

#include "terminal/translations/terminal_text.h"

#include <QPushButton>

namespace wirepane {

namespace {

QMessageBox* box(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& verb,
                 QMessageBox::StandardButtons buttons) {
    auto* made = new QMessageBox(icon, terminalText(TextId::AppTitle), text, buttons, parent);
    made->setTextFormat(Qt::PlainText);
    made->button(QMessageBox::Ok)->setText(verb);
    return made;
}

}  // namespace

QMessageBox* tellingBox(QWidget* parent, QMessageBox::Icon icon, const QString& text) {
    return box(parent, icon, text, terminalText(TextId::CloseButton), QMessageBox::Ok);
}

QMessageBox* askingBox(QWidget* parent, const QString& question, const QString& verb) {
    QMessageBox* made =
        box(parent, QMessageBox::Question, question, verb, QMessageBox::Ok | QMessageBox::Cancel);
    made->button(QMessageBox::Cancel)->setText(terminalText(TextId::Cancel));
    return made;
}

}  // namespace wirepane

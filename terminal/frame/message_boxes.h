// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

namespace wirepane {

// The terminal's own boxes: titled with its name, their text as it stands, verbs on their buttons. Whoever
// makes one shows it; a parent owns it.

// Tells something; its button closes it.
QMessageBox* tellingBox(QWidget* parent, QMessageBox::Icon icon, const QString& text);
// Asks whether to do what its button says; the other one leaves it. QMessageBox::Ok: it is to be done.
QMessageBox* askingBox(QWidget* parent, const QString& question, const QString& verb);

}  // namespace wirepane

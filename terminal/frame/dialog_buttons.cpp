// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/dialog_buttons.h"

#include "terminal/translations/terminal_text.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

namespace wirepane {

QDialogButtonBox* dialogButtons(QDialog& dialog, TextId verb) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    // The toolkit's own texts may lack the language.
    buttons->button(QDialogButtonBox::Ok)->setText(terminalText(verb));
    buttons->button(QDialogButtonBox::Cancel)->setText(terminalText(TextId::Cancel));
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

}  // namespace wirepane

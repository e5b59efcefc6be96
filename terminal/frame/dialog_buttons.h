// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QDialogButtonBox;

namespace wirepane {

// The buttons that accept and reject a dialog, in the language in force.
QDialogButtonBox* dialogButtons(QDialog& dialog);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QDialogButtonBox;

namespace wirepane {
enum class TextId;

// The buttons that accept a dialog, with what that does for their text, and reject it, in the language in
// force.
QDialogButtonBox* dialogButtons(QDialog& dialog, TextId verb);

}  // namespace wirepane

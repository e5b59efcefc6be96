// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/s_edit.h"

SEdit::SEdit(QWidget* parent) : QLineEdit(parent) {}

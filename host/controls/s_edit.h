// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QLineEdit>

// A line of text. `textEdited` tells of the user's changes, `textChanged` of those in code too.
class WIREPANE_HOST_EXPORT SEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit SEdit(QWidget* parent = nullptr);
};

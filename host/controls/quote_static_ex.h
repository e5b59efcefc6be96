// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>
#include <QLabel>

// A line of plain text in colours of its own; colours that were not set (invalid) follow the palette.
class WIREPANE_HOST_EXPORT CQuoteStaticEx : public QLabel {
    Q_OBJECT

public:
    explicit CQuoteStaticEx(QWidget* parent = nullptr);

    void setColors(const QColor& text, const QColor& background);
};

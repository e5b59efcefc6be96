// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/quote_static_ex.h"

CQuoteStaticEx::CQuoteStaticEx(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setAutoFillBackground(true);
}

void CQuoteStaticEx::setColors(const QColor& text, const QColor& background) {
    QPalette colours;
    if (text.isValid())
        colours.setColor(QPalette::WindowText, text);
    if (background.isValid())
        colours.setColor(QPalette::Window, background);
    setPalette(colours);
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/item_display.h"

namespace {

TRVItemDisplay* installed = nullptr;

TRVItemDisplay& defaults() {
    static TRVItemDisplay display;
    return display;
}

}  // namespace

TRVItemDisplay::~TRVItemDisplay() {
    if (installed == this)
        installed = nullptr;
}

TRVItemDisplay* TRVItemDisplay::itemDisplay() {
    return installed != nullptr ? installed : &defaults();
}

void TRVItemDisplay::setItemDisplay(TRVItemDisplay* display) {
    installed = display;
}

void TRVItemDisplay::GetNewsCatColor(int, QColor& text, QColor& background) {
    text = QColor();
    background = QColor();
}

void TRVItemDisplay::warrantCatColor(int, QColor& text, QColor& background) {
    text = QColor();
    background = QColor();
}

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

TRVItemDisplay* TRVItemDisplay::GetItemDisplay() {
    return installed != nullptr ? installed : &defaults();
}

void TRVItemDisplay::SetItemDisplay(TRVItemDisplay* display) {
    installed = display;
}

void TRVItemDisplay::GetNewsCatColor(int, QColor& text, QColor& background) {
    text = QColor();
    background = QColor();
}

void TRVItemDisplay::GetWarrantCatColor(int, QColor& text, QColor& background) {
    text = QColor();
    background = QColor();
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/sync_info.h"

#include <QGuiApplication>

namespace {

CSyncInfo* installed = nullptr;

CSyncInfo& defaults() {
    static CSyncInfo settings;
    return settings;
}

}  // namespace

CSyncInfo::~CSyncInfo() {
    if (installed == this)
        installed = nullptr;
}

CSyncInfo* CSyncInfo::GetSettingCFG() {
    return installed != nullptr ? installed : &defaults();
}

void CSyncInfo::setSettingCFG(CSyncInfo* settings) {
    installed = settings;
}

QColor CSyncInfo::SYS_crGetOtherColor(const QString&) {
    return {};
}

QFont CSyncInfo::SYS_fntGetViewFont() {
    return QGuiApplication::font();
}

bool CSyncInfo::CApi_GetThinBarStatus() {
    return false;
}

int CSyncInfo::SYS_eGetPopupWndPosition() {
    return 1;
}

QString CSyncInfo::SYS_cszGetCurrentSymbol(unsigned char) {
    return {};
}

bool CSyncInfo::SYS_bGetIsLinkNews() {
    return false;
}

void CSyncInfo::SYS_vSetIsLinkNews(bool) {}

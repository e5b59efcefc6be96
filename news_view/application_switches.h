// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/ini_file.h"

#include <QString>

namespace wirepane {

// The machine-wide switches of the host's application file.
struct ApplicationSwitches {
    bool showNormalSearch = false;   // the relation-search mode has a tab
    bool showWarningSearch = false;  // the warning-term mode has a tab

    static ApplicationSwitches read(const IniFile& file) {
        const QString section = QStringLiteral("NewsCtrlSearchView");
        return {file.number(section, QStringLiteral("ShowNormalSearch"), 0) == 1,
                file.number(section, QStringLiteral("ShowWarningSearch"), 0) == 1};
    }
};

}  // namespace wirepane

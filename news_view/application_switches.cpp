// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/application_switches.h"

#include "host/contract/ini_file.h"

namespace wirepane {

ApplicationSwitches ApplicationSwitches::read(const IniFile& file) {
    const QString section = QStringLiteral("NewsCtrlSearchView");
    return {file.number(section, QStringLiteral("ShowNormalSearch"), 0) == 1,
            file.number(section, QStringLiteral("ShowWarningSearch"), 0) == 1};
}

}  // namespace wirepane

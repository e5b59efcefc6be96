// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {
class IniFile;

// The machine-wide switches of the host's application file.
struct ApplicationSwitches {
    bool showNormalSearch = false;   // the relation-search mode has a tab
    bool showWarningSearch = false;  // the warning-term mode has a tab

    static ApplicationSwitches read(const IniFile& file);
};

}  // namespace wirepane

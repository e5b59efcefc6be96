// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/session/dialog_tabs.h"
#include "terminal/settings/colour_scheme.h"

namespace wirepane {
class TerminalSettings;
class Workspace;

// Brings scheme, font and what all windows have in common to the application and to the views that are open.
class Appearance {
public:
    // Neither is owned.
    Appearance(TerminalSettings& settings, Workspace& workspace);

    // Takes what the settings say: at start, and whenever they have changed.
    void apply();
    // Style, scheme and font of windows that are shown before there are views.
    static void dress(TerminalSettings& settings);
    void setScheme(ColourScheme scheme);
    // Points, cut to what the settings allow.
    void setFontSize(int points);

private:
    void tellViews();

    TerminalSettings& settings;
    Workspace& workspace;
    DialogTabs dialogTabs;
};

}  // namespace wirepane

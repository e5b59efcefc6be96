// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/appearance.h"

#include "terminal/frame/workspace.h"
#include "terminal/session/terminal_style.h"
#include "terminal/settings/terminal_settings.h"

#include <QApplication>

namespace wirepane {

Appearance::Appearance(TerminalSettings& terminalSettings, Workspace& openViews)
    : settings(terminalSettings), workspace(openViews) {
    QApplication::setStyle(new TerminalStyle);
}

void Appearance::apply() {
    QApplication::setPalette(schemePalette(settings.scheme()));
    QApplication::setFont(settings.SYS_fntGetViewFont());
    tellViews();
}

void Appearance::setScheme(ColourScheme scheme) {
    settings.setScheme(scheme);
    apply();
}

void Appearance::setFontSize(int points) {
    settings.setFontSize(points);
    apply();
}

void Appearance::tellViews() {
    for (const auto& open : workspace.views())
        open->view->vChangeCast();
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/appearance.h"

#include "terminal/frame/workspace.h"
#include "terminal/session/terminal_style.h"
#include "terminal/settings/terminal_settings.h"

#include <QApplication>

namespace wirepane {

namespace {

void takeSchemeAndFont(TerminalSettings& settings) {
    QApplication::setPalette(schemePalette(settings.scheme()));
    QApplication::setFont(settings.SYS_fntGetViewFont());
}

}  // namespace

Appearance::Appearance(TerminalSettings& terminalSettings, Workspace& openViews)
    : settings(terminalSettings), workspace(openViews) {}

void Appearance::dress(TerminalSettings& settings) {
    QApplication::setStyle(new TerminalStyle);
    takeSchemeAndFont(settings);
}

void Appearance::apply() {
    takeSchemeAndFont(settings);
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

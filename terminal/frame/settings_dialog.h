// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/settings/colour_scheme.h"
#include "terminal/settings/terminal_settings.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;

namespace wirepane {

// What the user chooses in the settings dialog.
struct TerminalChoices {
    QString language;
    ColourScheme scheme = ColourScheme::Light;
    bool greenIsUp = false;
    int fontSize = 0;  // points
    SearchSwitches switches;
};

// The terminal's settings on two pages. It changes nothing itself.
class SettingsDialog : public QDialog {
    Q_OBJECT

public:
    SettingsDialog(const TerminalChoices& present, QWidget* parent = nullptr);

    TerminalChoices choices() const;

private:
    QWidget* generalPage(const TerminalChoices& present);
    QWidget* newsPage(const TerminalChoices& present);
    void showWarning();

    QComboBox* language = nullptr;
    QComboBox* scheme = nullptr;
    QComboBox* rising = nullptr;
    QSpinBox* fontSize = nullptr;
    QCheckBox* normalSearch = nullptr;
    QCheckBox* warningSearch = nullptr;
    QLabel* bothWarning = nullptr;
};

}  // namespace wirepane

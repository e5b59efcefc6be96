// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/settings/colour_scheme.h"
#include "terminal/settings/terminal_settings.h"

#include <QDialog>

#include <functional>
#include <utility>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;
class QTabWidget;

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

    // A page more, which this owns. `isReady`: whether what is on it can be saved; else the page says why.
    void addPage(QWidget* page, const QString& name, std::function<bool()> isReady);
    void showPage(QWidget* page);
    TerminalChoices choices() const;

    void accept() override;

private:
    QWidget* generalPage(const TerminalChoices& present);
    QWidget* newsPage(const TerminalChoices& present);
    void showWarning();

    QTabWidget* pages;
    std::vector<std::pair<QWidget*, std::function<bool()>>> added;
    QComboBox* language = nullptr;
    QComboBox* scheme = nullptr;
    QComboBox* rising = nullptr;
    QSpinBox* fontSize = nullptr;
    QCheckBox* normalSearch = nullptr;
    QCheckBox* warningSearch = nullptr;
    QLabel* bothWarning = nullptr;
};

}  // namespace wirepane

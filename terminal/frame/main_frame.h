// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class QLabel;

namespace wirepane {

class ViewDesk;

// What the status bar says.
struct FrameStatus {
    bool connected = false;
    QString storeFile;
    int services = 0;
    QString asOf;  // empty: the present moment is the machine's
};

// The terminal's main window: menus, the desk with the views, the status bar. What its menu commands do is
// the session's business.
class MainFrame : public QMainWindow {
    Q_OBJECT

public:
    MainFrame();

    ViewDesk& desk() { return *viewDesk; }

    // Marks what is in force in the menus.
    void showChoices(const QString& scheme, const QString& language);
    void showStatus(const FrameStatus& status);
    // The caption of the view on top; it stands in the window's title.
    void showCaption(const QString& caption);
    // Gives the desk this size.
    void resizeDesk(const QSize& size);

signals:
    void readAsOfChosen();
    void schemeChosen(const QString& scheme);
    void languageChosen(const QString& language);
    // +1: larger, -1: smaller.
    void fontStepChosen(int step);
    // The window is about to close, or has been told to.
    void closing();
    void languageChanged();
    // The window has become the active one (1) or is no longer (0).
    void activationChanged(int active);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildMenus();
    void retranslate();

    ViewDesk* viewDesk;
    QLabel* feedLabel;
    QLabel* storeLabel;
    QLabel* servicesLabel;
    QLabel* asOfLabel;
    QString caption;
    QString checkedScheme;
    QString checkedLanguage;
};

}  // namespace wirepane

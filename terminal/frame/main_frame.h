// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/frame/frame_command.h"
#include "terminal/frame/frame_menus.h"
#include "terminal/frame/view_docks.h"

#include <QMainWindow>

namespace wirepane {
class FirstStepsBar;
class NoticeBar;
class StatusLine;
struct FrameStatus;
class SymbolBox;
class ViewDesk;

// The terminal's main window: menus, the symbol box, the docks and the desk with the views, the status bar.
// What its menu commands do is the session's business.
class MainFrame : public QMainWindow {
    Q_OBJECT

public:
    MainFrame();

    // Views of a size of their own stand on the desk; the user's views stand in docks around it.
    ViewDesk& desk() { return *viewDesk; }
    ViewDocks& docks() { return viewDocks; }
    SymbolBox& symbolBox() { return *symbols; }

    // Marks what is in force in the menus.
    void showChoices(const MenuState& state);
    void showStatus(const FrameStatus& status);
    // The title of the active view; it stands in the window's title.
    void showCaption(const QString& caption);
    // Tells the user something that he should know, until he has read it.
    void showNotice(const QString& sentence);
    QString notices() const;
    // The line for who has never been here.
    void showFirstSteps();
    // Gives the desk this size.
    void resizeDesk(const QSize& size);
    // Puts the docks as ViewDocks::save found them. False: that cannot be understood, they stand as they
    // stood.
    bool restoreArrangement(const QByteArray& stored);
    // The desk gives its room to the docks unless a view stands on it or there is no dock.
    void showDesk(bool shown);

signals:
    void commanded(wirepane::FrameCommand command);
    void schemeChosen(const QString& scheme);
    void languageChosen(const QString& language);
    // For the active view.
    void linkChosen(unsigned char group);
    void viewChosen(int number);
    // The user wants to see the first steps no more.
    void firstStepsDismissed();
    // The window is about to close, or has been told to.
    void closing();
    void languageChanged();
    // The application has become the active one (1) or is no longer (0).
    void activationChanged(int active);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    QMenu* createPopupMenu() override;

private:
    void buildMenus();
    void retranslate();
    void fitStatusBar();

    ViewDesk* viewDesk;
    ViewDocks viewDocks;
    SymbolBox* symbols;
    NoticeBar* notice;
    FirstStepsBar* firstSteps;
    bool showsFirstSteps = false;
    QToolBar* symbolBar;
    StatusLine* statusLine;
    QString caption;
    MenuState menuState;
};

}  // namespace wirepane

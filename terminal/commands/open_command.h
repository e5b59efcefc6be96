// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace wirepane {

class CommandArguments;

// How the terminal itself is to be opened.
struct OpenOptions {
    QString storeFile;
    QString configFolder;
    QString language;  // empty: as the settings say
    QString automationSocket;
    QString tourFolder;
    QString spoolFolder;
    QString feedName;
    bool automation = false;  // on standard input and output
    bool sample = false;
    bool noSample = false;
    bool tour = false;
    bool workspace = false;  // a script works on the user's views

    bool isScripted() const { return automation || !automationSocket.isEmpty(); }
};

// Whether the windows shall be drawn off screen: asked for, wanted by a tour, or no display is there. Known
// before there is an application object.
bool wantsOffscreen(int argc, const char* const* argv);

// "wirepane" without a command: the terminal's windows, driven by the user, by scripts, or by the tour. The
// application object exists. Result: the program's exit status.
int runTerminal();

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

struct TourOptions {
    QString folder;  // for what the tour writes
    QString storeFile;
    QString configFolder;
    QString language;  // empty: as the settings say
};

// Opens the terminal on the sample wire, shows what it can do, writes a picture of each scene into the
// options' folder, with the newest stories as printed pages and as saved text, and says so on standard
// error. Store and settings are thrown away afterwards, unless the options name them. Result: the program's
// exit status.
int runTour(const TourOptions& options);

}  // namespace wirepane

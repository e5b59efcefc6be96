// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

struct Explained {
    QString key;  // of a headline, as "search --json" prints it
    QString storeFile;
    QString configFolder;  // of the user's views
};

// "wirepane --explain KEY": where a headline of the store stands in the user's views, and why. Nothing of the
// user's is changed. The application object exists. Result: the program's exit status.
int runExplain(const Explained& explained);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

// What a news module is told, and tells, about printing and saving.

// How a file of saved news holds its characters.
enum class NewsFileType {
    CodePage950,  // what the page lacks becomes a white square
    Utf8,         // without a byte-order mark
};

// Where news is to go without the user being asked.
struct OutputTarget {
    QString file;
    NewsFileType type = NewsFileType::CodePage950;  // of a saved file
    QString paper;                                  // of printed pages, such as "A4"; empty: as the system
    // NewsModule: titles of several lines keep their tail, but in a file of code page 950. A view decides by
    // its settings.
    bool wholeTitles = false;
};

// What came of it.
struct NewsOutcome {
    int count = 0;         // pages printed, bytes saved; headlines shown in a preview
    bool waiting = false;  // it is put out when the titles and stories that are missing have come
    bool failed = false;
    QString message;  // a sentence for the user, with the file's name; empty: nothing to tell
};

}  // namespace wirepane

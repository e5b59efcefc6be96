// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace wirepane {

// What a news module is told, and tells, about printing and saving.

// How a file of saved news holds its characters.
enum class NewsFileType {
    CodePage950,  // what the page lacks becomes a white square
    Utf8,         // without a byte-order mark
};

// What came of it.
struct NewsOutcome {
    int count = 0;          // pages printed, bytes saved; headlines shown in a preview
    bool waiting = false;   // it is put out when the titles and stories that are missing have come
    bool underWay = false;  // it is being put out, and what comes of it is told later
    bool failed = false;    // also what was stopped, which has no message
    QString message;        // a sentence for the user, with the file's name; empty: nothing to tell
};

// Where news is to go without the user being asked.
struct OutputTarget {
    QString file;
    NewsFileType type = NewsFileType::CodePage950;  // of a saved file
    QString paper;                                  // of printed pages, such as "A4"; empty: as the system
    // NewsModule: titles of several lines keep their tail, but in a file of code page 950. A view decides by
    // its settings.
    bool wholeTitles = false;
    // Views: is told, once, what came of news that waited or was under way. With it pages are painted by the
    // host's PagePainter, where there is one, and long files are made from the event loop; without it all is
    // done within the call.
    std::function<void(const NewsOutcome&)> told = {};
};

}  // namespace wirepane

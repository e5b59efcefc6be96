// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace wirepane {
struct OpenView;

// A row that is to be seen, with its cells from left to right.
struct SeenRow {
    HeadlineKey key;
    QStringList cells;

    bool operator==(const SeenRow&) const = default;
};

struct SeenStory {
    QString title;
    QString text;

    bool operator==(const SeenStory&) const = default;
};

// What is to be seen in a view: the rows on screen from the top, and the stories in its pane and its window.
struct SeenScreen {
    QString title;
    QStringList columns;
    std::vector<SeenRow> rows;
    int focus = -1;  // of the rows
    std::vector<SeenStory> stories;

    bool operator==(const SeenScreen&) const = default;
};

// Nothing is to be seen of a view that is hidden.
SeenScreen screenOf(const OpenView& view);

}  // namespace wirepane

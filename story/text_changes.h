// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace wirepane {

// A stretch of two versions of a text.
struct TextPart {
    enum class Kind { Same, Removed, Added };

    Kind kind = Kind::Same;
    qsizetype from = 0;  // Removed: in the earlier version; else in the later one
    qsizetype length = 0;

    bool operator==(const TextPart&) const = default;
};

// A number that another one has taken the place of, each as it is written.
struct NumberChange {
    QString before;
    QString after;

    bool operator==(const NumberChange&) const = default;
};

struct TextChanges {
    std::vector<TextPart>
        parts;  // in their order, what went before what came; Same and Added are the later one
    std::vector<NumberChange> numbers;

    bool areThere() const;
};

// What has changed between two versions of a text, by words; a Chinese character is a word. A number that is
// only written otherwise ("5.35 billion", "53.5億") is no changed number. Texts that have little in common,
// or whose changes are long, are compared by paragraphs alone, or not at all: then all of one went, and all
// of the other came. Time grows with the length and the number of changes, which is bounded.
TextChanges changesBetween(QStringView before, QStringView after);

}  // namespace wirepane

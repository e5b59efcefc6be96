// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/cell_state.h"
#include "host/controls/figures.h"

#include <QFont>
#include <QFontMetricsF>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>

namespace wirepane {
enum class HeadlineColumn;

// How wide the columns of a headline list are: those that the table of columns gives, or, once measuring,
// what their texts and headings need; and those that the user has given by hand. Pixels.
class ColumnWidths {
public:
    struct Texts {
        QFont cells;
        QFont headings;
        QStringList columnHeadings;  // by HeadlineColumn
        QStringList topics;          // that may come; others widen the column when they do
    };

    bool isMeasuring() const { return measuring; }
    // Measures, from here on, and anew after a change of fonts or texts. `gutter` is what the first column
    // has before its text.
    void measure(const Texts& texts, int gutter, bool showDate);
    // Takes the texts of a row that is written. True when a column has become wider.
    bool note(const WrittenCells& written);

    // 0 for the title once measuring: it has what the others leave.
    int of(HeadlineColumn column) const;
    // 0: measured, or as the table says, again.
    void setByHand(HeadlineColumn column, int width);
    // What the user has given, as a text to keep; an empty one where he has given nothing.
    QString keptText() const;
    // What makes no sense is passed over.
    void restore(const QString& kept);

    // Of a topic's column at the type's usual size; it grows with the type.
    static constexpr int mostOfTopic = 140;

private:
    void measureTime();
    bool noteTopic(const QString& topic);

    static constexpr std::size_t columns = 3;
    std::array<int, columns> measured{};
    std::array<int, columns> byHand{};
    bool measuring = false;
    bool withDate = false;
    int gutterWidth = 0;
    int timeHeading = 0;
    int mostTopic = 0;
    QFontMetricsF metrics{QFont()};
    Figures figures;
    QSet<QString> knownTopics;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QColor>
#include <QHash>
#include <QSet>
#include <QString>
#include <QVarLengthArray>

#include <vector>

namespace wirepane {
enum class HeadlineColumn;

// What was written into a row.
struct WrittenCells {
    QVarLengthArray<QString, 4> texts;  // by HeadlineColumn
    QColor categoryColour;              // of the category's text; invalid: the grid's own
    bool showDate = false;              // the time is written with its date

    const QString& textOf(HeadlineColumn column) const { return texts[static_cast<qsizetype>(column)]; }
    QString& textOf(HeadlineColumn column) { return texts[static_cast<qsizetype>(column)]; }
};

// The cells that were written, by headline: a row that moves keeps its texts without being touched. Rows that
// were never written are not held, and of those that were only so many as a screen can need.
class CellState {
public:
    // Above this many rows an owner is to call keepOnly.
    static constexpr int enough = 1024;

    int size() const { return static_cast<int>(written.size()); }
    // Null when the headline's row has not been written, or its texts have been let go.
    const WrittenCells* find(const HeadlineKey& key) const;
    void write(const HeadlineKey& key, WrittenCells&& cells);
    void forget(const HeadlineKey& key);
    void clear();

    // Lets the texts of all other rows go. Of those it still knows which were written in the other form of
    // time than `showDate`, so that they can be written anew as they were.
    void keepOnly(const std::vector<CHeadlineTable>& rows, bool showDate);
    bool hasOtherTimeForm(const HeadlineKey& key) const { return otherTimeForm.contains(key); }

private:
    QHash<HeadlineKey, WrittenCells> written;
    QSet<HeadlineKey> otherTimeForm;
};

size_t qHash(const HeadlineKey& key, size_t seed = 0) noexcept;

}  // namespace wirepane

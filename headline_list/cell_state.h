// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QColor>
#include <QHash>
#include <QString>

// What was written into a row.
struct WrittenCells {
    QString time;
    QString category;
    QString title;
    QColor categoryColour;  // of the category's text; invalid: the grid's own
};

// The cells that were written, by headline: a row that moves keeps its texts without being touched. Rows that
// were never on screen are not held.
class CellState {
public:
    // Null when the headline's row has not been written.
    const WrittenCells* find(const HeadlineKey& key) const;
    void write(const HeadlineKey& key, WrittenCells cells);
    void clear() { written.clear(); }

private:
    QHash<HeadlineKey, WrittenCells> written;
};

size_t qHash(const HeadlineKey& key, size_t seed = 0) noexcept;

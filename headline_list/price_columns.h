// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <optional>

class BKQuoteInterface;
class CSuperSheetWnd;

namespace wirepane {
class PriceHistory;
struct HeadlineKey;
struct PriceSince;

// Two columns behind those of a headline list: the price of the symbol that a headline is about, as it was
// then, with its change since, and the largest move since. Rows follow the prices once a second. A grid has
// them once they have been shown; hidden they are of no width. Without a PriceHistory there are none.
class PriceColumns {
public:
    // `backEnd` must outlive them.
    explicit PriceColumns(BKQuoteInterface& backEnd);

    // Also after a change of fonts or language. The grid's columns before are those of the list.
    void show(CSuperSheetWnd& grid, bool show);
    bool areShown() const { return shown; }
    bool arePossible() const { return prices != nullptr; }

    // For a place of the grid that is none of these: empty, and no colour.
    bool holds(int place) const { return firstPlace >= 0 && place >= firstPlace; }
    QString text(const HeadlineKey& key, int place) const;
    QColor colour(const HeadlineKey& key, int place) const;

private:
    enum class Column { Then, LargestMove };

    Column columnAt(int place) const { return place == firstPlace ? Column::Then : Column::LargestMove; }
    std::optional<PriceSince> since(const HeadlineKey& key, int place) const;
    int widthOf(Column column) const;
    void follow();

    BKQuoteInterface& backEnd;
    PriceHistory* const prices;
    QPointer<CSuperSheetWnd> sheet;
    int firstPlace = -1;  // in the grid; -1: it has none of them
    bool shown = false;
    std::int64_t drawn = 0;  // of the changes of prices
    QTimer timer;
};

}  // namespace wirepane

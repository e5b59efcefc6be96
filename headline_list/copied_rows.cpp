// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The rows of a headline list as text.
#include "headline_list/cell_state.h"
#include "headline_list/cell_texts.h"
#include "headline_list/headline_columns.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"

#include <QHash>
#include <QStringList>

namespace wirepane {

QString HeadlineList::textOfRows(const std::vector<int>& rows) const {
    std::vector<CHeadlineTable> entries;
    for (const int row : rows) {
        if (row >= 0 && row < table.size() && entries.size() < mostCopiedRows)
            entries.push_back(table.at(row));
    }
    // The time is known of every row, the rest of those whose headlines are at hand.
    QHash<HeadlineKey, QString> rests;
    for (const CHeadline& headline : headlinesOf(entries)) {
        QStringList texts;
        for (int place = 0; const HeadlineColumnKind* column = columnAt(place); ++place) {
            if (column->column != HeadlineColumn::Time)
                texts.append(column->text({headline, true, backEnd, owner}));
        }
        rests[keyOf(headline)] = texts.join(QLatin1Char('\t'));
    }
    QStringList lines;
    for (const CHeadlineTable& entry : entries)
        lines.append(timeText(entry.time, true) + QLatin1Char('\t') + rests[keyOf(entry)]);
    return lines.join(QLatin1Char('\n'));
}

}  // namespace wirepane

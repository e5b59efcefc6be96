// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The rows of a headline list as text.
#include "headline_list/cell_state.h"
#include "headline_list/cell_texts.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"

#include <QHash>
#include <QStringList>

QString HeadlineList::TextOfRows(const std::vector<int>& rows) const {
    std::vector<CHeadlineTable> entries;
    for (const int row : rows) {
        if (row >= 0 && row < table.size() && entries.size() < mostCopiedRows)
            entries.push_back(table.at(row));
    }
    QHash<HeadlineKey, QString> titles;
    for (const CHeadline& headline : headlinesOf(entries)) {
        const QString category =
            hasTwoColumns() ? QString()
                            : owner.CategoryNameOf(headline.service, headline.categoryId) + QLatin1Char('\t');
        titles[KeyOf(headline)] = category + ShownText(backEnd, headline.service, headline.title);
    }
    QStringList lines;
    for (const CHeadlineTable& entry : entries)
        lines.append(TimeText(entry.time, true) + QLatin1Char('\t') + titles[KeyOf(entry)]);
    return lines.join(QLatin1Char('\n'));
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/column_widths.h"

#include "headline_list/headline_columns.h"
#include "host/controls/row_look.h"

#include <algorithm>
#include <cmath>

namespace wirepane {

namespace {

constexpr int afterTime = 14;
constexpr int afterTopic = 16;
constexpr int widestByHand = 4000;
constexpr QChar between = u',';

std::size_t placeIn(HeadlineColumn column) {
    return static_cast<std::size_t>(column);
}

int wholePixels(qreal width) {
    return static_cast<int>(std::ceil(width));
}

}  // namespace

void ColumnWidths::measure(const Texts& texts, int gutter, bool showDate) {
    measuring = true;
    withDate = showDate;
    gutterWidth = gutter;
    metrics = QFontMetricsF(texts.cells);
    figures = Figures(metrics);
    knownTopics.clear();
    const QFontMetricsF ofHeadings(texts.headings);
    const auto heading = [&](HeadlineColumn column) {
        return wholePixels(
            ofHeadings.horizontalAdvance(texts.columnHeadings.value(static_cast<int>(column))));
    };
    timeHeading = heading(HeadlineColumn::Time);
    constexpr int usualTextHeight = 18;
    mostTopic = std::max(mostOfTopic, mostOfTopic * textHeight(texts.cells) / usualTextHeight);
    measureTime();
    measured.at(placeIn(HeadlineColumn::Category)) = heading(HeadlineColumn::Category) + afterTopic;
    for (const QString& topic : texts.topics)
        noteTopic(topic);
}

void ColumnWidths::measureTime() {
    const QString widest = withDate ? QStringLiteral("00/00 00:00") : QStringLiteral("00:00");
    const int text = std::max(wholePixels(figures.width(metrics, widest)), timeHeading);
    measured.at(placeIn(HeadlineColumn::Time)) = gutterWidth + text + afterTime;
}

bool ColumnWidths::noteTopic(const QString& topic) {
    if (knownTopics.contains(topic))
        return false;
    knownTopics.insert(topic);
    int& width = measured.at(placeIn(HeadlineColumn::Category));
    const int needed = std::min(wholePixels(metrics.horizontalAdvance(topic)) + afterTopic, mostTopic);
    if (needed <= width)
        return false;
    width = needed;
    return true;
}

bool ColumnWidths::note(const WrittenCells& written) {
    if (!measuring)
        return false;
    const bool dated = written.showDate && !withDate;
    if (dated) {
        withDate = true;
        measureTime();
    }
    return noteTopic(written.textOf(HeadlineColumn::Category)) || dated;
}

int ColumnWidths::of(HeadlineColumn column) const {
    if (!measuring)
        return kindOf(column).width;
    const int own = byHand.at(placeIn(column));
    return own > 0 ? own : measured.at(placeIn(column));
}

void ColumnWidths::setByHand(HeadlineColumn column, int width) {
    if (column != HeadlineColumn::Title)
        byHand.at(placeIn(column)) = std::clamp(width, 0, widestByHand);
}

QString ColumnWidths::keptText() const {
    QStringList widths;
    for (const int width : byHand)
        widths << QString::number(width);
    const bool none = std::all_of(byHand.begin(), byHand.end(), [](int width) { return width == 0; });
    return none ? QString() : widths.join(between);
}

void ColumnWidths::restore(const QString& kept) {
    const QStringList widths = kept.split(between);
    for (const HeadlineColumnKind& kind : headlineColumns)
        setByHand(kind.column, widths.value(static_cast<int>(kind.column)).toInt());
}

}  // namespace wirepane

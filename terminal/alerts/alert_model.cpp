// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_model.h"

#include "terminal/alerts/alert_texts.h"
#include "terminal/translations/terminal_text.h"

#include <QApplication>
#include <QDateTime>
#include <QPalette>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

void AlertModel::show(std::vector<AlertEntry> newestFirst) {
    beginResetModel();
    entries = std::move(newestFirst);
    endResetModel();
}

int AlertModel::rowOf(std::int64_t number) const {
    const auto found = std::ranges::find(entries, number, &AlertEntry::number);
    return found != entries.end() ? static_cast<int>(found - entries.begin()) : -1;
}

int AlertModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries.size());
}

int AlertModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant AlertModel::data(const QModelIndex& index, int role) const {
    const AlertEntry& entry = at(index.row());
    const bool isWeak = entry.outcome != AlertOutcome::Told;
    if (role == Qt::ForegroundRole && isWeak)
        return QApplication::palette().color(QPalette::PlaceholderText);
    if (role == Qt::ToolTipRole)
        return reasonText(entry).toHtmlEscaped().replace(u'\n', u"<br>"_s);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
        case Time:
            return QDateTime::fromSecsSinceEpoch(entry.matched).toString(u"MM/dd HH:mm:ss"_s);
        case Rule:
            return entry.rule;
        case Title:
            return entry.title;
        default:
            return outcomeText(entry);
    }
}

QVariant AlertModel::headerData(int section, Qt::Orientation orientation, int role) const {
    constexpr std::array texts{TextId::AlertColumnTime, TextId::AlertColumnRule, TextId::AlertColumnHeadline,
                               TextId::AlertColumnOutcome};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return terminalText(texts[static_cast<std::size_t>(section)]);
}

}  // namespace wirepane

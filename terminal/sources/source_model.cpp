// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/source_model.h"

#include "terminal/translations/terminal_text.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::array headings{TextId::SourcesOn,   TextId::SourcesSource, TextId::SourcesState,
                              TextId::SourcesLast, TextId::SourcesNext,   TextId::SourcesToday,
                              TextId::SourcesDelay};
static_assert(headings.size() == SourceModel::ColumnCount);

QString cellText(const SourceRow& row, int column) {
    switch (column) {
        case SourceModel::Source:
            return row.title + u'\n' + row.detail;
        case SourceModel::State:
            return row.state;
        case SourceModel::Last:
            return row.last;
        case SourceModel::Next:
            return row.next;
        case SourceModel::Today:
            return row.today;
        case SourceModel::Delay:
            return row.delay;
        default:
            return {};
    }
}

bool isOfFigures(int column) {
    return column == SourceModel::Today || column == SourceModel::Delay;
}

}  // namespace

SourceModel::SourceModel(Lives lives, QObject* parent)
    : QAbstractTableModel(parent), livesOf(std::move(lives)) {
    show({});
}

void SourceModel::show(const std::vector<ListedSource>& listedSources) {
    beginResetModel();
    sources = listedSources;
    ready = readyMadeSources();
    std::erase_if(ready, [this](const ReadyMadeSource& made) {
        return std::any_of(sources.begin(), sources.end(), [&](const ListedSource& listed) {
            return listed.source.address == made.source.address;
        });
    });
    rows = madeRows();
    endResetModel();
}

void SourceModel::refresh() {
    std::vector<SourceRow> now = madeRows();
    if (now == rows)
        return;
    rows = std::move(now);
    emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void SourceModel::retranslate() {
    show(std::exchange(sources, {}));
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

std::vector<SourceRow> SourceModel::madeRows() const {
    const std::int64_t now = QDateTime::currentSecsSinceEpoch();
    std::vector<SourceRow> made;
    const std::map<QString, Life> lives = livesOf();
    for (const ListedSource& listed : sources) {
        const auto life = lives.find(listed.source.name);
        const Life known = life != lives.end() ? life->second : Life();
        made.push_back(rowOf(listed, known.state, now));
        if (known.delays)
            made.back().delays = delaysText(*known.delays);
    }
    for (const ReadyMadeSource& each : ready) {
        SourceRow row = rowOf({each.source, {}}, std::nullopt, now);
        row.detail = terminalText(TextId::SourceReadyMade).arg(each.publisher);
        row.state = terminalText(TextId::SourceReadTerms);
        row.isOn = false;
        made.push_back(row);
    }
    return made;
}

const ListedSource* SourceModel::listed(int row) const {
    return row >= 0 && std::size_t(row) < sources.size() ? &sources[std::size_t(row)] : nullptr;
}

const ReadyMadeSource* SourceModel::readyMade(int row) const {
    const std::size_t place = std::size_t(row) - sources.size();
    return row >= 0 && std::size_t(row) >= sources.size() && place < ready.size() ? &ready[place] : nullptr;
}

int SourceModel::rowOfName(const QString& name) const {
    const auto found = std::find_if(sources.begin(), sources.end(),
                                    [&](const ListedSource& listed) { return listed.source.name == name; });
    return found == sources.end() ? -1 : int(found - sources.begin());
}

int SourceModel::countOn() const {
    return int(std::count_if(rows.begin(), rows.end(), [](const SourceRow& row) { return row.isOn; }));
}

int SourceModel::countFaulty() const {
    return int(std::count_if(rows.begin(), rows.end(), [](const SourceRow& row) { return row.isFaulty; }));
}

int SourceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows.size());
}

int SourceModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant SourceModel::data(const QModelIndex& index, int role) const {
    const SourceRow& row = rows.at(std::size_t(index.row()));
    switch (role) {
        case Qt::DisplayRole:
            return cellText(row, index.column());
        case Qt::ToolTipRole:
            return index.column() == State   ? row.state.toHtmlEscaped()
                   : index.column() == Delay ? QVariant(row.delays)
                                             : QVariant();
        case Qt::AccessibleDescriptionRole:
            return index.column() == Delay ? QVariant(row.delays) : QVariant();
        case Qt::AccessibleTextRole:
            return index.column() == On ? row.title : cellText(row, index.column());
        case Qt::CheckStateRole:
            return index.column() == On ? QVariant(row.isOn ? Qt::Checked : Qt::Unchecked) : QVariant();
        case Qt::TextAlignmentRole:
            return int(Qt::AlignVCenter | (isOfFigures(index.column()) ? Qt::AlignRight : Qt::AlignLeft));
        default:
            return {};
    }
}

QVariant SourceModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return terminalText(headings.at(std::size_t(section)));
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | (isOfFigures(section) ? Qt::AlignRight : Qt::AlignLeft));
    return {};
}

Qt::ItemFlags SourceModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags usual = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == On ? usual | Qt::ItemIsUserCheckable : usual;
}

bool SourceModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role == Qt::CheckStateRole && index.column() == On)
        emit ticked(index.row(), value.toInt() == Qt::Checked);
    return false;
}

}  // namespace wirepane

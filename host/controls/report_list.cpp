// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/report_list.h"

#include "host/controls/roomy_rows.h"

#include <QHeaderView>
#include <QPainter>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int textMargins = 16;

// Shows by two lines which row the keyboard is in, also where it is not selected.
class ReportRows : public RoomyRows {
public:
    using RoomyRows::RoomyRows;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        RoomyRows::paint(painter, option, index);
        const auto* list = qobject_cast<const QAbstractItemView*>(option.widget);
        if (list == nullptr || !list->hasFocus() || list->currentIndex().row() != index.row())
            return;
        painter->setPen(option.palette.color(QPalette::Highlight));
        painter->drawLine(option.rect.topLeft(), option.rect.topRight());
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
};

}  // namespace

ReportList::ReportList(std::span<const ReportColumn> columns, QWidget* parent)
    : QTableWidget(0, static_cast<int>(columns.size()), parent) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setItemDelegate(new ReportRows(this));
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(RoomyRows::heightOf(fontMetrics()));
    QHeaderView* header = horizontalHeader();
    header->setSectionsMovable(true);
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    int index = 0;
    for (const ReportColumn& column : columns) {
        auto* item = new QTableWidgetItem(column.header);
        item->setTextAlignment(column.alignment | Qt::AlignVCenter);
        setHorizontalHeaderItem(index, item);
        int width = std::max(column.width, header->sectionSizeHint(index));
        for (const QString& text : column.texts)
            width = std::max(width, fontMetrics().horizontalAdvance(text) + textMargins);
        header->resizeSection(index++, width);
    }
}

void ReportList::setRow(int row, const QStringList& texts) {
    if (row == rowCount())
        insertRow(row);
    for (int column = 0; column < columnCount(); ++column) {
        if (item(row, column) == nullptr) {
            setItem(row, column, new QTableWidgetItem);
            item(row, column)->setTextAlignment(Qt::Alignment(horizontalHeaderItem(column)->textAlignment()));
        }
        item(row, column)->setText(texts.value(column));
    }
}

int ReportList::heightOf(int rows) const {
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
           2 * frameWidth();
}

}  // namespace wirepane

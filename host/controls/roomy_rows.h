// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

// Draws the rows of a list all at one height, whatever faces their texts need, with some room around them.
class RoomyRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static int HeightOf(const QFontMetrics& metrics) {
        constexpr int room = 6;
        return metrics.height() + room;
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width(), HeightOf(option.fontMetrics)};
    }
};

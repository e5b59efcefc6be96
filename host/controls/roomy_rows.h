// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace wirepane {

// Draws the rows of a list all at one height, whatever faces their texts need, with some room around them.
class RoomyRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static int heightOf(const QFontMetrics& metrics) {
        constexpr int room = 6;
        return metrics.height() + room;
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width(), heightOf(option.fontMetrics)};
    }
};

}  // namespace wirepane

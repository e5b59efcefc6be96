// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QTableWidget>

#include <span>

namespace wirepane {

struct ReportColumn {
    QString header;
    int width;  // at least; the last column takes the room that is left
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    QStringList texts = {};  // for which it is wide enough, as it is for its header
};

// A list of records in a dialog: rows of texts, of which one is selected as a whole, under a header
// whose columns the user can move.
class WIREPANE_HOST_EXPORT ReportList : public QTableWidget {
    Q_OBJECT

public:
    ReportList(std::span<const ReportColumn> columns, QWidget* parent);

    // Writes the texts of a row, which is appended when it is the next one.
    void setRow(int row, const QStringList& texts);
    // The height at which so many rows are in sight.
    int heightOf(int rows) const;
};

}  // namespace wirepane

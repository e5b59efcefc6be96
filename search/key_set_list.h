// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/report_list.h"

#include <vector>

namespace wirepane {

// The list of key sets: rows with a check box, of which one may be marked as the one that is worked on. A
// click on a check box, and Space, tick a row and do nothing else.
class KeySetList : public ReportList {
    Q_OBJECT

public:
    KeySetList(std::span<const ReportColumn> columns, QWidget* parent);

    // As setRow; a row that is new is not ticked.
    void setKeySet(int row, const QStringList& texts);
    void tick(int row, bool ticked);
    bool isTicked(int row) const;
    std::vector<int> tickedRows() const;
    // Marks a row, which is brought into sight; -1: none. Sends nothing.
    void mark(int row);

signals:
    // The user clicked a row, or went to it by keys.
    void rowChosen(int row);
    // He is done with the marked row: a click of the right button, Esc.
    void rowLeft();
    // He clicked a row twice. Sent after the click.
    void rowDoubleClicked(int row);
    // A row was ticked or unticked, by whomever.
    void ticksChanged();

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool clickTicked = false;  // the last click was one on a check box
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/params.h"
#include "terminal/frame/workspace.h"

class CSuperSheetWnd;

namespace wirepane {

// What the parameters "view", "list" and "id" name. Null, with the error recorded in `params`, when there is
// no such thing. Without "view" the newest view is meant.
OpenView* viewOf(Params& params, Workspace& workspace);
CSuperSheetWnd* sheetOf(Params& params, const OpenView& view);
QWidget* controlOf(Params& params, const OpenView& view);

struct WidgetPoint {
    QWidget* widget = nullptr;
    QPoint point;
};
// The middle of a row of the grid on show, which is brought into sight. No widget, with the error recorded,
// when there is no such row.
WidgetPoint middleOfRow(Params& params, const OpenView& view, int row);

}  // namespace wirepane

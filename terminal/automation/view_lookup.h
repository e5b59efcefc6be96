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

}  // namespace wirepane

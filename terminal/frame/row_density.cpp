// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/row_density.h"

#include "host/contract/view_options.h"
#include "terminal/frame/workspace.h"

namespace wirepane {

namespace {

constexpr int compactAir = 2;
const ViewOptionRow& row = rowOf(ViewOption::RowAir);

}  // namespace

bool areRowsCompact(const OpenView& view) {
    int air = row.own;
    view.settings->GetViewInfo(Workspace::settingPath(view.section, view.place), QString(row.key), air);
    return air == compactAir;
}

void setRowsCompact(const OpenView& view, bool compact) {
    view.settings->setViewInfo(Workspace::settingPath(view.section, view.place), QString(row.key),
                               compact ? compactAir : row.own);
    view.view->vChangeCast();
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/view_lookup.h"

#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"

using namespace Qt::StringLiterals;

namespace wirepane {

OpenView* viewOf(Params& params, Workspace& workspace) {
    const auto number = params.optionalNumber(u"view"_s);
    if (params.error())
        return nullptr;
    OpenView* view = number ? workspace.find(static_cast<int>(*number)) : workspace.newest();
    if (view == nullptr)
        params.fail(number ? u"there is no view %1"_s.arg(*number) : u"no view is open"_s, RpcCode::NotFound);
    return view;
}

CSuperSheetWnd* sheetOf(Params& params, const OpenView& view) {
    const auto list = static_cast<int>(params.number(u"list"_s, 0, NewsViewAccess::lists - 1));
    if (params.error())
        return nullptr;
    CSuperSheetWnd* sheet = view.access->sheetOf(list);
    if (sheet == nullptr)
        params.fail(u"view %1 has no grid for list %2"_s.arg(view.number).arg(list), RpcCode::NotFound);
    return sheet;
}

QWidget* controlOf(Params& params, const OpenView& view) {
    const auto id = static_cast<int>(params.number(u"id"_s, 1));
    if (params.error())
        return nullptr;
    QWidget* control = dlgItem(view.view, id);
    if (control == nullptr)
        params.fail(u"view %1 has no control %2"_s.arg(view.number).arg(id), RpcCode::NotFound);
    return control;
}

WidgetPoint middleOfRow(Params& params, const OpenView& view, int row) {
    CSuperSheetWnd* sheet = view.shownGrid();
    if (sheet == nullptr || row >= sheet->rowCount()) {
        params.fail(u"view %1 shows no row %2"_s.arg(view.number).arg(row), RpcCode::NotFound);
        return {};
    }
    const QModelIndex index = sheet->model()->index(row, 0);
    sheet->scrollTo(index);
    return {sheet->viewport(), sheet->visualRect(index).center()};
}

}  // namespace wirepane

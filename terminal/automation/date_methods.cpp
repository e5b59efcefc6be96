// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/date_methods.h"

#include "host/controls/s_date_time_ctrl.h"
#include "terminal/automation/user_input.h"
#include "terminal/automation/view_lookup.h"
#include "terminal/session/session.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The view's date picker, where the user can reach it; null with the error recorded.
SDateTimeCtrl* pickerOf(Params& params, Workspace& workspace) {
    const OpenView* view = viewOf(params, workspace);
    if (view == nullptr)
        return nullptr;
    auto* picker = view->view->findChild<SDateTimeCtrl*>();
    if (picker == nullptr)
        params.fail(u"view %1 has no date picker"_s.arg(view->number), RpcCode::NotFound);
    else if (!picker->isVisible() || !picker->isEnabled())
        params.fail(u"the date picker is hidden or disabled"_s, RpcCode::Refused);
    return params.error() ? nullptr : picker;
}

QDate dateFrom(Params& params) {
    const auto number = static_cast<int>(params.number(u"date"_s));
    const QDate date(number / 10000, number / 100 % 100, number % 100);
    if (!date.isValid())
        params.fail(u"\"date\" must be a day as yyyymmdd"_s);
    return date;
}

}  // namespace

void DateMethods::addTo(MethodTable& table) {
    table.addModal(u"date.set"_s, [this](Params& params) { return set(params); });
    table.addModal(u"date.open"_s, [this](Params& params) { return open(params); });
    table.addModal(u"date.close"_s, [this](Params& params) { return close(params); });
}

Answer DateMethods::set(Params& params) {
    SDateTimeCtrl* picker = pickerOf(params, session.workspace());
    const QDate date = dateFrom(params);
    if (picker != nullptr && !params.error())
        pickDate(*picker, date);
    return {};
}

Answer DateMethods::open(Params& params) {
    if (SDateTimeCtrl* picker = pickerOf(params, session.workspace()))
        openCalendar(*picker);
    return {};
}

Answer DateMethods::close(Params& params) {
    if (SDateTimeCtrl* picker = pickerOf(params, session.workspace()))
        closeCalendar(*picker);
    return {};
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/menu_methods.h"

#include "host/controls/plain_caption.h"
#include "host/controls/super_sheet_wnd.h"
#include "terminal/automation/user_input.h"
#include "terminal/automation/view_lookup.h"
#include "terminal/session/session.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int mostLooks = 40;
constexpr int lookMs = 5;

// Where a click is to open a menu.
struct Place {
    QPointer<QWidget> widget;
    QPoint point;  // in it
    Qt::MouseButton button = Qt::RightButton;
};

QMenu* openMenu() {
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QJsonArray itemsOf(const QMenu& menu) {
    QJsonArray items;
    for (const QAction* action : menu.actions()) {
        if (action->isVisible())
            items.append(QJsonObject{{u"id"_s, action->data().toInt()},
                                     {u"text"_s, nameOfCaption(action->text())},
                                     {u"checked"_s, action->isChecked()},
                                     {u"enabled"_s, action->isEnabled()},
                                     {u"separator"_s, action->isSeparator()}});
    }
    return items;
}

Place placeOfPoint(Params& params, const OpenView& view, const std::vector<int>& point) {
    if (point.size() != 2 || !view.view->rect().contains(point[0], point[1])) {
        params.fail(u"\"point\" must be [x, y] within the view"_s);
        return {};
    }
    const QPoint place(point[0], point[1]);
    QWidget* child = view.view->childAt(place);
    QWidget* target = child != nullptr ? child : view.view;
    return {target, target->mapFrom(view.view, place), Qt::RightButton};
}

Place placeOfButton(Params& params, const OpenView& view) {
    auto* control = controlOf(params, view);
    if (control == nullptr)
        return {};
    if (qobject_cast<QAbstractButton*>(control) == nullptr || !control->isVisible() || !control->isEnabled())
        params.fail(u"the control is no button that can be pressed"_s, RpcCode::Refused);
    return {control, control->rect().center(), Qt::LeftButton};
}

Place placeFrom(Params& params, const OpenView& view) {
    const auto row = params.optionalNumber(u"row"_s, 0);
    const auto point = params.optionalNumbers(u"point"_s);
    const bool ofButton = params.has(u"id"_s);
    if (static_cast<int>(row.has_value()) + static_cast<int>(point.has_value()) +
            static_cast<int>(ofButton) !=
        1)
        params.fail(u"one of \"row\", \"point\" and \"id\" says where"_s);
    if (params.error())
        return {};
    if (row) {
        const WidgetPoint middle = middleOfRow(params, view, static_cast<int>(*row));
        return {middle.widget, middle.point, Qt::RightButton};
    }
    return point ? placeOfPoint(params, view, *point) : placeOfButton(params, view);
}

}  // namespace

void MenuMethods::addTo(MethodTable& table) {
    table.addDeferred(u"menu.open"_s, [this](Params& params, const Reply& reply) { open(params, reply); });
    table.addModal(u"menu.choose"_s, [this](Params& params) { return choose(params); });
}

void MenuMethods::open(Params& params, const Reply& reply) {
    const OpenView* view = viewOf(params, session.workspace());
    const Place place = view != nullptr ? placeFrom(params, *view) : Place();
    if (!params.error() && openMenu() != nullptr)
        params.fail(u"a menu is open already"_s, RpcCode::Refused);
    if (params.error()) {
        reply(*params.error());
        return;
    }
    // The click may run a loop for as long as the menu is open.
    QTimer::singleShot(0, this, [place] {
        if (place.widget)
            clickAt(*place.widget, place.point, place.button);
    });
    answerWhenOpen(reply, mostLooks);
}

void MenuMethods::answerWhenOpen(const Reply& reply, int looks) {
    QTimer::singleShot(lookMs, this, [this, reply, looks] {
        if (const QMenu* menu = openMenu())
            reply(QJsonObject{{u"items"_s, itemsOf(*menu)}});
        else if (looks > 0)
            answerWhenOpen(reply, looks - 1);
        else
            reply(RpcError{RpcCode::Refused, u"no menu has opened there"_s});
    });
}

Answer MenuMethods::choose(Params& params) {
    const auto id = params.optionalNumber(u"id"_s);
    QMenu* menu = openMenu();
    if (!params.error() && menu == nullptr)
        params.fail(u"no menu is open"_s, RpcCode::Refused);
    if (params.error())
        return {};
    if (!id) {
        menu->close();
        return {};
    }
    const QList<QAction*> actions = menu->actions();
    const auto action = std::find_if(actions.begin(), actions.end(), [&id](const QAction* item) {
        return !item->isSeparator() && item->isVisible() && item->data().toInt() == *id;
    });
    if (action == actions.end())
        return RpcError{RpcCode::NotFound, u"the menu has no item %1"_s.arg(*id)};
    if (!(*action)->isEnabled())
        return RpcError{RpcCode::Refused, u"the item %1 is disabled"_s.arg(*id)};
    chooseMenuItem(*menu, **action);
    return {};
}

}  // namespace wirepane

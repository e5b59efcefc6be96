// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/input_methods.h"

#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "terminal/automation/user_input.h"
#include "terminal/automation/view_lookup.h"
#include "terminal/session/session.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDialog>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int storyPane = 59649;
constexpr int storyText = 8071;

// The story in the pane, or in the view's dialog.
QWidget* shownStory(const OpenView& view) {
    const QWidget* pane = dlgItem(view.view, storyPane);
    if (pane != nullptr && pane->isVisible())
        return dlgItem(pane, storyText);
    const auto dialogs = view.view->findChildren<QDialog*>();
    for (const QDialog* dialog : dialogs) {
        if (QWidget* story = dialog->isVisible() ? dlgItem(dialog, storyText) : nullptr)
            return story;
    }
    return nullptr;
}

// What has the keyboard: an open menu or drop-down, a dialog, a control; else the grid.
QWidget* keyboardHolder(const OpenView& view) {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
    if (QWidget* dialog = QApplication::activeModalWidget())
        return dialog->focusWidget() != nullptr ? dialog->focusWidget() : dialog;
    QWidget* focus = QApplication::focusWidget();
    return focus != nullptr ? focus : view.shownGrid();
}

// The widget that "target" names; null with the error recorded.
QWidget* targetOf(Params& params, const OpenView& view) {
    const QJsonValue target = params.value(u"target"_s);
    QWidget* widget = nullptr;
    if (!params.has(u"target"_s))
        widget = keyboardHolder(view);
    else if (target.isDouble())
        widget = dlgItem(view.view, static_cast<int>(params.number(u"target"_s, 1)));
    else if (target == u"grid"_s)
        widget = view.shownGrid();
    else if (target == u"story"_s)
        widget = shownStory(view);
    else
        params.fail(u"\"target\" must be the number of a control, \"grid\" or \"story\""_s);
    if (widget == nullptr)
        params.fail(u"view %1 has no such target"_s.arg(view.number), RpcCode::NotFound);
    else if (!widget->isVisible() || !widget->isEnabled())
        params.fail(u"the target is hidden or disabled"_s, RpcCode::Refused);
    return params.error() ? nullptr : widget;
}

// Of what scrolls, in its viewport.
WidgetPoint middleOf(QWidget* target) {
    if (auto* area = qobject_cast<QAbstractScrollArea*>(target))
        target = area->viewport();
    return {target, target != nullptr ? target->rect().center() : QPoint()};
}

Qt::MouseButton buttonOf(Params& params) {
    const QString name = params.optionalText(u"button"_s).value_or(u"left"_s);
    if (name != "left"_L1 && name != "right"_L1)
        params.fail(u"\"button\" must be \"left\" or \"right\""_s);
    return name == "right"_L1 ? Qt::RightButton : Qt::LeftButton;
}

}  // namespace

void InputMethods::addTo(MethodTable& table) {
    table.addModal(u"input.key"_s, [this](Params& params) { return key(params); });
    table.addModal(u"input.type"_s, [this](Params& params) { return type(params); });
    table.addModal(u"input.click"_s, [this](Params& params) { return click(params); });
}

Answer InputMethods::key(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    const QString name = params.text(u"key"_s);
    const auto wanted = keyNamed(name);
    if (!wanted)
        params.fail(u"there is no key \"%1\""_s.arg(name));
    QWidget* target = view != nullptr && !params.error() ? targetOf(params, *view) : nullptr;
    if (target != nullptr)
        hitKey(*target, *wanted);
    return {};
}

Answer InputMethods::type(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    const QString text = params.text(u"text"_s);
    QWidget* target = view != nullptr && !params.error() ? targetOf(params, *view) : nullptr;
    if (target != nullptr)
        hitKeysOf(*target, text);
    return {};
}

Answer InputMethods::click(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    const auto row = params.optionalNumber(u"row"_s, 0);
    const Qt::MouseButton button = buttonOf(params);
    const bool twice = params.optionalBool(u"double"_s).value_or(false);
    if (row.has_value() == params.has(u"target"_s))
        params.fail(u"one of \"row\" and \"target\" says where"_s);
    if (view == nullptr || params.error())
        return {};
    const WidgetPoint place =
        row ? middleOfRow(params, *view, static_cast<int>(*row)) : middleOf(targetOf(params, *view));
    if (place.widget == nullptr)
        return {};
    if (twice)
        doubleClickAt(*place.widget, place.point, button);
    else
        clickAt(*place.widget, place.point, button);
    return {};
}

}  // namespace wirepane

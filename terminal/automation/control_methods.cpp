// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/control_methods.h"

#include "host/controls/plain_caption.h"
#include "terminal/automation/user_input.h"
#include "terminal/automation/view_lookup.h"
#include "terminal/session/session.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The entries of a control that one can be chosen of.
QStringList entriesOf(const QWidget& control) {
    QStringList entries;
    if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
        for (int i = 0; i < combo->count(); ++i)
            entries.append(combo->itemText(i));
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) {
        for (int i = 0; i < tabs->count(); ++i)
            entries.append(nameOfCaption(tabs->tabText(i)));
    }
    return entries;
}

// The entry that "index" or "text" names; -1 with the error recorded.
int entryAsked(Params& params, const QStringList& entries) {
    const auto index = params.optionalNumber(u"index"_s);
    const auto text = params.optionalText(u"text"_s);
    if (index.has_value() == text.has_value())
        params.fail(u"one of \"index\" and \"text\" says which entry"_s);
    if (params.error())
        return -1;
    const auto found = text ? entries.indexOf(*text) : *index;
    if (found >= 0 && found < entries.size())
        return static_cast<int>(found);
    params.fail(text ? u"there is no entry \"%1\""_s.arg(*text) : u"there is no entry %1"_s.arg(*index),
                RpcCode::NotFound);
    return -1;
}

void requireUsable(Params& params, const QWidget* control) {
    if (control != nullptr && !(control->isVisible() && control->isEnabled()))
        params.fail(u"the control is hidden or disabled"_s, RpcCode::Refused);
}

}  // namespace

void ControlMethods::addTo(MethodTable& table) {
    table.addModal(u"control.choose"_s, [this](Params& params) { return choose(params); });
    table.addModal(u"control.set"_s, [this](Params& params) { return set(params); });
}

Answer ControlMethods::choose(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    QWidget* control = view != nullptr ? controlOf(params, *view) : nullptr;
    requireUsable(params, control);
    if (control == nullptr || params.error())
        return {};
    auto* combo = qobject_cast<QComboBox*>(control);
    auto* tabs = qobject_cast<QTabBar*>(control);
    if (combo == nullptr && tabs == nullptr) {
        params.fail(u"the control has no entries to choose from"_s, RpcCode::Refused);
        return {};
    }
    const int entry = entryAsked(params, entriesOf(*control));
    if (params.error())
        return {};
    if (combo != nullptr)
        chooseComboEntry(*combo, entry);
    else
        clickTab(*tabs, entry);
    return {};
}

Answer ControlMethods::set(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    QWidget* control = view != nullptr ? controlOf(params, *view) : nullptr;
    requireUsable(params, control);
    const auto text = params.optionalText(u"text"_s);
    const auto checked = params.optionalBool(u"checked"_s);
    if (text.has_value() == checked.has_value())
        params.fail(u"one of \"text\" and \"checked\" says what the control is to hold"_s);
    if (control == nullptr || params.error())
        return {};
    auto* combo = qobject_cast<QComboBox*>(control);
    auto* edit = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(control);
    auto* button = qobject_cast<QAbstractButton*>(control);
    if (text && edit != nullptr && !edit->isReadOnly())
        typeText(*edit, *text);
    else if (checked && button != nullptr && button->isCheckable())
        setChecked(*button, *checked);
    else
        params.fail(u"the control holds no such thing"_s, RpcCode::Refused);
    return {};
}

}  // namespace wirepane

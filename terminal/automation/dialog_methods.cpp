// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/dialog_methods.h"

#include "host/controls/plain_caption.h"
#include "host/controls/window_id.h"
#include "terminal/automation/user_input.h"
#include "terminal/automation/window_report.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::pair<QMessageBox::StandardButton, QLatin1StringView> boxButtons[] = {
    {QMessageBox::Ok, "ok"_L1},
    {QMessageBox::Cancel, "cancel"_L1},
    {QMessageBox::Yes, "yes"_L1},
    {QMessageBox::No, "no"_L1}};

// The one that the user works in: the active one, else the one that keeps all others waiting.
QDialog* topDialog() {
    auto* active = qobject_cast<QDialog*>(QApplication::activeWindow());
    return active != nullptr ? active : qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

QDialog* dialogOf(Params& params) {
    QDialog* dialog = topDialog();
    if (dialog == nullptr)
        params.fail(u"no dialog is open"_s, RpcCode::NotFound);
    return dialog;
}

// The number of a control, the name of a message box's button; null for any other.
QJsonValue idOf(const QDialog& dialog, const QWidget* control) {
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog)) {
        for (const auto& [button, name] : boxButtons) {
            if (control != nullptr && box->button(button) == control)
                return QString(name);
        }
    }
    const int id = control != nullptr && dialog.isAncestorOf(control) ? windowId(control) : 0;
    return id != 0 ? QJsonValue(id) : QJsonValue(QJsonValue::Null);
}

QJsonArray boxReport(const QMessageBox& box) {
    QJsonArray report;
    for (const QAbstractButton* button : box.buttons())
        report.append(QJsonObject{{u"id"_s, idOf(box, button)}, {u"text"_s, nameOfCaption(button->text())}});
    return report;
}

Answer state(Params&) {
    const QDialog* dialog = topDialog();
    Answer answer;
    if (dialog == nullptr) {
        answer.result = QJsonValue(QJsonValue::Null);
        return answer;
    }
    const auto* box = qobject_cast<const QMessageBox*>(dialog);
    const auto buttons = dialog->findChildren<QPushButton*>();
    const auto preset = std::find_if(buttons.begin(), buttons.end(),
                                     [](const QPushButton* button) { return button->isDefault(); });
    answer.result = QJsonObject{{u"id"_s, windowId(dialog)},
                                {u"class"_s, QString::fromLatin1(dialog->metaObject()->className())},
                                {u"title"_s, dialog->windowTitle()},
                                {u"text"_s, box != nullptr ? box->text() : QString()},
                                {u"focus"_s, idOf(*dialog, QApplication::focusWidget())},
                                {u"default"_s, idOf(*dialog, preset == buttons.end() ? nullptr : *preset)},
                                {u"size"_s, QJsonArray{dialog->width(), dialog->height()}},
                                {u"controls"_s, box != nullptr ? boxReport(*box) : controlsReport(*dialog)}};
    return answer;
}

// What the user can work; Enter presses a default button also where it is hidden.
bool isInReach(const QWidget& control) {
    const auto* button = qobject_cast<const QPushButton*>(&control);
    return control.isEnabled() && (control.isVisible() || (button != nullptr && button->isDefault()));
}

// The control that "id" names, by number or, in a message box, by name; null with the error recorded.
QWidget* controlIn(Params& params, const QDialog& dialog) {
    const QJsonValue id = params.value(u"id"_s);
    QWidget* control = nullptr;
    if (id.isString()) {
        const auto buttons = dialog.findChildren<QAbstractButton*>();
        const auto named = std::find_if(buttons.begin(), buttons.end(),
                                        [&](const QWidget* button) { return idOf(dialog, button) == id; });
        control = named == buttons.end() ? nullptr : *named;
    } else {
        control = dlgItem(&dialog, static_cast<int>(params.number(u"id"_s, 1)));
    }
    if (params.error())
        return nullptr;
    if (control == nullptr)
        params.fail(u"the dialog has no control %1"_s.arg(id.toVariant().toString()), RpcCode::NotFound);
    else if (!isInReach(*control))
        params.fail(u"the control is hidden or disabled"_s, RpcCode::Refused);
    return params.error() ? nullptr : control;
}

void requireRows(Params& params, const QAbstractItemView& list, const std::vector<int>& rows) {
    for (const int row : rows) {
        if (row < 0 || row >= list.model()->rowCount(list.rootIndex()))
            params.fail(u"the list has no row %1"_s.arg(row), RpcCode::NotFound);
    }
}

void selectRows(QAbstractItemView& list, const std::vector<int>& rows) {
    list.setFocus();
    QItemSelection selection;
    const auto* model = list.model();
    for (const int row : rows)
        selection.select(model->index(row, 0), model->index(row, model->columnCount() - 1));
    if (!rows.empty())
        list.selectionModel()->setCurrentIndex(model->index(rows.back(), 0), QItemSelectionModel::NoUpdate);
    list.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void checkRows(QAbstractItemView& list, const std::vector<int>& rows) {
    auto* model = list.model();
    for (int row = 0; row < model->rowCount(); ++row) {
        const bool wanted = std::find(rows.begin(), rows.end(), row) != rows.end();
        const QModelIndex index = model->index(row, 0);
        if ((index.data(Qt::CheckStateRole).toInt() == Qt::Checked) != wanted)
            model->setData(index, wanted ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    }
}

bool setText(QWidget& control, const QString& text) {
    auto* combo = qobject_cast<QComboBox*>(&control);
    auto* edit = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(&control);
    if (edit == nullptr || edit->isReadOnly())
        return false;
    typeText(*edit, text);
    return true;
}

bool setIndex(Params& params, QWidget& control, int index) {
    auto* combo = qobject_cast<QComboBox*>(&control);
    auto* tabs = qobject_cast<QTabBar*>(&control);
    auto* list = qobject_cast<QAbstractItemView*>(&control);
    const int count = combo != nullptr  ? combo->count()
                      : tabs != nullptr ? tabs->count()
                      : list != nullptr ? list->model()->rowCount()
                                        : -1;
    if (index >= count && count >= 0)
        params.fail(u"there is no entry %1"_s.arg(index), RpcCode::NotFound);
    if (count < 0 || params.error())
        return count >= 0;
    if (combo != nullptr)
        chooseComboEntry(*combo, index);
    else if (tabs != nullptr)
        clickTab(*tabs, index);
    else
        selectRows(*list, {index});
    return true;
}

bool setCheck(QWidget& control, bool checked) {
    auto* button = qobject_cast<QAbstractButton*>(&control);
    if (button == nullptr || !button->isCheckable())
        return false;
    setChecked(*button, checked);
    return true;
}

// What a control is to hold: one of them.
struct Wish {
    std::optional<QString> text;
    std::optional<bool> checked;
    std::optional<std::int64_t> index;
    std::optional<std::vector<int>> selection;
    std::optional<std::vector<int>> checkedRows;
};

Wish wishFrom(Params& params) {
    Wish wish{params.optionalText(u"text"_s), params.optionalBool(u"checked"_s),
              params.optionalNumber(u"index"_s, 0), params.optionalNumbers(u"selection"_s),
              params.optionalNumbers(u"checkedRows"_s)};
    const auto given = {wish.text.has_value(), wish.checked.has_value(), wish.index.has_value(),
                        wish.selection.has_value(), wish.checkedRows.has_value()};
    if (std::count(given.begin(), given.end(), true) != 1)
        params.fail(
            u"one of \"text\", \"checked\", \"index\", \"selection\" and \"checkedRows\" says what the "
            u"control is to hold"_s);
    return wish;
}

bool setRows(Params& params, QWidget& control, const Wish& wish) {
    auto* list = qobject_cast<QAbstractItemView*>(&control);
    if (list == nullptr)
        return false;
    const std::vector<int>& rows = wish.selection ? *wish.selection : *wish.checkedRows;
    requireRows(params, *list, rows);
    if (params.error())
        return true;
    if (wish.selection)
        selectRows(*list, rows);
    else
        checkRows(*list, rows);
    return true;
}

Answer set(Params& params) {
    const QDialog* dialog = dialogOf(params);
    QWidget* control = dialog != nullptr ? controlIn(params, *dialog) : nullptr;
    const Wish wish = wishFrom(params);
    if (control == nullptr || params.error())
        return {};
    bool held = false;
    if (wish.text)
        held = setText(*control, *wish.text);
    else if (wish.checked)
        held = setCheck(*control, *wish.checked);
    else if (wish.index)
        held = setIndex(params, *control, static_cast<int>(*wish.index));
    else
        held = setRows(params, *control, wish);
    if (!held)
        params.fail(u"the control holds no such thing"_s, RpcCode::Refused);
    return {};
}

Answer click(Params& params) {
    const QDialog* dialog = dialogOf(params);
    QWidget* control = dialog != nullptr ? controlIn(params, *dialog) : nullptr;
    const auto row = params.optionalNumber(u"row"_s, 0);
    const bool twice = params.optionalBool(u"double"_s).value_or(false);
    const QString name = params.optionalText(u"button"_s).value_or(u"left"_s);
    if (name != u"left"_s && name != u"right"_s)
        params.fail(u"\"button\" must be \"left\" or \"right\""_s);
    auto* list = qobject_cast<QAbstractItemView*>(control);
    if (row && control != nullptr && list == nullptr)
        params.fail(u"the control has no rows"_s, RpcCode::Refused);
    if (row && list != nullptr)
        requireRows(params, *list, {static_cast<int>(*row)});
    if (control == nullptr || params.error())
        return {};
    if (!control->isVisible()) {
        qobject_cast<QPushButton*>(control)->click();
        return {};
    }
    QWidget* target = list != nullptr ? list->viewport() : control;
    QPoint point = target->rect().center();
    if (row) {
        const QModelIndex index = list->model()->index(static_cast<int>(*row), 0);
        list->scrollTo(index);
        point = list->visualRect(index).center();
    }
    if (control->focusPolicy() & Qt::ClickFocus)
        control->setFocus(Qt::MouseFocusReason);
    const Qt::MouseButton button = name == u"right"_s ? Qt::RightButton : Qt::LeftButton;
    if (twice)
        doubleClickAt(*target, point, button);
    else
        clickAt(*target, point, button);
    return {};
}

Answer close(Params& params) {
    if (QDialog* dialog = dialogOf(params))
        dialog->close();
    return {};
}

}  // namespace

void DialogMethods::addTo(MethodTable& table) {
    table.add(u"dialog.state"_s, state);
    table.addModal(u"dialog.set"_s, set);
    table.addModal(u"dialog.click"_s, click);
    table.addModal(u"dialog.close"_s, close);
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/window_report.h"

#include "host/controls/plain_caption.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/controls/xt_tip_window.h"
#include "terminal/frame/workspace.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QJsonObject comboReport(const QComboBox& combo) {
    QJsonArray items;
    for (int i = 0; i < combo.count(); ++i)
        items.append(combo.itemText(i));
    return {{u"text"_s, combo.currentText()}, {u"items"_s, items}, {u"index"_s, combo.currentIndex()}};
}

QJsonObject tabsReport(const QTabBar& tabs) {
    QJsonArray items;
    for (int i = 0; i < tabs.count(); ++i)
        items.append(nameOfCaption(tabs.tabText(i)));
    return {{u"text"_s, nameOfCaption(tabs.tabText(tabs.currentIndex()))},
            {u"items"_s, items},
            {u"index"_s, tabs.currentIndex()}};
}

QJsonObject buttonReport(const QAbstractButton& button) {
    return {{u"text"_s, nameOfCaption(button.text())}, {u"checked"_s, button.isChecked()}};
}

// The texts of the rows of a list and which are selected and ticked; a tree's branches are its rows.
QJsonObject listReport(const QAbstractItemView& list) {
    const QAbstractItemModel& model = *list.model();
    QJsonArray columns;
    QJsonArray rows;
    QJsonArray selection;
    QJsonArray checkedRows;
    for (int column = 0; column < model.columnCount(); ++column)
        columns.append(model.headerData(column, Qt::Horizontal).toString());
    for (int row = 0; row < model.rowCount(); ++row) {
        QJsonArray texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts.append(model.index(row, column).data().toString());
        rows.append(texts);
        if (list.selectionModel()->isSelected(model.index(row, 0)))
            selection.append(row);
        if (model.index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked)
            checkedRows.append(row);
    }
    return {{u"columns"_s, columns},
            {u"rows"_s, rows},
            {u"selection"_s, selection},
            {u"checkedRows"_s, checkedRows}};
}

// What a control shows, by its kind.
QJsonObject contentReport(const QWidget& control) {
    if (const auto* combo = qobject_cast<const QComboBox*>(&control))
        return comboReport(*combo);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&control))
        return tabsReport(*tabs);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
        return buttonReport(*button);
    if (const auto* edit = qobject_cast<const QLineEdit*>(&control))
        return {{u"text"_s, edit->text()}};
    if (const auto* date = qobject_cast<const QDateTimeEdit*>(&control))
        return {{u"text"_s, date->text()}};
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        return {{u"text"_s, label->text()}};
    if (const auto* list = qobject_cast<const QAbstractItemView*>(&control);
        list != nullptr && qobject_cast<const CSuperSheetWnd*>(&control) == nullptr)
        return listReport(*list);
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&control))
        return {{u"text"_s, text->toPlainText()}};
    return {};
}

QJsonObject controlReport(const QWidget& window, const QWidget& control) {
    QJsonObject report{{u"id"_s, windowId(&control)},
                       {u"class"_s, QString::fromLatin1(control.metaObject()->className())},
                       {u"text"_s, QString()},
                       {u"visible"_s, control.isVisibleTo(&window)},
                       {u"enabled"_s, control.isEnabledTo(&window)},
                       {u"rect"_s, rectangleReport(control.geometry())}};
    const QJsonObject content = contentReport(control);
    for (auto part = content.begin(); part != content.end(); ++part)
        report.insert(part.key(), part.value());
    return report;
}

QJsonArray gridsReport(const OpenView& view) {
    QJsonArray grids;
    for (int list = 0; list < NewsViewAccess::lists; ++list) {
        const CSuperSheetWnd* sheet = view.access->sheetOf(list);
        if (sheet == nullptr)
            continue;
        const QRect place(sheet->mapTo(view.view, QPoint(0, 0)), sheet->size());
        grids.append(QJsonObject{{u"list"_s, list},
                                 {u"visible"_s, sheet->isVisibleTo(view.view)},
                                 {u"rect"_s, rectangleReport(place)},
                                 {u"rows"_s, sheet->rowCount()}});
    }
    return grids;
}

// The tip that stands over the view or one of its parts.
QJsonObject tipReport(const QWidget& view) {
    QJsonObject report{{u"visible"_s, false}, {u"text"_s, QString()}, {u"rect"_s, rectangleReport({})}};
    const auto parts = view.findChildren<QWidget*>();
    for (const QWidget* part : parts) {
        const auto* line = part->inherits("CQuoteDlgTipMsg") ? part->findChild<QLabel*>() : nullptr;
        if (line == nullptr || !part->isVisibleTo(&view))
            continue;
        const QRect place(part->mapTo(&view, QPoint(0, 0)), part->size());
        report = {{u"visible"_s, true}, {u"text"_s, line->text()}, {u"rect"_s, rectangleReport(place)}};
    }
    return report;
}

QJsonObject shortTipReport(const QWidget& view) {
    const auto tips = view.findChildren<CXTTipWindow*>();
    for (const CXTTipWindow* tip : tips) {
        if (tip->isVisible())
            return {{u"visible"_s, true}, {u"text"_s, tip->text()}};
    }
    return {{u"visible"_s, false}, {u"text"_s, QString()}};
}

}  // namespace

QJsonArray rectangleReport(const QRect& rectangle) {
    return {rectangle.x(), rectangle.y(), rectangle.width(), rectangle.height()};
}

QJsonArray controlsReport(const QWidget& window) {
    QList<const QWidget*> controls;
    const auto children = window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    std::copy_if(children.begin(), children.end(), std::back_inserter(controls),
                 [](const QWidget* child) { return !child->isWindow() && windowId(child) != 0; });
    std::sort(controls.begin(), controls.end(),
              [](const QWidget* a, const QWidget* b) { return windowId(a) < windowId(b); });
    QJsonArray report;
    for (const QWidget* control : controls)
        report.append(controlReport(window, *control));
    return report;
}

QJsonObject viewReport(const OpenView& view) {
    QString caption;
    view.view->GetCaption(caption);
    QJsonArray timers;
    for (const int id : view.view->runningTimers())
        timers.append(id);
    QJsonObject report{{u"view"_s, view.number},
                       {u"title"_s, caption},
                       {u"dataState"_s, static_cast<int>(view.view->currentDataState())},
                       {u"linkGroup"_s, view.view->linkedGroup()},
                       {u"tip"_s, tipReport(*view.view)},
                       {u"shortTip"_s, shortTipReport(*view.view)},
                       {u"quotes"_s, QJsonArray()},
                       {u"size"_s, QJsonArray{view.view->width(), view.view->height()}},
                       {u"timers"_s, timers},
                       {u"controls"_s, controlsReport(*view.view)},
                       {u"grids"_s, gridsReport(view)}};
    const QJsonObject own = QJsonObject::fromVariantMap(view.access->state());
    for (auto part = own.begin(); part != own.end(); ++part)
        report.insert(part.key(), part.value());
    return report;
}

}  // namespace wirepane

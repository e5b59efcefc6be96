// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/warn_term_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/heap_dialog.h"
#include "host/controls/report_list.h"
#include "host/controls/roomy_rows.h"
#include "host/controls/window_id.h"
#include "search/condition_texts.h"
#include "search/dialog_controls.h"
#include "search/search_ids.h"
#include "search/search_keys.h"
#include "search/warn_term_config_dlg.h"

#include <QBoxLayout>
#include <QPushButton>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr int numberWidth = 24;
constexpr int scopeWidth = 72;
constexpr int methodWidth = 72;
constexpr int characters = 90;
constexpr int rowsInSight = 10;

// A method that is not set has no text.
QString methodText(const CSearch& item) {
    return isSearchMethod(item.method) || item.isQuery() ? searchMethodText(item.method, item.language)
                                                         : QString();
}

}  // namespace

CWarnTermDlg::CWarnTermDlg(const WarningItems& items, const CSearch& inForce, QWidget* parent,
                           bool takesQueries)
    : QDialog(parent), warnings(items), chosen(inForce), hasQueries(takesQueries) {
    setWindowId(this, search_ids::warnTerms);
    setWindowTitle(langText(search_keys::warningTitle));
    createList();
    auto* column = new QVBoxLayout(this);
    column->setSpacing(fontMetrics().height() * 2 / 3);
    column->addWidget(list, 1);
    column->addLayout(createCommands());
    column->addLayout(createEnd());
    fitToScreen(this, characters, {{list, RoomyRows::heightOf(fontMetrics()), rowsInSight}});
    for (int row = 0; warnings.itemAt(row) != nullptr; ++row)
        fillRow(row);
    list->setFocus();
}

void CWarnTermDlg::offerAlert(std::function<void(const CSearch&)> propose) {
    QPushButton* button = makeButton(this, search_ids::alertOfWarning, langText(search_keys::alertMe));
    commands->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, propose = std::move(propose)] {
        if (const CSearch* const item = warnings.itemAt(selectedRow()))
            propose(*item);
    });
}

int CWarnTermDlg::DoModal() {
    return runModally(this);
}

void CWarnTermDlg::createList() {
    list = new ReportList(
        std::array{
            ReportColumn{u" "_s, numberWidth},
            ReportColumn{langText(search_keys::scopeColumn), scopeWidth, Qt::AlignLeft, scopeTexts()},
            ReportColumn{langText(search_keys::methodColumn), methodWidth, Qt::AlignHCenter, methodTexts()},
            ReportColumn{langText(search_keys::contentsColumn), 0}},
        this);
    setWindowId(list, search_ids::warnings);
    list->setAccessibleName(langText(search_keys::warningTitle));
    list->setMinimumHeight(list->heightOf(rowsInSight));
    connect(
        list, &QTableWidget::cellDoubleClicked, this, [this] { edit(); }, Qt::QueuedConnection);
}

QLayout* CWarnTermDlg::createCommands() {
    auto* row = new QHBoxLayout;
    commands = row;
    const auto add = [&](int id, QLatin1StringView key, void (CWarnTermDlg::*act)()) {
        QPushButton* button = makeButton(this, id, langText(key));
        connect(button, &QPushButton::clicked, this, act);
        row->addWidget(button);
    };
    add(search_ids::addWarning, search_keys::addWarning, &CWarnTermDlg::add);
    add(search_ids::editWarning, search_keys::editWarning, &CWarnTermDlg::edit);
    add(search_ids::deleteWarning, search_keys::deleteWarning, &CWarnTermDlg::deleteChosen);
    row->addStretch();
    return row;
}

QLayout* CWarnTermDlg::createEnd() {
    QPushButton* ok = makeButton(this, search_ids::ok, langText(search_keys::ok));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &CWarnTermDlg::onOK);
    return addEnd(this, ok);
}

int CWarnTermDlg::selectedRow() const {
    const QModelIndexList rows = list->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

// Rows keep the number that they were given; only the next opening counts them anew.
void CWarnTermDlg::fillRow(int row) {
    const CSearch& item = *warnings.itemAt(row);
    const QStringList keywords(item.keywords.begin(), item.keywords.end());
    list->setRow(row,
                 {QString::number(row + 1), scopeText(item.scope), methodText(item), keywords.join(u", "_s)});
    QFont font = list->font();
    font.setBold(warnings.chosen == row + 1);
    for (int column = 0; column < list->columnCount(); ++column)
        list->item(row, column)->setFont(font);
}

bool CWarnTermDlg::edit(CSearch& condition) {
    const HeapDialog dialog(new CWarnTermConfigDlg(condition, this, hasQueries));
    if (runOver(this, dialog.get()) != Accepted)
        return false;
    condition = dialog->composed();
    return true;
}

void CWarnTermDlg::add() {
    CSearch condition;
    condition.method = numberOf(SearchMethod::All);
    if (edit(condition) && warnings.add(condition))
        fillRow(list->rowCount());
}

void CWarnTermDlg::edit() {
    const int row = selectedRow();
    if (row < 0)
        return;
    CSearch condition = *warnings.itemAt(row);
    if (!edit(condition) || !warnings.replace(row, condition))
        return;
    list->removeRow(row);
    fillRow(list->rowCount());
}

void CWarnTermDlg::deleteChosen() {
    const int row = selectedRow();
    if (row < 0)
        return;
    warnings.remove(row);
    list->removeRow(row);
}

void CWarnTermDlg::onOK() {
    const int row = selectedRow();
    if (row < 0) {
        tellError(this, langText(search_keys::noWarningSelected));
        return;
    }
    warnings.choose(row, chosen);
    accept();
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/warn_term_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/heap_dialog.h"
#include "host/controls/window_id.h"
#include "search/condition_texts.h"
#include "search/dialog_controls.h"
#include "search/report_list.h"
#include "search/search_ids.h"
#include "search/search_keys.h"
#include "search/warn_term_config_dlg.h"

#include <QBoxLayout>
#include <QPushButton>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int numberWidth = 24;
constexpr int scopeWidth = 72;
constexpr int methodWidth = 72;
constexpr int rowsInSight = 10;

// A method that is not set has no text.
QString methodText(int method) {
    return isSearchMethod(method) ? MethodText(method) : QString();
}

}  // namespace

CWarnTermDlg::CWarnTermDlg(const WarningItems& items, const CSearch& inForce, QWidget* parent)
    : QDialog(parent), warnings(items), chosen(inForce) {
    SetWindowId(this, search_ids::warnTerms);
    setWindowTitle(LangText(search_keys::warningTitle));
    vCreateList();
    auto* column = new QVBoxLayout(this);
    column->setSpacing(fontMetrics().height() * 2 / 3);
    column->addWidget(list, 1);
    column->addLayout(pCreateCommands());
    column->addLayout(pCreateEnd());
    resize(fontMetrics().averageCharWidth() * 90, sizeHint().height());
    for (int row = 0; warnings.Item(row) != nullptr; ++row)
        vFillRow(row);
    list->setFocus();
}

int CWarnTermDlg::DoModal() {
    return RunModally(this);
}

void CWarnTermDlg::vCreateList() {
    list = new ReportList(
        std::array{
            ReportColumn{u" "_s, numberWidth},
            ReportColumn{LangText(search_keys::scopeColumn), scopeWidth, Qt::AlignLeft, ScopeTexts()},
            ReportColumn{LangText(search_keys::methodColumn), methodWidth, Qt::AlignHCenter, MethodTexts()},
            ReportColumn{LangText(search_keys::contentsColumn), 0}},
        this);
    SetWindowId(list, search_ids::warnings);
    list->setAccessibleName(LangText(search_keys::warningTitle));
    list->setMinimumHeight(list->iHeightOf(rowsInSight));
    connect(
        list, &QTableWidget::cellDoubleClicked, this, [this] { vEdit(); }, Qt::QueuedConnection);
}

QLayout* CWarnTermDlg::pCreateCommands() {
    auto* row = new QHBoxLayout;
    const auto add = [&](int id, QLatin1StringView key, void (CWarnTermDlg::*act)()) {
        QPushButton* button = AddButton(this, id, LangText(key));
        connect(button, &QPushButton::clicked, this, act);
        row->addWidget(button);
    };
    add(search_ids::addWarning, search_keys::addWarning, &CWarnTermDlg::vAdd);
    add(search_ids::editWarning, search_keys::editWarning, &CWarnTermDlg::vEdit);
    add(search_ids::deleteWarning, search_keys::deleteWarning, &CWarnTermDlg::vDelete);
    row->addStretch();
    return row;
}

QLayout* CWarnTermDlg::pCreateEnd() {
    QPushButton* ok = AddButton(this, search_ids::ok, LangText(search_keys::ok));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &CWarnTermDlg::OnOK);
    return AddEnd(this, ok);
}

int CWarnTermDlg::SelectedRow() const {
    const QModelIndexList rows = list->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

// Rows keep the number that they were given; only the next opening counts them anew.
void CWarnTermDlg::vFillRow(int row) {
    const CSearch& item = *warnings.Item(row);
    const QStringList keywords(item.keywords.begin(), item.keywords.end());
    list->vSetRow(row, {QString::number(row + 1), ScopeText(item.scope), methodText(item.method),
                        keywords.join(u", "_s)});
    QFont font = list->font();
    font.setBold(warnings.chosen == row + 1);
    for (int column = 0; column < list->columnCount(); ++column)
        list->item(row, column)->setFont(font);
}

bool CWarnTermDlg::bEdit(CSearch& condition) {
    const HeapDialog dialog(new CWarnTermConfigDlg(condition, this));
    if (RunOver(this, dialog.get()) != Accepted)
        return false;
    condition = dialog->Condition();
    return true;
}

void CWarnTermDlg::vAdd() {
    CSearch condition;
    condition.method = numberOf(SearchMethod::All);
    if (bEdit(condition) && warnings.Add(condition))
        vFillRow(list->rowCount());
}

void CWarnTermDlg::vEdit() {
    const int row = SelectedRow();
    if (row < 0)
        return;
    CSearch condition = *warnings.Item(row);
    if (!bEdit(condition) || !warnings.Replace(row, condition))
        return;
    list->removeRow(row);
    vFillRow(list->rowCount());
}

void CWarnTermDlg::vDelete() {
    const int row = SelectedRow();
    if (row < 0)
        return;
    warnings.Remove(row);
    list->removeRow(row);
}

void CWarnTermDlg::OnOK() {
    const int row = SelectedRow();
    if (row < 0) {
        TellError(this, LangText(search_keys::noWarningSelected));
        return;
    }
    warnings.Choose(row, chosen);
    accept();
}

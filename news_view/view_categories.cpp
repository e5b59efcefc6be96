// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The categories of the news view: names and colours, the category combo, the category column.
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/item_display.h"
#include "host/controls/sc_combo_box.h"
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"

#include <algorithm>

QString TRVNewsCtrlView::cszTransferCatIDToCatName(int id) const {
    const bool warrants = currentMode == static_cast<int>(ListIndex::Warrant);
    const QString* name = warrants ? warrantCategories.NameOf(id) : nullptr;
    if (name == nullptr)
        name = categories.NameOf(id);
    return name != nullptr ? *name : LangText(backEnd, keys::recover);
}

int TRVNewsCtrlView::GetCategoryIDbyName(const QString& name) const {
    return categories.GetCategoryIDbyName(name);
}

int TRVNewsCtrlView::GetCategoryColor(const QString& name, QColor& text, QColor& background) const {
    const int id = GetCategoryIDbyName(name);
    if (id < 0)
        return 0;
    TRVItemDisplay::GetItemDisplay()->GetNewsCatColor(id, text, background);
    return 1;
}

void TRVNewsCtrlView::ChangeCurrViewCategoryState(bool show) {
    CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (newsType == 1 || sheet == nullptr)
        return;
    sheet->vSetColWidth(1, show ? categoryColumnWidth : 0);
    sheet->viewport()->update();
}

void TRVNewsCtrlView::OnChangeCategoryState() {
    settings.showCategory = !settings.showCategory;
    ChangeCurrViewCategoryState(settings.showCategory);
}

// Fills the combo once, with the stored category chosen; without a stored one the first is.
bool TRVNewsCtrlView::bInitialCategoryInfo() {
    const QString stored = settings.categoryId;
    vFillCategoryCombo();
    const auto found = std::find(categoryComboIds.begin(), categoryComboIds.end(), stored);
    if (auto* combo = controls.Find<SCComboBox>(ids::categoryCombo))
        combo->setCurrentIndex(
            found == categoryComboIds.end() ? 0 : static_cast<int>(found - categoryComboIds.begin()));
    OnSelchangeComboIndex();
    return !categoryComboIds.empty();
}

// Fills the combo for the ticked services anew and chooses the entry of this name, else the first.
void TRVNewsCtrlView::vRefreshCategoryCombo(const QString& name) {
    auto* combo = controls.Find<SCComboBox>(ids::categoryCombo);
    if (combo == nullptr)
        return;
    vFillCategoryCombo();
    combo->setCurrentIndex(std::max(combo->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive), 0));
    OnSelchangeComboIndex();
}

void TRVNewsCtrlView::vFillCategoryCombo() {
    auto* combo = controls.Find<SCComboBox>(ids::categoryCombo);
    if (combo == nullptr)
        return;
    combo->clear();
    categoryComboIds.clear();
    for (const ServiceEntry& entry : services.Entries()) {
        std::vector<QString> idTexts;
        std::vector<QString> names;
        if (!entry.selected || !backEnd.bNewsAPI_GetNewsCatId(entry.service, idTexts, names))
            continue;
        for (std::size_t i = 0; i < std::min(idTexts.size(), names.size()); ++i) {
            if (std::find(categoryComboIds.begin(), categoryComboIds.end(), idTexts[i]) !=
                categoryComboIds.end())
                continue;
            categoryComboIds.push_back(idTexts[i]);
            combo->addItem(ShownText(backEnd, entry.service, names[i]));
        }
    }
}

std::optional<QString> TRVNewsCtrlView::SelectedCategoryId() const {
    const auto* combo = controls.Find<SCComboBox>(ids::categoryCombo);
    const int index = combo != nullptr ? combo->currentIndex() : -1;
    if (index < 0 || index >= static_cast<int>(categoryComboIds.size()))
        return {};
    return categoryComboIds[static_cast<std::size_t>(index)];
}

void TRVNewsCtrlView::OnSelchangeComboIndex() {
    const auto selected = SelectedCategoryId();
    if (!selected)
        return;
    settings.categoryId = *selected;
    vChangeNewsTable(ListIndex::Category, TableKind::ByCategory, settings.categoryId);
}

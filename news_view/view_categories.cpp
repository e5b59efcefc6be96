// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The categories of the news view: names and colours, the category combo, the category column.
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/item_display.h"
#include "host/controls/sc_combo_box.h"
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"

#include <QAbstractItemView>

#include <algorithm>
#include <set>
#include <utility>

// --- Names and colours ---

QString TRVNewsCtrlView::CategoryNameOf(unsigned char service, int id) {
    const QString* name = categories.NameOf(service, id);
    return name != nullptr ? *name : LangText(backEnd, keys::recover);
}

int TRVNewsCtrlView::CategoryColourOf(unsigned char service, const QString& name, QColor& text,
                                      QColor& background) {
    const int id = categories.IdOf(service, name);
    if (id < 0)
        return 0;
    TRVItemDisplay& display = *TRVItemDisplay::GetItemDisplay();
    if (service == warrantService)
        display.GetWarrantCatColor(id, text, background);
    else
        display.GetNewsCatColor(id, text, background);
    return 1;
}

void TRVNewsCtrlView::vReloadCategories() {
    bInitialTransferCatObject();
    vLearnCategories(true);
}

// Rows that were written before a name was known show it, and the combo offers it.
void TRVNewsCtrlView::vLearnCategories(bool hostSaysSo) {
    const bool renamed = categories.bLearn(hostSaysSo);
    for (int list = 0; renamed && list < listCount; ++list) {
        HeadlineList& shown = List(static_cast<ListIndex>(list));
        shown.vForgetWrittenCells();
        shown.vFillHeadline();
        shown.vFillTempHeadline();
        if (CSuperSheetWnd* sheet = shown.pGetGrid())
            sheet->viewport()->update();
    }
    categories.vReadAtNextMiss();
    if (std::exchange(categoryMissed, false) || renamed || hostSaysSo)
        vLearnCategoryCombo();
}

// --- The column ---

void TRVNewsCtrlView::ChangeCurrViewCategoryState(bool show) {
    CSuperSheetWnd* sheet = pGetCurrSheetView();
    const int width = show ? categoryColumnWidth : 0;
    // Asked for after every row that is written.
    if (newsType == 1 || sheet == nullptr || sheet->iGetColWidth(1) == width)
        return;
    sheet->vSetColWidth(1, width);
    sheet->viewport()->update();
}

void TRVNewsCtrlView::OnChangeCategoryState() {
    settings.showCategory = !settings.showCategory;
    ChangeCurrViewCategoryState(settings.showCategory);
}

// --- The combo ---

// Fills the combo once, with the stored category chosen; without a stored one the first is.
bool TRVNewsCtrlView::bInitialCategoryInfo() {
    vFillCategoryCombo();
    if (auto* combo = controls.Find<SCComboBox>(ids::categoryCombo))
        combo->setCurrentIndex(std::max(CategoryIndex(settings.categoryId), 0));
    OnSelchangeComboIndex();
    return !categoryItems.empty();
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

std::vector<CategoryItem> TRVNewsCtrlView::CategoryItemsOfServices() const {
    std::vector<CategoryItem> items;
    std::set<QString> known;
    for (const ServiceEntry& entry : services.Saved()) {
        std::vector<QString> idTexts;
        std::vector<QString> names;
        if (!entry.selected || !backEnd.bNewsAPI_GetNewsCatId(entry.service, idTexts, names))
            continue;
        for (std::size_t i = 0; i < std::min(idTexts.size(), names.size()); ++i) {
            if (known.insert(idTexts[i]).second)
                items.push_back({idTexts[i], ShownText(backEnd, entry.service, names[i])});
        }
    }
    return items;
}

void TRVNewsCtrlView::vFillCategoryCombo() {
    auto* combo = controls.Find<SCComboBox>(ids::categoryCombo);
    if (combo == nullptr)
        return;
    categoryItems = CategoryItemsOfServices();
    categoriesMissed.clear();
    combo->clear();
    for (const CategoryItem& item : categoryItems)
        combo->addItem(item.text);
}

// New entries, and names in another language, leave the choice and its list alone. What the user is choosing
// from does not change under his hand.
void TRVNewsCtrlView::vLearnCategoryCombo() {
    auto* combo = controls.Find<SCComboBox>(ids::categoryCombo);
    if (combo == nullptr || (categoryItems.empty() && !loading.bHasCategoryCatalogue()))
        return;
    categoryComboIsBehind = combo->view()->isVisible();
    if (categoryComboIsBehind || CategoryItemsOfServices() == categoryItems)
        return;
    const auto chosen = SelectedCategoryId();
    vFillCategoryCombo();
    const int index = CategoryIndex(chosen.value_or(settings.categoryId));
    combo->setCurrentIndex(std::max(index, 0));
    if (!chosen || index < 0)
        OnSelchangeComboIndex();
}

// The place of a category in the combo; -1 when it is not there.
int TRVNewsCtrlView::CategoryIndex(const QString& id) const {
    const auto found = std::find_if(categoryItems.begin(), categoryItems.end(),
                                    [&id](const CategoryItem& item) { return item.id == id; });
    return found == categoryItems.end() ? -1 : static_cast<int>(found - categoryItems.begin());
}

std::optional<QString> TRVNewsCtrlView::SelectedCategoryId() const {
    const auto* combo = controls.Find<SCComboBox>(ids::categoryCombo);
    const int index = combo != nullptr ? combo->currentIndex() : -1;
    if (index < 0 || index >= static_cast<int>(categoryItems.size()))
        return {};
    return categoryItems[static_cast<std::size_t>(index)].id;
}

void TRVNewsCtrlView::OnSelchangeComboIndex() {
    const auto selected = SelectedCategoryId();
    if (!selected)
        return;
    settings.categoryId = *selected;
    vChangeNewsTable(ListIndex::Category, TableKind::ByCategory, settings.categoryId);
}

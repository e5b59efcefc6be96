// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/category_mode.h"

#include "headline_list/cell_texts.h"
#include "headline_list/headline_columns.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/fixed_services.h"
#include "host/contract/item_display.h"
#include "host/controls/sc_combo_box.h"
#include "host/views/news_control_ids.h"
#include "news_view/control_set.h"
#include "news_view/mode_loading.h"
#include "news_view/news_services.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

#include <QAbstractItemView>

#include <algorithm>
#include <utility>

namespace wirepane {

CategoryMode::CategoryMode(ViewContext& viewContext, const CommonParts& commonParts,
                           std::function<const RelationMatcher*()> filterOfLists)
    : context(viewContext), parts(commonParts), filter(std::move(filterOfLists)), names(parts.backEnd) {}

// --- Names and colours ---

void CategoryMode::bInitialTransferWarrantCatObject() {
    std::vector<unsigned char> services;
    for (const ServiceEntry& entry : parts.services.currentServices())
        services.push_back(entry.service);
    names.setServices(std::move(services));
    names.loadWarrants();
}

void CategoryMode::reloadNames() {
    bInitialTransferCatObject();
    learn(true);
}

void CategoryMode::learn(bool hostSaysSo) {
    const bool renamed = names.learn(hostSaysSo);
    for (const ListKind& kind : listKinds) {
        if (!renamed)
            break;
        HeadlineList& list = parts.lists[kind.index];
        list.forgetWrittenCells();
        list.vFillHeadline();
        list.vFillTempHeadline();
        if (CSuperSheetWnd* sheet = list.grid())
            sheet->viewport()->update();
    }
    names.readAtNextMiss();
    if (std::exchange(isOneMissed, false) || renamed || hostSaysSo)
        learnCombo();
}

void CategoryMode::notePushed(const CHeadline& headline, const QString& categoryId) {
    if (headline.service != warrantService && indexOf(categoryId) < 0)
        isOneMissed |= missed.insert(categoryId).second;
}

QString CategoryMode::nameOf(unsigned char service, int id) {
    const QString* name = names.nameOf(service, id);
    return name != nullptr ? *name : langText(parts.backEnd, keys::recover);
}

bool CategoryMode::colourOf(unsigned char service, const QString& name, QColor& text, QColor& background) {
    const int id = names.idOf(service, name);
    if (id < 0)
        return false;
    TRVItemDisplay& display = *TRVItemDisplay::itemDisplay();
    if (service == warrantService)
        display.warrantCatColor(id, text, background);
    else
        display.GetNewsCatColor(id, text, background);
    return true;
}

// --- The column ---

// Asked for after every row that is written.
void CategoryMode::showColumn() {
    showColumn(parts.settings.showCategory);
}

void CategoryMode::showColumn(bool show) {
    parts.lists[context.shownList()].showColumn(HeadlineColumn::Category, show);
}

void CategoryMode::toggleColumn() {
    parts.settings.showCategory = !parts.settings.showCategory;
    showColumn();
}

// --- The combo ---

void CategoryMode::connectCombo() {
    QObject::connect(parts.controls.find<SCComboBox>(ids::categoryCombo), &SCComboBox::closeUp, &parts.window,
                     [this] {
                         if (comboIsBehind)
                             learnCombo();
                     });
}

void CategoryMode::bInitialCategoryInfo() {
    fillCombo();
    if (auto* combo = parts.controls.find<SCComboBox>(ids::categoryCombo))
        combo->setCurrentIndex(std::max(indexOf(parts.settings.categoryId), 0));
    chosen();
}

void CategoryMode::vRefreshCategoryCombo() {
    auto* combo = parts.controls.find<SCComboBox>(ids::categoryCombo);
    if (combo == nullptr || parts.lists[ListIndex::Category].grid() == nullptr)
        return;
    const QString name = combo->currentText();
    fillCombo();
    combo->setCurrentIndex(std::max(combo->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive), 0));
    chosen();
}

std::vector<OfferedCategory> CategoryMode::itemsOfServices() const {
    std::vector<OfferedCategory> offered;
    std::set<QString> known;
    for (const ServiceEntry& entry : parts.services.savedServices()) {
        std::vector<QString> idTexts;
        std::vector<QString> texts;
        if (!entry.selected || !parts.backEnd.bNewsAPI_GetNewsCatId(entry.service, idTexts, texts))
            continue;
        for (std::size_t i = 0; i < std::min(idTexts.size(), texts.size()); ++i) {
            if (known.insert(idTexts[i]).second)
                offered.push_back({idTexts[i], shownText(parts.backEnd, entry.service, texts[i])});
        }
    }
    return offered;
}

void CategoryMode::fillCombo() {
    auto* combo = parts.controls.find<SCComboBox>(ids::categoryCombo);
    if (combo == nullptr)
        return;
    items = itemsOfServices();
    missed.clear();
    combo->clear();
    for (const OfferedCategory& item : items)
        combo->addItem(item.text);
}

void CategoryMode::learnCombo() {
    auto* combo = parts.controls.find<SCComboBox>(ids::categoryCombo);
    if (combo == nullptr || (items.empty() && !parts.loading.hasCategoryCatalogue()))
        return;
    comboIsBehind = combo->view()->isVisible();
    if (comboIsBehind || itemsOfServices() == items)
        return;
    const auto before = chosenId();
    fillCombo();
    const int index = indexOf(before.value_or(parts.settings.categoryId));
    combo->setCurrentIndex(std::max(index, 0));
    if (!before || index < 0)
        chosen();
}

// The place of a category in the combo; -1 when it is not there.
int CategoryMode::indexOf(const QString& id) const {
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&id](const OfferedCategory& item) { return item.id == id; });
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

std::optional<QString> CategoryMode::chosenId() const {
    const auto* combo = parts.controls.find<SCComboBox>(ids::categoryCombo);
    const int index = combo != nullptr ? combo->currentIndex() : -1;
    if (index < 0 || index >= static_cast<int>(items.size()))
        return {};
    return items[static_cast<std::size_t>(index)].id;
}

void CategoryMode::chosen() {
    const auto id = chosenId();
    if (!id)
        return;
    parts.settings.categoryId = *id;
    parts.lists.rebuild(ListIndex::Category, TableKind::ByCategory, *id, filter());
}

}  // namespace wirepane

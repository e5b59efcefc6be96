// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The start-up of the news view: what the host's first calls build, in the order in which it must be built.
#include "headline_list/cell_texts.h"
#include "headline_list/headline_list.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/fixed_services.h"
#include "host/contract/ini_file.h"
#include "host/contract/misuse.h"
#include "host/contract/sync_info.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/view_parts.h"
#include "search/news_relate_symbol_quote_view.h"

using namespace wirepane;

namespace {

const QString viewKey = QStringLiteral("TRVNewsCtrlView");
const QString symbolNewsView = QStringLiteral("MULTITIMESALSE_SYMBOLNEWS");

}  // namespace

void TRVNewsCtrlView::OnInitialUpdate() {
    requireInterfaceThread("TRVQuoteBaseView::OnInitialUpdate");
    requireOfHost(!parts->serviceMenu.isFilled(),
                  "TRVQuoteBaseView::OnInitialUpdate was called twice on one view.");
    TRVQuoteBaseView::OnInitialUpdate();
    if (parts->backEnd.bIsConnect() != 1)
        connectionChanged(false);
    GetConfigFromIni();
    parts->services.load(parts->backEnd);
    parts->serviceMenu.fill();
}

void TRVNewsCtrlView::GetConfigFromIni() {
    parts->switches = ApplicationSwitches::read(
        IniFile::load(parts->backEnd.PathGetSysPath() + QStringLiteral("/Application.ini")));
}

void TRVNewsCtrlView::InitialViewInfo(TRVCfgIO2* reader, const QString& section, int first, int second,
                                      const QString&) {
    requireOfHost(parts->serviceMenu.isFilled(),
                  "TRVQuoteBaseView::InitialViewInfo was called before OnInitialUpdate.");
    TRVQuoteBaseView::InitialViewInfo(reader, section, first, second, viewKey);
    takeNewsType();
    if (parts->newsType == NewsType::Full) {
        parts->builder.createStoryPane(*parts, settingsReader, settingsPath);
        parts->storyInput.connectPane();
        parts->controls.CreateTypeBtn();
        parts->controls.CreateFunctionBtn();
    }
    parts->controls.createNotices();
    parts->services.vInitialNewsService(*reader, settingsPath, *this,
                                        parts->settings.options[ViewOption::TickNewServices]);
    parts->searches.desk().restore(SearchMemory::read(*reader, settingsPath));
    parts->savedSearches.restore(parts->settings.namedSearch);
    parts->categories.bInitialTransferCatObject();
    parts->categories.bInitialTransferWarrantCatObject();
    vViewCreate();
    parts->story.setShowType(parts->stage.storyPane() != nullptr ? parts->settings.newsShowType
                                                                 : StoryShowType::None);
    parts->controls.loadTexts();
    parts->shortcuts.create();
    parts->shortcuts.loadToolTips();
    parts->standingSearches.loadHints();
    vChangeCast();
    vSetComponentPos();
    openFocusedTab();
    InitialNewsRelateQuoteView();
    parts->shortcuts.setTabOrder();
    parts->categories.showColumn();
}

void TRVNewsCtrlView::takeNewsType() {
    const bool namedSymbolNews =
        windowTitle().compare(langText(parts->backEnd, keys::symbolNewsCaption), Qt::CaseInsensitive) == 0;
    if (viewTypeName() == symbolNewsView || namedSymbolNews)
        parts->newsType = NewsType::Symbol;
    const bool symbolNewsOnly = isOfOneSymbol(parts->newsType);
    parts->settings = ViewSettings::read(*settingsReader, settingsPath,
                                         symbolNewsOnly ? static_cast<int>(ListIndex::Symbol) : 0);
    parts->symbolMode.start(CSyncInfo::GetSettingCFG()->SYS_bGetIsLinkNews(), symbolNewsOnly);
    if (symbolNewsOnly)
        parts->settings.functions = symbolNewsMask;
}

void TRVNewsCtrlView::vViewCreate() {
    if (parts->stage.storyDialog() == nullptr)
        parts->stage.setDialog(parts->storyInput.makeWindow());
    parts->builder.createControls();
}

void TRVNewsCtrlView::openFocusedTab() {
    CSyncInfo* sync = CSyncInfo::GetSettingCFG();
    int mode = parts->symbolMode.isFromLink() ? static_cast<int>(ListIndex::Symbol)
                                              : iGetFunctionID(parts->settings.focusedTab);
    CheckInitialView(mode);
    if (auto* strip = parts->controls.find<CXTPTabControl>(ids::tabStrip))
        strip->SetCurSel(iGetTabIndex(mode));
    parts->initialised = true;
    SwitchFunction(mode);
    parts->days.setRange(parts->backEnd.BKQbyGetNewsDateRange());
    sync->SYS_vSetIsLinkNews(false);
}

void TRVNewsCtrlView::SaveViewInfo(TRVCfgIO2* writer, const QString& section, int first, int second) {
    requireInterfaceThread("TRVQuoteBaseView::SaveViewInfo");
    requireOfHost(settingsReader != nullptr,
                  "TRVQuoteBaseView::SaveViewInfo was called before InitialViewInfo.");
    requireOfHost(writer != nullptr,
                  "TRVQuoteBaseView::SaveViewInfo was given nowhere to write the settings to.");
    const ViewSettingPath path{section, first, second, viewKey};
    parts->settings.newsShowType = parts->story.showType();
    parts->symbolMode.keep();
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.relatedQuotes())
        parts->settings.quoteSorting = quotes->quoteTable().sorting();
    parts->settings.columnWidths.clear();
    for (const ListKind& kind : listKinds)
        parts->settings.columnWidths << parts->listOf(kind.index).keptWidths();
    parts->settings.namedSearch = parts->savedSearches.shownName();
    parts->settings.write(*writer, path);
    parts->services.save(*writer, path);
    parts->searches.desk().memory.write(*writer, path);
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The start-up of the news view: what the host's first calls build, in the order in which it must be built.
#include "headline_list/cell_texts.h"
#include "headline_list/headline_list.h"
#include "headline_list/language_keys.h"
#include "host/contract/fixed_services.h"
#include "host/contract/ini_file.h"
#include "host/contract/misuse.h"
#include "host/contract/sync_info.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/xtp_tab_control.h"
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/view_parts.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/trv_news_story.h"

namespace {

const QString viewKey = QStringLiteral("TRVNewsCtrlView");
const QString symbolNewsType = QStringLiteral("MULTITIMESALSE_SYMBOLNEWS");

}  // namespace

void TRVNewsCtrlView::OnInitialUpdate() {
    RequireInterfaceThread("TRVQuoteBaseView::OnInitialUpdate");
    RequireOfHost(!parts->serviceMenu.isFilled(),
                  "TRVQuoteBaseView::OnInitialUpdate was called twice on one view.");
    TRVQuoteBaseView::OnInitialUpdate();
    if (parts->backEnd.bIsConnect() != 1)
        vConnectionChanged(false);
    GetConfigFromIni();
    parts->services.vLoad(parts->backEnd);
    parts->serviceMenu.fill();
}

void TRVNewsCtrlView::GetConfigFromIni() {
    parts->switches = ApplicationSwitches::read(
        IniFile::load(parts->backEnd.PathGetSysPath() + QStringLiteral("/Application.ini")));
}

void TRVNewsCtrlView::InitialViewInfo(TRVCfgIO2* reader, const QString& section, int first, int second,
                                      const QString&) {
    RequireOfHost(parts->serviceMenu.isFilled(),
                  "TRVQuoteBaseView::InitialViewInfo was called before OnInitialUpdate.");
    TRVQuoteBaseView::InitialViewInfo(reader, section, first, second, viewKey);
    vTakeNewsType();
    if (parts->newsType == 0) {
        parts->builder.createStoryPane(*parts, settingsReader, settingsPath);
        parts->controls.CreateTypeBtn();
        parts->controls.CreateFunctionBtn();
    }
    parts->controls.vCreateNotices();
    parts->services.vInitialNewsService(*reader, settingsPath, *this);
    parts->searches.desk().vRestore(SearchMemory::read(*reader, settingsPath));
    parts->categories.bInitialTransferCatObject();
    parts->categories.bInitialTransferWarrantCatObject();
    vViewCreate();
    parts->story.setShowType(parts->stage.pGetPane() != nullptr ? parts->settings.newsShowType : 0);
    parts->controls.vLoadLanguageString();
    parts->shortcuts.loadToolTips();
    parts->standingSearches.loadHints();
    parts->shortcuts.create();
    vChangeCast();
    vSetComponentPos();
    vOpenFocusedTab();
    InitialNewsRelateQuoteView();
    parts->shortcuts.setTabOrder();
    parts->categories.showColumn();
}

void TRVNewsCtrlView::vTakeNewsType() {
    const bool namedSymbolNews =
        windowTitle().compare(LangText(parts->backEnd, keys::symbolNewsCaption), Qt::CaseInsensitive) == 0;
    if (cszGetTypeName() == symbolNewsType || namedSymbolNews)
        parts->newsType = 2;
    const bool symbolNewsOnly = parts->newsType == 1 || parts->newsType == 2;
    parts->settings = ViewSettings::read(*settingsReader, settingsPath,
                                         symbolNewsOnly ? static_cast<int>(ListIndex::Symbol) : 0);
    parts->symbolMode.start(CSyncInfo::GetSettingCFG()->SYS_bGetIsLinkNews(), symbolNewsOnly);
    if (symbolNewsOnly)
        parts->settings.functions = symbolNewsMask;
}

void TRVNewsCtrlView::vViewCreate() {
    if (parts->stage.pGetDialog() == nullptr)
        parts->stage.vSetDialog(new TRVNewsStory(*parts, this));
    parts->builder.createControls();
}

void TRVNewsCtrlView::vOpenFocusedTab() {
    CSyncInfo* sync = CSyncInfo::GetSettingCFG();
    int mode = parts->symbolMode.isFromLink() ? static_cast<int>(ListIndex::Symbol)
                                              : iGetFunctionID(parts->settings.focusedTab);
    CheckInitialView(mode);
    if (auto* strip = parts->controls.Find<CXTPTabControl>(ids::tabStrip))
        strip->SetCurSel(iGetTabIndex(mode));
    parts->initialised = true;
    SwitchFunction(mode);
    parts->days.setRange(parts->backEnd.BKQbyGetNewsDateRange());
    sync->SYS_vSetIsLinkNews(false);
}

void TRVNewsCtrlView::SaveViewInfo(TRVCfgIO2* writer, const QString& section, int first, int second) {
    RequireInterfaceThread("TRVQuoteBaseView::SaveViewInfo");
    RequireOfHost(settingsReader != nullptr,
                  "TRVQuoteBaseView::SaveViewInfo was called before InitialViewInfo.");
    RequireOfHost(writer != nullptr,
                  "TRVQuoteBaseView::SaveViewInfo was given nowhere to write the settings to.");
    const ViewSettingPath path{section, first, second, viewKey};
    parts->settings.newsShowType = GetStoryShowType();
    parts->symbolMode.keep();
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.pGetQuotes())
        parts->settings.quoteSorting = quotes->GetTable().sorting();
    parts->settings.write(*writer, path);
    parts->services.vSave(*writer, path);
    parts->searches.desk().memory.write(*writer, path);
}

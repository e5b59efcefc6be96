// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The start-up of the news view: what the host's first calls build, in the order in which it must be built.
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/fixed_services.h"
#include "host/contract/ini_file.h"
#include "host/contract/misuse.h"
#include "host/contract/sync_info.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/xtp_tab_control.h"
#include "news_view/category_mode.h"
#include "news_view/control_ids.h"
#include "news_view/days.h"
#include "news_view/searches.h"
#include "news_view/service_menu.h"
#include "news_view/standing_searches.h"
#include "news_view/symbol_mode.h"
#include "news_view/trv_news_ctrl_view.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/trv_news_story.h"

namespace {

const QString viewKey = QStringLiteral("TRVNewsCtrlView");
const QString symbolNewsType = QStringLiteral("MULTITIMESALSE_SYMBOLNEWS");

}  // namespace

void TRVNewsCtrlView::OnInitialUpdate() {
    RequireInterfaceThread("TRVQuoteBaseView::OnInitialUpdate");
    RequireOfHost(!serviceMenu->isFilled(),
                  "TRVQuoteBaseView::OnInitialUpdate was called twice on one view.");
    TRVQuoteBaseView::OnInitialUpdate();
    if (backEnd.bIsConnect() != 1)
        vConnectionChanged(false);
    GetConfigFromIni();
    services.vLoad(backEnd);
    serviceMenu->fill();
}

void TRVNewsCtrlView::GetConfigFromIni() {
    switches = ApplicationSwitches::read(
        IniFile::load(backEnd.PathGetSysPath() + QStringLiteral("/Application.ini")));
}

void TRVNewsCtrlView::InitialViewInfo(TRVCfgIO2* reader, const QString& section, int first, int second,
                                      const QString&) {
    RequireOfHost(serviceMenu->isFilled(),
                  "TRVQuoteBaseView::InitialViewInfo was called before OnInitialUpdate.");
    TRVQuoteBaseView::InitialViewInfo(reader, section, first, second, viewKey);
    vTakeNewsType();
    if (newsType == 0) {
        builder.createStoryPane(*this, settingsReader, settingsPath);
        controls.CreateTypeBtn();
        controls.CreateFunctionBtn();
    }
    controls.vCreateNotices();
    services.vInitialNewsService(*reader, settingsPath, *this);
    searches->desk().vRestore(SearchMemory::read(*reader, settingsPath));
    categories->loadNames();
    vViewCreate();
    story.setShowType(stage.pGetPane() != nullptr ? settings.newsShowType : 0);
    controls.vLoadLanguageString();
    shortcuts.loadToolTips();
    standingSearches->loadHints();
    shortcuts.create();
    vChangeCast();
    vSetComponentPos();
    vOpenFocusedTab();
    InitialNewsRelateQuoteView();
    shortcuts.setTabOrder();
    categories->showColumn();
}

void TRVNewsCtrlView::vTakeNewsType() {
    const bool namedSymbolNews =
        windowTitle().compare(LangText(backEnd, keys::symbolNewsCaption), Qt::CaseInsensitive) == 0;
    if (cszGetTypeName() == symbolNewsType || namedSymbolNews)
        newsType = 2;
    const bool symbolNewsOnly = newsType == 1 || newsType == 2;
    settings = ViewSettings::read(*settingsReader, settingsPath,
                                  symbolNewsOnly ? static_cast<int>(ListIndex::Symbol) : 0);
    symbolMode->start(CSyncInfo::GetSettingCFG()->SYS_bGetIsLinkNews(), symbolNewsOnly);
    if (symbolNewsOnly)
        settings.functions = symbolNewsMask;
}

void TRVNewsCtrlView::vViewCreate() {
    if (stage.pGetDialog() == nullptr)
        stage.vSetDialog(new TRVNewsStory(*this, this));
    builder.createControls();
}

ViewBuilder::Calls TRVNewsCtrlView::builderCalls() {
    return {[this] { return days->picked(); },
            [this](CSuperSheetWnd& grid, ListIndex list) { vConnectMouse(grid, list); },
            [this] { days->connectPicker(); }, [this] { searches->connectEdit(); },
            [this] { categories->connectCombo(); }};
}

void TRVNewsCtrlView::vOpenFocusedTab() {
    CSyncInfo* sync = CSyncInfo::GetSettingCFG();
    int mode =
        symbolMode->isFromLink() ? static_cast<int>(ListIndex::Symbol) : iGetFunctionID(settings.focusedTab);
    CheckInitialView(mode);
    if (auto* strip = controls.Find<CXTPTabControl>(ids::tabStrip))
        strip->SetCurSel(iGetTabIndex(mode));
    initialised = true;
    SwitchFunction(mode);
    days->setRange(backEnd.BKQbyGetNewsDateRange());
    sync->SYS_vSetIsLinkNews(false);
}

void TRVNewsCtrlView::SaveViewInfo(TRVCfgIO2* writer, const QString& section, int first, int second) {
    RequireInterfaceThread("TRVQuoteBaseView::SaveViewInfo");
    RequireOfHost(settingsReader != nullptr,
                  "TRVQuoteBaseView::SaveViewInfo was called before InitialViewInfo.");
    RequireOfHost(writer != nullptr,
                  "TRVQuoteBaseView::SaveViewInfo was given nowhere to write the settings to.");
    const ViewSettingPath path{section, first, second, viewKey};
    settings.newsShowType = GetStoryShowType();
    symbolMode->keep();
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        settings.quoteSorting = quotes->GetTable().sorting();
    settings.write(*writer, path);
    services.vSave(*writer, path);
    searches->desk().memory.write(*writer, path);
}

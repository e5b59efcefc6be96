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
#include "host/controls/window_id.h"
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
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

namespace {

const QString viewKey = QStringLiteral("TRVNewsCtrlView");
const QString symbolNewsType = QStringLiteral("MULTITIMESALSE_SYMBOLNEWS");

constexpr int serviceButtonRoom = 84;
constexpr int gridTop = 52;
constexpr int tabStripHeight = 22;

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
        vCreateStoryPane();
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

void TRVNewsCtrlView::vCreateStoryPane() {
    const int top = gridTop + iGetTitleHeight();
    auto* pane = qobject_cast<NewsStoryView*>(
        CreateView(NewsStoryView::staticMetaObject, QStringLiteral("NewsStoryView"), ids::storyPane,
                   QRect(width() / 2, top, width() - width() / 2, height() - top)));
    if (pane == nullptr)
        return;
    pane->vSetNewsParent(this);
    pane->InitialViewInfo(settingsReader, settingsPath.section, settingsPath.first, settingsPath.second, {});
    stage.vSetPane(pane);
}

TRVQuoteBaseView* TRVNewsCtrlView::CreateView(const QMetaObject& runtimeClass, const QString& name, int id,
                                              const QRect& rectangle) {
    QObject* created = runtimeClass.newInstance(Q_ARG(QWidget*, this));
    auto* view = qobject_cast<TRVQuoteBaseView*>(created);
    if (view == nullptr) {
        delete created;
        return nullptr;
    }
    view->setObjectName(name);
    SetWindowId(view, ids::firstChildView + id);
    view->setGeometry(rectangle);
    view->show();
    view->vSetFrameId(iGetFrameId());
    view->OnInitialUpdate();
    return view;
}

void TRVNewsCtrlView::vViewCreate() {
    QRect client = rect();
    client.setTop(client.top() + iGetTitleHeight());
    const int base = client.left() + (services.Entries().size() > 1 ? serviceButtonRoom : 0);
    const int left = client.left() + 4;
    controls.vCreateServiceButton(services.Entries().size() == 1
                                      ? QRect(left, client.top() + 27, 0, 20)
                                      : QRect(left, client.top() + 27, base - left, 20));
    if (!IsSingleFunction(settings.functions))
        controls.vCreateTabStrip(QRect(client.left(), client.top(), client.width(), tabStripHeight));
    if (stage.pGetDialog() == nullptr)
        stage.vSetDialog(new TRVNewsStory(*this, this));

    const QRect gridArea(client.left(), client.top() + gridTop, client.width(), client.height() - gridTop);
    const QRect row(base + 4, client.top() + 25, 120, 25);
    for (const ListIndex mode : ModesInOrderOfCreation())
        vCreateMode(mode, gridArea, row);
}

// Whether the mode has a grid and a tab.
bool TRVNewsCtrlView::bModeIsOffered(ListIndex mode) const {
    switch (mode) {
        case ListIndex::Symbol:
            return bIsAuthService(stockExchangeService) == 1;
        case ListIndex::Relation:
            return switches.showNormalSearch;
        case ListIndex::WarningTerm:
            return switches.showWarningSearch;
        case ListIndex::Warrant:
            return services.iGetWarrantIndex() >= 0;
        default:
            return true;
    }
}

void TRVNewsCtrlView::vCreateMode(ListIndex mode, const QRect& gridArea, const QRect& row) {
    if ((settings.functions & ModeOf(mode).maskBit) == 0)
        return;
    if (bModeIsOffered(mode)) {
        vInitialSheetWnd(mode, gridArea);
        controls.vAddTab(mode);
    } else if (mode == ListIndex::Symbol || mode == ListIndex::Warrant) {
        return;
    }
    // The list of warrants alone is of a day, too, though nobody picks it.
    const bool onlyWarrants = mode == ListIndex::Warrant && IsSingleFunction(settings.functions);
    if (mode == ListIndex::All || onlyWarrants) {
        controls.vCreateDatePicker(row, days->picked());
        days->connectPicker();
    } else if (mode == ListIndex::Category)
        controls.vCreateCategoryCombo(QRect(row.x(), row.y(), 120, 200));
    else
        controls.CreateControls(mode, row, GetViewFont());
    if (mode == ListIndex::Search)
        searches->connectEdit();
    if (mode == ListIndex::Category)
        categories->connectCombo();
}

void TRVNewsCtrlView::vInitialSheetWnd(ListIndex list, const QRect& rectangle) {
    CSuperSheetWnd* sheet = CreateHeadlineSheet(this, rectangle, newsType, backEnd);
    if (sheet == nullptr)
        return;
    sheet->vStretchLastColumn(settings.options[ViewOption::StretchTitles]);
    lists[list].vSetGrid(sheet);
    vConnectMouse(*sheet, list);
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

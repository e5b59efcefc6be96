// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/feed_breaks.h"
#include "headline_list/headline_lists.h"
#include "headline_list/list_owner.h"
#include "host/contract/gone_headlines.h"
#include "host/views/news_module.h"
#include "host/views/quote_base_view.h"
#include "news_view/application_switches.h"
#include "news_view/arrangement.h"
#include "news_view/common_parts.h"
#include "news_view/context_menu.h"
#include "news_view/control_set.h"
#include "news_view/list_input.h"
#include "news_view/mode_loading.h"
#include "news_view/modes.h"
#include "news_view/news_services.h"
#include "news_view/notice_board.h"
#include "news_view/output_jobs.h"
#include "news_view/shortcuts.h"
#include "news_view/story_display.h"
#include "news_view/story_stage.h"
#include "news_view/symbol_mode.h"
#include "news_view/view_builder.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"
#include "output/printable_story.h"
#include "story/story_owner.h"

#include <QLatin1StringView>
#include <QMenu>
#include <QPointer>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <tuple>
#include <vector>

class CategoryMode;
class Days;
class ListTip;
class LiveNews;
struct IntakeState;
class Searches;
class SentAgain;
class ServiceMenu;
class StandingSearches;

// The news view that a terminal places in its frames. It owns the parts that do the work (services, lists,
// controls, story stage, catalogues) and forwards to them; what it does itself is the order in which things
// happen.
//
// The host creates it by its class name, then calls OnInitialUpdate and InitialViewInfo. A back end is
// installed before and outlives the view. What is marked "For hosts" only hosts call, the module does not.
class TRVNewsCtrlView : public TRVQuoteBaseView,
                        public GoneHeadlineReceiver,
                        public NewsViewAccess,
                        public StoryOwner,
                        private ListOwner,
                        private ViewContext {
    Q_OBJECT

public:
    Q_INVOKABLE explicit TRVNewsCtrlView(QWidget* parent = nullptr);
    ~TRVNewsCtrlView() override;

    // --- The host's calls ---

    void OnInitialUpdate() override;
    void InitialViewInfo(TRVCfgIO2* reader, const QString& section, int first, int second,
                         const QString& name) override;
    void SaveViewInfo(TRVCfgIO2* writer, const QString& section, int first, int second) override;
    void GetCaption(QString& caption) override;
    void ChangeActiveApp(int active) override;
    void vChangeCast() override;
    bool OnCommand(int id) override;

    // --- Modes and layout ---

    void SwitchFunction(int mode);
    void ShowHideCtrObject(int mode);
    void vSetComponentPos() { arrangement.place(); }
    // The usable mode for a stored number: 0 when it is unknown or the user may not see it.
    int iGetFunctionID(int stored) const;
    // For hosts that store modes by name: the same for the caption of a mode's tab, in the language in force
    // and whatever its case, or for its language key.
    int iGetFunctionID(const QString& name) const;
    int iGetTabIndex(int mode) const { return controls.iGetTabIndex(mode); }
    // When the mode has no grid, `mode` becomes the first that has one; unchanged when none has.
    void CheckInitialView(int& mode) const;
    void OnSelchangeTabMode();
    void OnBtnChangeShowType();
    void SetStoryShowType(unsigned short type);
    unsigned short GetStoryShowType() const { return static_cast<unsigned short>(story.showType()); }
    void SetStoryWndStyle() { stage.SetStoryWndStyle(); }
    bool IsStoryDlgOnTop() const { return StoryStage::IsStoryDlgOnTop(); }
    void vSetNewsType(int type) override { newsType = type; }
    int GetNewsType() const override { return newsType; }

    // --- Lists ---

    // Rebuilds the table of a list and fills its grid. True when the list has rows or needs no table of its
    // own; false for an index above 5, an absent grid, or an empty list 0 or 4.
    bool InitialHeadlineTable(int list);
    // Starts the deferred refresh anew: calls within 100 ms become one.
    void vUpdateView();
    // Refills the visible rows of the current grid at once.
    void vRealUpdateView();
    CSuperSheetWnd* pGetCurrSheetView() const;
    // For hosts: a copy of an entry of the current list; all zero when there is no current list or no such
    // row.
    CHeadlineTable GetHeadlineTable(int row) const;
    bool bGetHeadlineTable(CHeadlineTable& entry, int list, int row) const override;
    int iGetHeadlineTableSize(int list) const override;
    void vGetNewsActiveService(std::vector<unsigned char>& services) const override;
    // For hosts: the width that the story show type leaves for the grid.
    int GetSheetWidth() const { return arrangement.gridWidth(); }
    // Reads the news of the current news symbol into the symbol list.
    void GetSymbolNews(const QString& code);

    // --- Services and symbols ---

    // Shows the service menu under its button.
    void OnSelectService();
    // Ticks or unticks the service of a menu command; the last ticked service stays ticked. The warrant mode
    // looks at no ticked service: there the menu does not open, and no tick changes.
    void OnSelectCheckService(unsigned int id);
    void OnSelchangeComboService();
    void OnSelchangeComboSymbol();
    // For hosts: reads the news of the current news symbol, when the view has the symbol list.
    void OnSelSymbol(const QString& code);
    // For hosts: fills the symbol combo anew. Always true.
    bool bUpdateSymbolVec();
    void ChangeSymbol(const QWidget* sender, unsigned char group, unsigned char service, const QString& code,
                      const QString& name) override;
    int GetCurrSymbolInfo(unsigned char& service, QString& code) override;
    void vDoSymbolUpdate(const std::vector<CSymbolUpdateInfo>& updates) override;

    // --- Quotes of the symbols that the shown headline is related to ---

    // Creates their list, in views with a story pane.
    void InitialNewsRelateQuoteView();
    // Lists the symbols of the headline that the pane shows.
    void ChangeNewsSymbolList() { story.listRelatedSymbols(); }
    void vReRegisterSymbols() override;
    void vUnregisterViewSymbol() override;
    // Handed on to the list.
    void vRecvNewMemory(const CQuoteMemory* quote) override;
    void vRecvMemoryRecovery(const CQuoteMemory* quote) override;
    void vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>& quotes) override;
    // The related symbols of a headline were sent again: listed when it is the one that the pane shows.
    void vRecvNewsRelateSymbolListRecovery(const CNewsSymlistInfo* info) override;

    // For hosts: the number of ticked services; in the warrant mode only the warrants are.
    int iBeSelectNewsNum() const { return services.iSelectedCount(); }

    // --- Days ---

    void OnDateTimeDropDown();
    void OnDateTimeChange(const QDate& date);
    void OnDateTimeCloseUp();
    // Picks the date of the all-news list. True when the list was read anew and has rows; false for the date
    // in force, for a day out of range (a tip says so and the date picker goes back) and without the list.
    bool bChangeDate(const QDate& date);
    // A news day has begun: the view follows it when it has ticked the service. A status with a date that no
    // calendar knows changes nothing.
    void vRecvNewMarketStatus(const CMarketStatus* status) override;
    // Reads the all-news list and the relation-search list at each service's current date. False when either
    // list has no grid.
    bool bChangeDateByNewHeadLine();
    // Goes to a row of a list and shows its story, in another mode if need be. Always true.
    bool bChangeNewsPos(int list, int row) override;

    // --- Sent again ---

    // Asks for the headlines of the selected rows, for the current list's table, for the focused row's story.
    void OnReCoverHeadline();
    void OnReCoverHeadlineTable();
    void OnReCoverStory();
    // A table was sent again. An answer that no longer fits what the view shows is dropped; one without data
    // is told in a tip, and names its service in the status text.
    void vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo* info) override;
    void vRecvCatHeadlineTableRecovery(const CHeadlineTableInfo* info) override;
    void vRecvSymHeadlineTableRecovery(const CHeadlineTableInfo* info) override;

    // --- Searches ---

    // Searches headlines for the text of the search box. An empty one is refused with a tip, one that holds
    // "AND" or "OR" with a message box.
    void OnSearch();
    // The user presses Enter in the search box.
    void vOnEnterDown() { OnSearch(); }
    // The user composes the search of the search mode; unless he cancels it is sent. What he changed stays
    // in force in either case.
    void OnDealsSearchDlg();
    // The user composes key sets and ticks those whose news the relation-search list is to hold. None is
    // ticked any more when he cancels.
    void OnRelationSearchDlg();
    // The user manages the warning terms; unless he cancels the chosen one is what the warning-term mode
    // sends, and it is sent. The search dialog starts from it then.
    void OnWarningSearchDlg();
    // Sends the search of the current mode to the selected services and shows what is at hand for it. Nothing
    // in modes without searches.
    void OnDealsSearch();
    // A service has answered: the results of all services are shown anew.
    void RespSearchHeadLineTable(const CSearch& condition, unsigned char serviceId) override;
    // Searches a headline's service again and puts the headline in where its table has its number.
    void ProcessNewSearchHeadline(CSearch& condition, ListIndex list, const CHeadline& headline,
                                  const QString& key);
    // Narrows a search to a symbol and sends it again, as far as the current mode has one.
    void vDoSearchChangeSymbol(const CSearch& condition, unsigned char market, const QString& symbolCode);
    // A short tip in the middle of a rectangle of the screen.
    void vShowTip(const QRect& rectangle, const QString& text);

    // --- Stories and what the back end pushes ---

    // Shows the story of the current grid's focused row; without one the pane is emptied.
    void OnShowStory() { story.show(); }
    void RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                         const QString& symbolCode) override;
    // A headline that was replaced no longer has this key: its rows leave the lists.
    void vHeadlineGone(const HeadlineKey& key) override;
    // A headline that is not pushed may have been replaced: its rows leave the lists that it no longer
    // concerns.
    void vHeadlineReplaced(const CHeadline* headline, const QString& categoryId,
                           const QString& symbolCode) override;
    void RespHeadLine(const std::vector<CHeadlineTable>& entries) override;
    void RespStory(const CHeadlineTable& entry) override;
    void StoryUpdateNotify(const CHeadlineTable* entry) override;
    // While there is no connection the view says since when; news of that time is marked in the lists.
    void vConnectionChanged(bool connected) override;

    // --- Printing and saving ---

    // Prints, saves, the selected rows; without any nothing happens. What is missing is waited for.
    void OnPrintNews() { output.tell(PrintNews(std::nullopt)); }
    void OnSaveNews() { output.tell(SaveNews(std::nullopt)); }
    void OnBtnPrint() { OnPrintNews(); }
    void OnBtnSaveas() { OnSaveNews(); }
    int iRowOf(int list, const CHeadlineTable& headline) const override;
    void PrintHeadline(const CHeadlineTable& headline) override;
    void SaveHeadline(const CHeadlineTable& headline) override;
    // What is still waited for is not printed, saved or shown any more, nor what waited with it.
    void OnStopWaiting() { output.stopWaiting(); }
    // What is complete of the news that waits is put out without the rest.
    void OnPutOutReady() { output.putOutReady(); }
    // The button beside the notice: stops waiting, and asks first what is to become of what is complete.
    void OnStopButton();
    // Brings a printable story into lines: see output/printable_story.h.
    static void Linefeed(QString& story) { ::Linefeed(story); }
    NewsOutcome PrintNews(const std::optional<OutputTarget>& target) override;
    NewsOutcome SaveNews(const std::optional<OutputTarget>& target) override;
    void PreviewNews() override;

    // --- Keys, mouse, context menu ---

    // A key on its way to the view or one of its controls; true: nobody else gets it.
    bool PreTranslateMessage(const QKeyEvent& event) { return input.takeBefore(event); }
    // A key that is let go; true: it has acted.
    bool OnKeyUp(const QKeyEvent& event) { return input.takeRelease(event); }
    // For hosts: scrolls the current grid by an arrow key, while it has the keyboard.
    void OnHScroll(Qt::Key key) { input.scrollSideways(key); }
    // Shows the next, the previous story of the current list in the pane, round and round; the selection
    // follows.
    void OnBtnPageDown() { story.page(1); }
    void OnBtnPageUp() { story.page(-1); }
    // Pops up the context menu at a point of the screen. False in the title, whose menu is the base view's.
    bool OnContextMenu(const QPoint& screen) { return contextMenu.openAt(screen); }

    // --- Categories ---

    // For hosts: what a category of news is called, warrants apart; a text that says so where nobody knows
    // the id.
    QString cszTransferCatIDToCatName(int id) { return CategoryNameOf(0, id); }
    // For hosts: the id of exactly this name; -1 when there is none.
    int GetCategoryIDbyName(const QString& name);
    // For hosts: 1 and the colours of the category of this name; 0, and both unchanged, when there is none.
    int GetCategoryColor(const QString& name, QColor& text, QColor& background) {
        return CategoryColourOf(0, name, text, background);
    }
    // Shows or hides the category column of the current grid; not in a view with two columns.
    void ChangeCurrViewCategoryState(bool show);
    void OnSelchangeComboIndex();
    void OnChangeCategoryState();
    void vReloadCategories() override;

    // --- For the host's scripts ---

    QVariantMap State() const override;
    QVariantMap StoryState(bool inDialog) const override;
    CSuperSheetWnd* Sheet(int list) const override;
    std::vector<HeadlineKey> Keys(int list, int from, int count) const override;

protected:
    void OnTimer(int id) override;
    bool OnRegisteredMessage(const RegisteredMessageEvent& message) override;
    void OnDraw(QPainter& painter) override;
    bool OnEraseBkgnd(QPainter& painter) override;
    void vNotSupportSymbol(QPainter& painter) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // Start-up.
    void GetConfigFromIni();
    void vTakeNewsType();
    void vViewCreate();
    void vInitialSheetWnd(ListIndex list, const QRect& rectangle) { builder.createGrid(list, rectangle); }
    ViewBuilder::Calls builderCalls();
    Modes::Calls modeCalls();
    Arrangement::Calls arrangementCalls();
    void vOpenFocusedTab();
    // Creates a child view of a class as a visible child in the rectangle; null when that fails.
    TRVQuoteBaseView* CreateView(const QMetaObject& runtimeClass, const QString& name, int id,
                                 const QRect& rectangle) {
        return builder.createChild(runtimeClass, name, id, rectangle);
    }

    // Modes.
    int currentMode() const { return static_cast<int>(modes.shown()); }
    void vReloadForServices();
    SymbolMode::Calls symbolCalls();
    IntakeState intakeChoices() const;
    bool bPaneShowsStories() const { return story.paneShowsStories(); }
    void vKeepShownStory(ListIndex list, const HeadlinePlace& place) { story.keepThrough(list, place); }

    // Printing and saving.
    std::vector<CHeadlineTable> vSelectedEntries() const;
    OutputJobs::Surroundings outputSurroundings();

    // Stories.
    TRVNewsStory* pStoryDialogOnShow() const { return story.windowOnShow(); }
    StoryDisplay::Surroundings storySurroundings();
    QVariantList vQuoteState() const;

    // Keys, mouse, context menu.
    ListInput::Surroundings inputSurroundings();
    Shortcuts::Surroundings shortcutSurroundings();
    ContextMenu::Surroundings contextMenuSurroundings();
    bool OnKeyDown(const QKeyEvent& event) { return input.takePress(event); }
    void vConnectMouse(CSuperSheetWnd& sheet, ListIndex list);
    bool OnLButtonUp(unsigned flags, const QPoint& point);
    bool OnLButtonDblClk(unsigned flags, const QPoint& point);
    void OnMouseWheel(const QWheelEvent& event) { input.takeWheel(event); }
    void OnVScroll();

    // Lists and painting.
    void OnChangeSize(quintptr sender);
    void DrawTitile(QPainter& painter);
    NoticeBoard::Surroundings noticeSurroundings();
    std::vector<NoticeBoard::Teller> noticeTellers();
    void vPlaceNotices() { board.place(); }
    // What notices offer: the search of the mode for every symbol; the list without another list's filter.
    void OnEndNarrowing();
    void OnReadUnfiltered();
    QColor TimeColour(std::int64_t time) const override;
    HeadlineList& List(ListIndex index) { return lists[index]; }
    HeadlineList* CurrentList();
    // The user's own choice, also while the warrant mode has set it aside: every list but the warrants' holds
    // what he has ticked.
    const std::vector<ServiceEntry>& vGetServices() const override { return services.Saved(); }
    QString CategoryNameOf(unsigned char service, int id) override;
    int CategoryColourOf(unsigned char service, const QString& name, QColor& text,
                         QColor& background) override;
    void vCategoryStateAfterWriting() override;
    void vRowsReplaced(ListIndex list) override;
    void vSetGridColours();

    // What the owners of its parts see of the view.
    ViewContext& context() { return *this; }
    ListIndex shownList() const override { return modes.shown(); }
    HeadlineList& listOf(ListIndex list) override { return lists[list]; }
    std::optional<CHeadlineTable> entryAt(ListIndex list, int row) const override;
    void showStory() override { OnShowStory(); }
    void clearStory() override { story.clear(); }
    bool paneShowsStories() const override { return story.paneShowsStories(); }
    bool hasOpenStory() const override { return story.hasOpenStory(); }
    void forgetShownStory() override { story.forget(); }
    void refresh() override { vUpdateView(); }
    bool readInPlace(ListIndex list, const std::function<bool()>& read) override {
        return story.readInPlace(list, read);
    }
    QString statusText() const override { return board.status(); }
    void setStatusText(const QString& text) override { board.setStatus(text); }
    void placeNotices() override { vPlaceNotices(); }

    BKQuoteInterface& backEnd;
    NewsServices services;
    HeadlineLists lists;
    ControlSet controls;
    StoryStage stage;
    ModeLoading loading;
    ApplicationSwitches switches;
    ViewSettings settings;
    OutputDialogs outputDialogs;
    OutputJobs output;
    NoticeBoard board;
    CommandMenu menu;
    ContextMenu contextMenu;
    StoryDisplay story;
    ListInput input;
    Shortcuts shortcuts;

    FeedBreaks breaks;
    int newsType = 0;
    int lastClientWidth = 0;
    bool initialised = false;

    const std::unique_ptr<ListTip> tip;
    const CommonParts common;
    const std::unique_ptr<Searches> searches;
    const std::unique_ptr<StandingSearches> standingSearches;
    const std::unique_ptr<Days> days;
    const std::unique_ptr<CategoryMode> categories;
    const std::unique_ptr<SymbolMode> symbolMode;
    const std::unique_ptr<SentAgain> sentAgain;
    const std::unique_ptr<ServiceMenu> serviceMenu;
    const std::unique_ptr<LiveNews> liveNews;
    Modes modes;
    Arrangement arrangement;
    ViewBuilder builder;
};

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/gone_headlines.h"
#include "host/views/news_explanation.h"
#include "host/views/news_module.h"
#include "host/views/quote_base_view.h"

#include <memory>
#include <optional>
#include <vector>

class QDate;

namespace wirepane {
enum class ListIndex : int;
}  // namespace wirepane

// The news view that a terminal places in its frames: a face. What it shows and does is the work of its
// parts, each of which says in its own header what it does; the view hands calls on to them.
//
// The host creates it by its class name, then calls OnInitialUpdate and InitialViewInfo. A back end is
// installed before and outlives the view. What is marked "For hosts" only hosts call, the module does not.
class TRVNewsCtrlView : public TRVQuoteBaseView,
                        public wirepane::GoneHeadlineReceiver,
                        public wirepane::NewsViewAccess,
                        public wirepane::HeadlineExplainer {
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
    bool onCommand(int id) override;

    // --- Modes and layout ---

    void SwitchFunction(int mode);
    void ShowHideCtrObject(int mode);
    void vSetComponentPos();
    // The usable mode for a stored number: 0 when it is unknown or the user may not see it.
    int iGetFunctionID(int stored) const;
    // For hosts: the same for the caption of a mode's tab, whatever its case, or for its language key.
    int iGetFunctionID(const QString& name) const;
    int iGetTabIndex(int mode) const;
    // When the mode has no grid, `mode` becomes the first that has one; unchanged when none has.
    void CheckInitialView(int& mode) const;
    void OnSelchangeTabMode();
    void OnBtnChangeShowType();
    void SetStoryShowType(unsigned short type);
    unsigned short GetStoryShowType() const;
    void SetStoryWndStyle();
    bool IsStoryDlgOnTop() const;
    void vSetNewsType(int type) override;
    int GetNewsType() const;

    // --- Lists ---

    // Reads a list anew. False for an index above 5, an absent grid, or an empty list 0 or 4.
    bool InitialHeadlineTable(int list);
    // Writes the visible rows anew: within 100 ms, however often it is asked for; at once.
    void vUpdateView();
    void vRealUpdateView();
    CSuperSheetWnd* pGetCurrSheetView() const;
    // For hosts: a copy of an entry of the current list; all zero when there is no such row.
    CHeadlineTable GetHeadlineTable(int row) const;
    bool bGetHeadlineTable(CHeadlineTable& entry, int list, int row) const;
    int iGetHeadlineTableSize(int list) const;
    void vGetNewsActiveService(std::vector<unsigned char>& services) const;
    int GetSheetWidth() const;

    // --- Services, symbols and the quotes beside the story ---

    void OnSelectService();
    void OnSelectCheckService(unsigned int id);
    // For hosts: the number of ticked services; in the warrant mode only the warrants are.
    int iBeSelectNewsNum() const;
    void OnSelchangeComboService();
    void OnSelchangeComboSymbol();
    // Reads the news of the current news symbol; the second, for hosts, when the view has their list.
    void GetSymbolNews(const QString& code);
    void OnSelSymbol(const QString& code);
    bool bUpdateSymbolVec();
    void ChangeSymbol(const QWidget* sender, unsigned char group, unsigned char service, const QString& code,
                      const QString& name) override;
    int GetCurrSymbolInfo(unsigned char& service, QString& code) override;
    void vDoSymbolUpdate(const std::vector<wirepane::CSymbolUpdateInfo>& updates) override;
    void InitialNewsRelateQuoteView();
    void ChangeNewsSymbolList();
    void vReRegisterSymbols() override;
    void vUnregisterViewSymbol() override;
    void vRecvNewMemory(const wirepane::CQuoteMemory* quote) override;
    void vRecvMemoryRecovery(const wirepane::CQuoteMemory* quote) override;
    void vRecvMultiSymbolMemoryRecovery(const std::vector<wirepane::CQuoteMemory>& quotes) override;
    void vRecvNewsRelateSymbolListRecovery(const CNewsSymlistInfo* info) override;

    // --- Days, and what is sent again ---

    void OnDateTimeDropDown();
    void OnDateTimeChange(const QDate& date);
    void OnDateTimeCloseUp();
    bool bChangeDate(const QDate& date);
    void vRecvNewMarketStatus(const wirepane::CMarketStatus* status) override;
    bool bChangeDateByNewHeadLine();
    // For the headlines of the selected rows, the current list's table, the focused row's story.
    void OnReCoverHeadline();
    void OnReCoverHeadlineTable();
    void OnReCoverStory();
    void vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo* info) override;
    void vRecvCatHeadlineTableRecovery(const CHeadlineTableInfo* info) override;
    void vRecvSymHeadlineTableRecovery(const CHeadlineTableInfo* info) override;

    // --- Searches ---

    void OnSearch();
    void vOnEnterDown();
    void OnDealsSearchDlg();
    void OnRelationSearchDlg();
    void OnWarningSearchDlg();
    void OnDealsSearch();
    void RespSearchHeadLineTable(const CSearch& condition, unsigned char serviceId) override;
    void ProcessNewSearchHeadline(CSearch& condition, wirepane::ListIndex list, const CHeadline& headline,
                                  const QString& key);
    void vDoSearchChangeSymbol(const CSearch& condition, unsigned char market, const QString& symbolCode);
    void vShowTip(const QRect& rectangle, const QString& text);

    // --- Stories, and what the back end pushes ---

    void OnShowStory();
    bool bChangeNewsPos(int list, int row);
    void OnBtnPageDown();
    void OnBtnPageUp();
    void RecvNewHeadLine(const CHeadline* headline, const QString& category, const QString& symbol) override;
    void headlineGone(const wirepane::HeadlineKey& key) override;
    void headlineReplaced(const CHeadline* headline, const QString& category, const QString& symbol) override;
    void RespHeadLine(const std::vector<CHeadlineTable>& entries) override;
    void RespStory(const CHeadlineTable& entry) override;
    void StoryUpdateNotify(const CHeadlineTable* entry) override;
    void connectionChanged(bool connected) override;

    // --- Printing and saving ---

    void OnPrintNews();
    void OnSaveNews();
    void OnBtnPrint();
    void OnBtnSaveas();
    static void Linefeed(QString& story);
    wirepane::NewsOutcome printSelection(const std::optional<wirepane::OutputTarget>& target) override;
    wirepane::NewsOutcome saveSelection(const std::optional<wirepane::OutputTarget>& target) override;
    void previewSelection() override;

    // --- Keys, mouse, context menu; each is true when nobody else is to get it ---

    bool PreTranslateMessage(const QKeyEvent& event);
    bool OnKeyDown(const QKeyEvent& event);
    bool OnKeyUp(const QKeyEvent& event);
    bool OnLButtonUp(unsigned flags, const QPoint& point);
    bool OnLButtonDblClk(unsigned flags, const QPoint& point);
    bool OnContextMenu(const QPoint& screen);
    void OnMouseWheel(const QWheelEvent& event);
    void OnHScroll(Qt::Key key);
    void OnVScroll();

    // --- Categories ---

    // For hosts, warrants apart: a text that says so where nobody knows the id; -1; 0 and both unchanged.
    QString cszTransferCatIDToCatName(int id);
    int GetCategoryIDbyName(const QString& name);
    int GetCategoryColor(const QString& name, QColor& text, QColor& background);
    void ChangeCurrViewCategoryState(bool show);
    void OnSelchangeComboIndex();
    void OnChangeCategoryState();
    void reloadCategories() override;
    void reloadServices() override;

    // --- For the host's scripts ---

    QVariantMap state() const override;
    QVariantMap storyState(bool inDialog) const override;
    CSuperSheetWnd* sheetOf(int list) const override;
    std::vector<wirepane::HeadlineKey> keysOf(int list, int from, int count) const override;
    void showEachList() override;
    std::vector<wirepane::HeadlineStanding> explain(const wirepane::HeadlineKey& key) const override;

protected:
    void OnTimer(int id) override;
    bool onRegisteredMessage(const wirepane::RegisteredMessageEvent& message) override;
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
    void GetConfigFromIni();
    void takeNewsType();
    void vViewCreate();
    void openFocusedTab();
    void OnChangeSize(quintptr sender);
    void DrawTitile(QPainter& painter);

    struct Parts;
    const std::unique_ptr<Parts> parts;
};

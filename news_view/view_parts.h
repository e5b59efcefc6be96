// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/feed_breaks.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/intake.h"
#include "headline_list/list_owner.h"
#include "news_view/application_switches.h"
#include "news_view/arrangement.h"
#include "news_view/category_mode.h"
#include "news_view/common_parts.h"
#include "news_view/context_menu.h"
#include "news_view/control_set.h"
#include "news_view/days.h"
#include "news_view/list_input.h"
#include "news_view/list_tip.h"
#include "news_view/live_news.h"
#include "news_view/mode_loading.h"
#include "news_view/modes.h"
#include "news_view/news_services.h"
#include "news_view/notice_board.h"
#include "news_view/output_jobs.h"
#include "news_view/searches.h"
#include "news_view/sent_again.h"
#include "news_view/service_menu.h"
#include "news_view/shortcuts.h"
#include "news_view/standing_searches.h"
#include "news_view/story_display.h"
#include "news_view/story_stage.h"
#include "news_view/symbol_mode.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/view_builder.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"
#include "story/story_owner.h"

// What the news view is made of: the parts that several owners stand on, the owners of its work, and what
// they see of the view and of one another. Only the view's own files know it.
struct TRVNewsCtrlView::Parts final : ViewContext, ListOwner, StoryOwner {
    explicit Parts(TRVNewsCtrlView& newsView);
    ~Parts() override;

    // What owners see of the view.
    ListIndex shownList() const override { return modes.shown(); }
    HeadlineList& listOf(ListIndex list) override { return lists[list]; }
    std::optional<CHeadlineTable> entryAt(ListIndex list, int row) const override;
    void showStory() override { story.show(); }
    void clearStory() override { story.clear(); }
    bool paneShowsStories() const override { return story.paneShowsStories(); }
    bool hasOpenStory() const override { return story.hasOpenStory(); }
    void forgetShownStory() override { story.forget(); }
    void refresh() override { view.vUpdateView(); }
    bool readInPlace(ListIndex list, const std::function<bool()>& read) override {
        return story.readInPlace(list, read);
    }
    QString statusText() const override { return board.status(); }
    void setStatusText(const QString& text) override { board.setStatus(text); }
    void placeNotices() override { board.place(); }

    // What lists see of it. The services are the user's own choice, also while the warrant mode has set it
    // aside: every list but the warrants' holds what he has ticked.
    const std::vector<ServiceEntry>& vGetServices() const override { return services.Saved(); }
    int GetNewsType() const override { return newsType; }
    QString CategoryNameOf(unsigned char service, int id) override { return categories.nameOf(service, id); }
    int CategoryColourOf(unsigned char service, const QString& name, QColor& text,
                         QColor& background) override {
        return categories.colourOf(service, name, text, background) ? 1 : 0;
    }
    QColor TimeColour(std::int64_t time) const override;
    void vCategoryStateAfterWriting() override { categories.showColumn(); }
    void vRowsReplaced(ListIndex list) override;

    // What stories see of it.
    int iGetHeadlineTableSize(int list) const override;
    bool bGetHeadlineTable(CHeadlineTable& entry, int list, int row) const override;
    void vGetNewsActiveService(std::vector<unsigned char>& active) const override;
    bool bChangeNewsPos(int list, int row) override;
    int iRowOf(int list, const CHeadlineTable& headline) const override;
    void PrintHeadline(const CHeadlineTable& headline) override;
    void SaveHeadline(const CHeadlineTable& headline) override;

    CSuperSheetWnd* shownGrid() const { return lists[modes.shown()].pGetGrid(); }
    std::vector<CHeadlineTable> selectedEntries() const;
    // What notices and the button beside them offer. False: the command is none of theirs.
    bool takeNoticeCommand(int id);

    // How mouse events come: by the view itself, handed on by a grid.
    static constexpr unsigned leftButton = 0x01;
    static constexpr unsigned forwardedByGrid = 0x80;

    TRVNewsCtrlView& view;
    BKQuoteInterface& backEnd;
    NewsServices services;
    HeadlineLists lists;
    ControlSet controls;
    StoryStage stage;
    ModeLoading loading;
    ApplicationSwitches switches;
    ViewSettings settings;
    FeedBreaks breaks;
    OutputDialogs outputDialogs;
    int newsType = 0;
    bool initialised = false;  // the host's first calls are through
    ListTip tip;
    const CommonParts common;

    Modes modes;
    Arrangement arrangement;
    ViewBuilder builder;
    StoryDisplay story;
    OutputJobs output;
    NoticeBoard board;
    CommandMenu menu;
    ContextMenu contextMenu;
    ListInput input;
    Shortcuts shortcuts;
    Searches searches;
    StandingSearches standingSearches;
    Days days;
    CategoryMode categories;
    SymbolMode symbolMode;
    SentAgain sentAgain;
    ServiceMenu serviceMenu;
    LiveNews liveNews;

private:
    // What each owner is given of the view and of the others.
    ListTip::Look tipLook() const;
    Modes::Calls modeCalls();
    Arrangement::Calls arrangementCalls();
    ViewBuilder::Calls builderCalls();
    StoryDisplay::Surroundings storySurroundings();
    OutputJobs::Surroundings outputSurroundings();
    NoticeBoard::Surroundings noticeSurroundings();
    std::vector<NoticeBoard::Teller> noticeTellers();
    ContextMenu::Surroundings contextMenuSurroundings();
    ListInput::Surroundings inputSurroundings();
    Shortcuts::Surroundings shortcutSurroundings();
    SymbolMode::Calls symbolCalls();
    SentAgain::Choices choices();
    LiveNews::Calls liveCalls();
    IntakeState intakeChoices() const;
    void connectGrid(CSuperSheetWnd& grid, ListIndex list);
    void readForServices();
    void readUnfiltered();
};

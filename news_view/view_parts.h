// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/intake.h"
#include "headline_list/list_owner.h"
#include "headline_list/outages.h"
#include "news_view/application_switches.h"
#include "news_view/arrangement.h"
#include "news_view/arrival_pill.h"
#include "news_view/category_mode.h"
#include "news_view/common_parts.h"
#include "news_view/context_menu.h"
#include "news_view/control_set.h"
#include "news_view/days.h"
#include "news_view/empty_lists.h"
#include "news_view/hit_marks.h"
#include "news_view/list_hold.h"
#include "news_view/list_input.h"
#include "news_view/list_tip.h"
#include "news_view/live_news.h"
#include "news_view/mode_loading.h"
#include "news_view/modes.h"
#include "news_view/newest_row.h"
#include "news_view/news_services.h"
#include "news_view/notice_board.h"
#include "news_view/output_jobs.h"
#include "news_view/reading.h"
#include "news_view/rows_export.h"
#include "news_view/saved_search_menu.h"
#include "news_view/search_line.h"
#include "news_view/search_offers.h"
#include "news_view/searches.h"
#include "news_view/sent_again.h"
#include "news_view/service_menu.h"
#include "news_view/shortcuts.h"
#include "news_view/standing_searches.h"
#include "news_view/story_display.h"
#include "news_view/story_input.h"
#include "news_view/story_stage.h"
#include "news_view/symbol_mode.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/unread_counts.h"
#include "news_view/view_builder.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"
#include "story/story_owner.h"

// What the news view is made of: the parts that several owners stand on, the owners of its work, and what
// they see of the view and of one another. Only the view's own files know it.
struct TRVNewsCtrlView::Parts final : wirepane::ViewContext, wirepane::ListOwner, wirepane::StoryOwner {
    explicit Parts(TRVNewsCtrlView& newsView);
    ~Parts() override;

    // What owners see of the view.
    wirepane::ListIndex shownList() const override { return modes.shown(); }
    wirepane::HeadlineList& listOf(wirepane::ListIndex list) override { return lists[list]; }
    void showStory() override { story.show(); }
    void openStory() override { story.open(); }
    void clearStory() override { story.clear(); }
    bool paneShowsStories() const override { return story.paneShowsStories(); }
    void refresh() override { view.vUpdateView(); }
    bool readInPlace(wirepane::ListIndex list, const std::function<bool()>& read) override {
        return story.readInPlace(list, read);
    }
    void setStatusText(const QString& text) override { board.setStatus(text); }
    void placeNotices() override {
        board.place();
        emptyLists.followSoon();
        arrivalPill.followSoon();
        unreadCounts.showAgain();
        searchLine.followSoon();
    }

    // What lists see of it. The services are the user's own choice, also while the warrant mode has set it
    // aside: every list but the warrants' holds what he has ticked.
    const std::vector<wirepane::ServiceEntry>& allServices() const override {
        return services.savedServices();
    }
    wirepane::NewsType GetNewsType() const override { return newsType; }
    QString categoryNameOf(unsigned char service, int id) override { return categories.nameOf(service, id); }
    int categoryColourOf(unsigned char service, const QString& name, QColor& text,
                         QColor& background) override {
        return categories.colourOf(service, name, text, background) ? 1 : 0;
    }
    QStringList topicNames() const override { return categories.topicNames(); }
    QColor timeColour(std::int64_t time) const override;
    void categoryStateAfterWriting() override { categories.showColumn(); }
    void rowsReplaced(wirepane::ListIndex list) override;

    // What stories see of it.
    int entryCount(wirepane::ListIndex list) const override;
    std::optional<CHeadlineTable> entryOf(wirepane::ListIndex list, int row) const override;
    void vGetNewsActiveService(std::vector<unsigned char>& active) const override;
    QString topicOf(unsigned char service, int category) override;
    void goTo(wirepane::ListIndex list, int row) override;
    int rowOf(wirepane::ListIndex list, const CHeadlineTable& headline) const override;
    void printHeadline(const CHeadlineTable& headline) override;
    void saveHeadline(const CHeadlineTable& headline) override;

    std::optional<CHeadlineTable> shownEntry(int row) const { return entryOf(modes.shown(), row); }
    int currentRow() const { return shownGrid() != nullptr ? shownGrid()->cptGetFocusNdx().y() : -1; }
    CSuperSheetWnd* shownGrid() const { return lists[modes.shown()].grid(); }
    std::vector<CHeadlineTable> selectedEntries() const;
    std::vector<CHeadlineTable> shownEntries() const;
    // The list's mode and its tab, unless it is shown.
    void showMode(wirepane::ListIndex list);
    // Searches as if the words had been typed into the search box.
    void searchFor(const QString& words);
    // What notices and the button beside them offer. False: the command is none of theirs.
    bool takeNoticeCommand(int id);
    // Whether it is a command of another day.
    bool takeDayCommand(int id);
    bool takeRowCommand(int id);
    void goToDay(const QDate& day);

    // How mouse events come: by the view itself, handed on by a grid.
    static constexpr unsigned leftButton = 0x01;
    static constexpr unsigned forwardedByGrid = 0x80;

    TRVNewsCtrlView& view;
    BKQuoteInterface& backEnd;
    wirepane::NewsServices services;
    wirepane::HeadlineLists lists;
    wirepane::ControlSet controls;
    wirepane::StoryStage stage;
    wirepane::ModeLoading loading;
    wirepane::ApplicationSwitches switches;
    wirepane::ViewSettings settings;
    wirepane::Outages outages;
    wirepane::OutputDialogs outputDialogs;
    wirepane::NewsType newsType = wirepane::NewsType::Full;
    bool initialised = false;  // the host's first calls are through
    wirepane::ListTip tip;
    const wirepane::CommonParts common;

    wirepane::Modes modes;
    wirepane::Arrangement arrangement;
    wirepane::ViewBuilder builder;
    wirepane::StoryDisplay story;
    wirepane::StoryInput storyInput;
    wirepane::NewestRow newestRow;
    wirepane::Reading reading;
    wirepane::ListHold hold;
    wirepane::ArrivalPill arrivalPill;
    wirepane::UnreadCounts unreadCounts;
    wirepane::OutputJobs output;
    wirepane::RowsExport rowsExport;
    wirepane::NoticeBoard board;
    wirepane::CommandMenu menu;
    wirepane::ContextMenu contextMenu;
    wirepane::ListInput input;
    wirepane::Shortcuts shortcuts;
    wirepane::Searches searches;
    wirepane::StandingSearches standingSearches;
    wirepane::Days days;
    wirepane::CategoryMode categories;
    wirepane::SymbolMode symbolMode;
    wirepane::SentAgain sentAgain;
    wirepane::ServiceMenu serviceMenu;
    wirepane::LiveNews liveNews;
    wirepane::SearchOffers searchOffers;
    wirepane::EmptyLists emptyLists;
    wirepane::SearchLine searchLine;
    wirepane::SavedSearchMenu savedSearches;
    wirepane::HitMarks hitMarks;

private:
    // What each owner is given of the view and of the others.
    wirepane::ListTip::Look tipLook() const;
    wirepane::Modes::Calls modeCalls();
    wirepane::Arrangement::Calls arrangementCalls();
    wirepane::ViewBuilder::Calls builderCalls();
    wirepane::StoryDisplay::Surroundings storySurroundings();
    wirepane::StoryInput::Surroundings storyInputSurroundings();
    wirepane::OutputJobs::Surroundings outputSurroundings();
    wirepane::RowsExport::Calls exportCalls();
    wirepane::NoticeBoard::Surroundings noticeSurroundings();
    std::vector<wirepane::NoticeBoard::Teller> noticeTellers();
    wirepane::ContextMenu::Surroundings contextMenuSurroundings();
    wirepane::ListInput::Surroundings inputSurroundings();
    wirepane::Shortcuts::Surroundings shortcutSurroundings();
    wirepane::SymbolMode::Calls symbolCalls();
    wirepane::SentAgain::Choices choices();
    wirepane::LiveNews::Calls liveCalls();
    wirepane::EmptyLists::Calls emptyListCalls();
    // What is offered for a search that found nothing, and what becomes of one that is taken.
    QStringList offersFor(const CSearch& found);
    void takeOffer(int offer);
    void searchInstead(const CSearch& condition);
    wirepane::SavedSearchMenu::Calls savedSearchCalls();
    // What the shown list is of: its category or symbol, as the user reads it.
    QString shownSubject();
    wirepane::IntakeState intakeChoices() const;
    void connectGrid(CSuperSheetWnd& grid, wirepane::ListIndex list);
    // Rows of a list have come, gone or moved.
    void rowsMoved(wirepane::ListIndex list, const wirepane::HeadlinePlace& place) {
        story.keepThrough(list, place);
        arrivalPill.noteMoved(list, place);
        unreadCounts.noteMoved(list, place);
    }
    void readForServices();
    void readUnfiltered();
};

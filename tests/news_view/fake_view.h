// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/headline_table.h"
#include "headline_list/list_owner.h"
#include "headline_list/outages.h"
#include "host/views/quote_base_view.h"
#include "news_view/application_switches.h"
#include "news_view/common_parts.h"
#include "news_view/control_set.h"
#include "news_view/list_tip.h"
#include "news_view/mode_loading.h"
#include "news_view/news_services.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"
#include "story/story_owner.h"
#include "tests/support/fake_back_end.h"

namespace wirepane {

// What an owner of a part of the view's work sees of it, without the view: lists with grids on a bare window,
// and a note of what the owner asked for. The headlines are those of 2 March 2026 of service 1.
class FakeView : public ViewContext, public ListOwner, public StoryOwner {
public:
    // Lists without a grid get one by what is tested.
    enum class Grids { AllAndCategory, None };

    explicit FakeView(FakeBackEnd& newsBackEnd, Grids grids = Grids::AllAndCategory)
        : backEnd(newsBackEnd), controls(window, newsBackEnd), lists(newsBackEnd, *this) {
        window.resize(600, 400);
        services.load(backEnd);
        services.selectInBoth(0);
        if (grids == Grids::None)
            return;
        for (const ListIndex list : {ListIndex::All, ListIndex::Category}) {
            CSuperSheetWnd* grid =
                createHeadlineSheet(&window, QRect(0, 100, 600, 300), NewsType::Full, backEnd);
            grid->setVisible(list == ListIndex::All);
            lists[list].setGrid(grid);
        }
    }

    CommonParts parts() {
        return {backEnd,  window,  services, lists, controls, settings,
                switches, loading, outages,  tip,   newsType};
    }
    CSuperSheetWnd* grid(ListIndex list = ListIndex::All) { return lists[list].grid(); }
    // Adds a headline with its story; the list has it when it is read next.
    CHeadlineTable add(std::int32_t sequence) {
        const CHeadlineTable entry{localTime(2026, 3, 2, 9, sequence), sequence, 1, 0, 0};
        backEnd.add(1, entry.time, sequence, QStringLiteral("Title %1").arg(sequence));
        backEnd.addStory({entry.time, QStringLiteral("Body %1").arg(sequence), entry});
        return entry;
    }
    bool read(ListIndex list = ListIndex::All) {
        return lists.rebuild(list, TableKind::ByDate, QStringLiteral("20260302"));
    }

    ListIndex shownList() const override { return shown; }
    HeadlineList& listOf(ListIndex list) override { return lists[list]; }
    CHeadlineTable entryAt(ListIndex list, int row) const { return lists[list].headlineTable().at(row); }
    void showStory() override { calls.append(QStringLiteral("show story")); }
    void clearStory() override { calls.append(QStringLiteral("clear story")); }
    bool paneShowsStories() const override { return hasPane; }
    void refresh() override { calls.append(QStringLiteral("refresh")); }
    bool readInPlace(ListIndex, const std::function<bool()>& anew) override {
        calls.append(QStringLiteral("read in place"));
        return anew();
    }
    void setStatusText(const QString& text) override {
        calls.append(QStringLiteral("status ") + text);
        status = text;
    }
    void placeNotices() override { calls.append(QStringLiteral("place notices")); }

    const std::vector<ServiceEntry>& allServices() const override { return services.savedServices(); }
    NewsType GetNewsType() const override { return newsType; }
    QString categoryNameOf(unsigned char, int) override { return QStringLiteral("Markets"); }
    int categoryColourOf(unsigned char, const QString&, QColor&, QColor&) override { return 0; }
    void categoryStateAfterWriting() override {}
    void rowsReplaced(ListIndex) override {}

    int entryCount(ListIndex list) const override { return lists[list].headlineTable().size(); }
    std::optional<CHeadlineTable> entryOf(ListIndex list, int row) const override {
        return lists[list].headlineTable().entryAt(row);
    }
    void vGetNewsActiveService(std::vector<unsigned char>& active) const override { active = {1}; }
    void goTo(ListIndex, int) override {}
    int rowOf(ListIndex, const CHeadlineTable&) const override { return -1; }
    void printHeadline(const CHeadlineTable&) override {}
    void saveHeadline(const CHeadlineTable&) override {}

    FakeBackEnd& backEnd;
    TRVQuoteBaseView window;
    ControlSet controls;
    NewsServices services;
    HeadlineLists lists;
    ViewSettings settings;
    ApplicationSwitches switches;
    ModeLoading loading;
    Outages outages;
    ListTip tip{window, [] { return ListTip::Look{{}, Qt::black, Qt::white}; }};
    ListIndex shown = ListIndex::All;
    NewsType newsType = NewsType::Full;
    bool hasPane = true;
    QString status;
    QStringList calls;
};

}  // namespace wirepane

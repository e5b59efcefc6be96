// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/headline_lists.h"
#include "headline_list/list_owner.h"
#include "news_view/view_context.h"
#include "story/story_owner.h"
#include "tests/support/fake_back_end.h"

#include <QWidget>

// What an owner of a part of the view's work sees of it, without the view: lists with grids on a bare window,
// and a note of what the owner asked for. The headlines are those of 2 March 2026 of service 1.
class FakeView : public ViewContext, public ListOwner, public StoryOwner {
public:
    explicit FakeView(FakeBackEnd& newsBackEnd) : backEnd(newsBackEnd), lists(newsBackEnd, *this) {
        window.resize(600, 400);
        for (const ListIndex list : {ListIndex::All, ListIndex::Category}) {
            CSuperSheetWnd* grid = CreateHeadlineSheet(&window, QRect(0, 100, 600, 300), 0, backEnd);
            grid->setVisible(list == ListIndex::All);
            lists[list].vSetGrid(grid);
        }
    }

    CSuperSheetWnd* grid(ListIndex list = ListIndex::All) { return lists[list].pGetGrid(); }
    // Adds a headline with its story; the list has it when it is read next.
    CHeadlineTable add(std::int32_t sequence) {
        const CHeadlineTable entry{localTime(2026, 3, 2, 9, sequence), sequence, 1, 0, 0};
        backEnd.add(1, entry.time, sequence, QStringLiteral("Title %1").arg(sequence));
        backEnd.addStory({entry.time, QStringLiteral("Body %1").arg(sequence), entry});
        return entry;
    }
    bool read(ListIndex list = ListIndex::All) {
        return lists.bRebuild(list, TableKind::ByDate, QStringLiteral("20260302"));
    }

    ListIndex shownList() const override { return shown; }
    HeadlineList& listOf(ListIndex list) override { return lists[list]; }
    std::optional<CHeadlineTable> entryAt(ListIndex list, int row) const override {
        CHeadlineTable entry;
        if (!bGetHeadlineTable(entry, static_cast<int>(list), row))
            return std::nullopt;
        return entry;
    }
    void showStory() override { calls.append(QStringLiteral("show story")); }
    void forgetShownStory() override { calls.append(QStringLiteral("forget story")); }
    void refresh() override { calls.append(QStringLiteral("refresh")); }
    void clearStory() override { calls.append(QStringLiteral("clear story")); }
    bool paneShowsStories() const override { return hasPane; }
    bool hasOpenStory() const override { return hasPane || hasStoryWindow; }
    bool readInPlace(ListIndex, const std::function<bool()>& anew) override {
        calls.append(QStringLiteral("read in place"));
        return anew();
    }
    QString statusText() const override { return status; }
    void setStatusText(const QString& text) override { status = text; }
    void placeNotices() override { calls.append(QStringLiteral("place notices")); }

    const std::vector<ServiceEntry>& vGetServices() const override { return services; }
    int GetNewsType() const override { return 0; }
    QString CategoryNameOf(unsigned char, int) override { return QStringLiteral("Markets"); }
    int CategoryColourOf(unsigned char, const QString&, QColor&, QColor&) override { return 0; }
    void vCategoryStateAfterWriting() override {}
    void vRowsReplaced(ListIndex) override {}

    int iGetHeadlineTableSize(int list) const override {
        const auto index = ListOfNumber(list);
        return index ? lists[*index].Table().size() : -1;
    }
    bool bGetHeadlineTable(CHeadlineTable& entry, int list, int row) const override {
        if (row < 0 || row >= iGetHeadlineTableSize(list))
            return false;
        entry = lists[static_cast<ListIndex>(list)].Table().at(row);
        return true;
    }
    void vGetNewsActiveService(std::vector<unsigned char>& active) const override { active = {1}; }
    bool bChangeNewsPos(int, int) override { return true; }
    int iRowOf(int, const CHeadlineTable&) const override { return -1; }
    void PrintHeadline(const CHeadlineTable&) override {}
    void SaveHeadline(const CHeadlineTable&) override {}

    FakeBackEnd& backEnd;
    QWidget window;
    ListIndex shown = ListIndex::All;
    QStringList calls;
    QString status;
    bool hasPane = true;
    bool hasStoryWindow = false;

private:
    std::vector<ServiceEntry> services{{1, true, 20260302, false}};

public:
    HeadlineLists lists;
};

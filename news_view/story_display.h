// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "host/contract/records.h"
#include "host/contract/search_condition.h"

#include <QFont>

#include <functional>
#include <optional>
#include <vector>

class BKQuoteInterface;
class CSuperSheetWnd;

namespace wirepane {
class StoryStage;

}  // namespace wirepane

class TRVNewsStory;

namespace wirepane {
class ViewContext;
enum class StoryShowType : unsigned short;
struct HeadlinePlace;

// The story of the selected headline: where it is shown, which row's it is, and what the back end has to say
// about it. Interface thread only.
class StoryDisplay {
public:
    struct Surroundings {
        StoryStage& stage;
        std::function<CSearch(ListIndex)> foundUnder;  // the condition that a list's rows were found under
        std::function<QFont()> font;                   // the view's
        std::function<void(ListIndex list, int row)> goTo;  // the selection of the view goes to a row
        std::function<void(const CHeadlineTable& entry, bool byHand)> shown;
    };

    // All that is referred to outlives the display.
    StoryDisplay(ViewContext& view, BKQuoteInterface& backEnd, Surroundings surroundings);

    StoryShowType showType() const { return type; }
    void setShowType(StoryShowType shown) { type = shown; }
    bool paneShowsStories() const;  // else stories are in their window
    bool hasStoryWindow() const;    // that stories are shown in, not the pane
    // The story window while it is the view's story display and to be seen; null: it is not.
    TRVNewsStory* windowOnShow() const;
    // Whether `show` opens no window: stories are in the pane, or their window is open.
    bool hasOpenStory() const { return paneShowsStories() || windowOnShow() != nullptr; }

    // The news whose story is on show in the pane, and its row; -1: none, or it is forgotten.
    std::optional<CHeadlineTable> newsInPane() const;
    int shownRow() const { return row; }
    void forget() { row = -1; }
    void clear();  // empties the pane, and forgets its row
    // Shows the story of the shown list's focused row, unless the pane shows that row's already; without a
    // focused row the story goes.
    void show() { show(false); }
    void open() { show(true); }  // where the reader's hand has gone to the row
    void openWindow();           // for the pane's story, too; without a pane that of the focused row
    void turnChanges();          // of the story on show, or the story again
    // The story of a list's new current row is shown in the pane, when the reader went there: not where the
    // current row went because its own has left, nor within `readInPlace`.
    void follow(const CSuperSheetWnd& grid, ListIndex list);
    // A row has been clicked: its story is shown in the pane; where stories are in their window, the view
    // goes to the row. False in views without a pane, for which a click is nothing.
    bool takeClick();
    void takeDoubleClick();  // opens the window
    // Shows the next, the previous story of the shown list in the pane, round and round; the selection
    // follows.
    void page(int step);

    // What the display shows stands at this row of the shown list. Result: as far as rows go, where it is
    // now; -1: there is no display.
    int pointAt(int newRow);
    // `read` reads a list anew; what the reader looks at stays where it is: the rows, and the pane's story.
    // Result: what `read` says.
    bool readInPlace(ListIndex list, const std::function<bool()>& read);
    // Whether that is under way.
    bool isReadInPlace() const { return keepsPlace; }
    // A row of a list came, went or moved: the pane keeps its story, also when its own row goes.
    void keepThrough(ListIndex list, const HeadlinePlace& place);

    // What the back end answers. An update is told where the shown list has its headline.
    void takeHeadlines(const std::vector<CHeadlineTable>& entries);
    void takeStory(const CHeadlineTable& entry);
    void takeUpdate(const CHeadlineTable& entry);

    // Lists the symbols that the headline in the pane is related to beside it; when they were sent again, if
    // it is that one's.
    void listRelatedSymbols();
    void takeRelatedSymbols(const CNewsSymlistInfo& info);

private:
    void show(bool byHand);
    void tellShown(int shownRow, bool byHand) const;
    std::optional<CHeadlineTable> shownOf(ListIndex list) const;

    ViewContext& view;
    BKQuoteInterface& backEnd;
    Surroundings around;
    StoryShowType type{};
    int row = -1;
    bool keepsPlace = false;  // a list is being read anew around its reader
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "host/contract/records.h"
#include "host/contract/search_condition.h"
#include "story/keyword_match.h"
#include "story/story_head.h"
#include "story/story_history.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

class BKQuoteInterface;

namespace wirepane {
class EntrySource;
class HitFinder;
struct SearchHit;
enum class BodyEnd : int;

// What stands in place of a story: a placeholder, that there is none, or the story.
enum class StoryState { Awaited, Empty, There };

// What a story display has to put into its two texts; a text that is absent stays as it is.
struct StoryTexts {
    std::optional<QString> title;
    std::optional<QString> story;
    std::optional<StoryHead> head = {};    // only where the reader is to tell it
    std::vector<ChangeMark> changes = {};  // of the story

    bool operator==(const StoryTexts&) const = default;
};

// The reading half of a story display: where in its owner's headline lists it stands, and which texts follow
// from that. The display only draws. Interface thread only.
//
// The headline at the position is the one last shown or pointed at. Where the display follows its row, an
// answer counts only while the owner's list still has that headline there, so that a list that was rebuilt
// meanwhile shows nothing wrong. Where it follows its headline, the answer counts wherever the headline
// stands by then.
class StoryReader {
public:
    enum class Follows { Row, Headline };

    // `newsSource` outlives the reader.
    explicit StoryReader(BKQuoteInterface& newsSource, Follows followed = Follows::Row)
        : backEnd(newsSource), follows(followed), history(newsSource) {}

    // Whose headlines are read; not owned, null: none.
    void showSource(EntrySource* owner) { source = owner; }
    // Heads are told with the titles from here on.
    void tellHeads(bool told) { tellsHeads = told; }
    // Heads tell what became of the news from here on.
    void tellChanges(bool told) { tellsChanges = told; }
    // What the story was found by is told from here on, wherever it stands.
    void tellHits(bool told) { hitsAreTold = told; }
    // Where it stands in the shown story, so many places at most; nothing where that is not told, by the
    // owner's choice or as the back end cannot.
    std::optional<std::vector<SearchHit>> hits(const QString& shownText, std::size_t most);
    // Shows what has changed in the story on show since the version before, or the story as it is again.
    StoryTexts turnChanges();
    bool hasChanges() const { return tellsChanges && shown && history.hasEarlier(keyOf(*shown)); }

    // Points at a headline of a list (nothing: of none), which was found under `condition` (empty: not by a
    // search).
    void pointAt(std::optional<ListIndex> list, int position, const CSearch& condition = {});
    // A negative position counts as 0.
    void SetHeadLinePos(int newPosition);
    int GetHeadLinePos() const { return position; }
    // Rows have come or gone above: the position moves along with the headline that is pointed at. Without
    // one the position alone moves.
    void moveHeadLinePos(int newPosition);
    // The headline pointed at has left the list: what is shown stays, and nothing answers for it.
    void leaveHeadline() { pointedAt.reset(); }
    std::optional<ListIndex> list() const { return pointedList; }
    // The headline that answers are for; nothing: none.
    const std::optional<CHeadlineTable>& headlinePointedAt() const { return pointedAt; }
    // The headline whose title is on show; nothing: none.
    const std::optional<CHeadlineTable>& shownHeadline() const { return shown; }
    // A headline was inserted above: the position moves down with its headline.
    void RecvNewHeadLine();
    // Nothing is shown: answers are ignored until the reader is pointed at a headline again.
    void OnClearStory();

    // Shows the headline at the position: title and story, or a placeholder for what is not at hand. Nothing
    // when the list is empty.
    StoryTexts showData();
    // Headlines can be had: the title, when the shown headline is among them.
    StoryTexts RespHeadLine(const std::vector<CHeadlineTable>& entries) const;
    // What the last text of a story is that was told.
    StoryState storyState() const { return state; }
    // The head of the headline on show again: with the symbols that are known by now.
    StoryTexts headAgain() const;
    // A story can be had: its text, when it belongs to the headline at the position; with the title where
    // another headline is still shown.
    StoryTexts RespStory(const CHeadlineTable& entry);

    // Which characters of the shown story to select for the keywords; none unless found by keyword search.
    std::optional<TextRange> mark(const QString& shownText) const;

private:
    std::optional<CHeadlineTable> entryAtPosition() const;
    // The headline that answers are for.
    std::optional<CHeadlineTable> awaitedHeadline() const;
    bool titleIsShown() const;
    // The headline, while it is at hand with any active service.
    std::optional<CHeadline> headlineOf(const CHeadlineTable& entry) const;
    StoryTexts titleOf(const CHeadlineTable& entry) const;
    StoryHead headOf(const CHeadlineTable& entry, const CHeadline& headline) const;
    void putStory(StoryTexts& texts, const CHeadlineTable& entry, const CStory& story, BodyEnd end) const;

    BKQuoteInterface& backEnd;
    Follows follows;
    EntrySource* source = nullptr;
    CSearch condition;
    StoryHistory history;
    std::shared_ptr<const HitFinder> hitFinder;  // of the condition; null: none has been made
    bool hitsAreTold = false;
    bool tellsHeads = false;
    bool tellsChanges = false;
    bool showsChanges = false;  // of the headline on show
    StoryState state = StoryState::Awaited;
    std::optional<ListIndex> pointedList = ListIndex::All;
    int position = 0;
    std::optional<CHeadlineTable> pointedAt;
    std::optional<CHeadlineTable> shown;
};

}  // namespace wirepane

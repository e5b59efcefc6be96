// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_module.h"
#include "story/story_reader.h"
#include "story/story_size.h"

#include <QDialog>

#include <array>

class CMainFrame;
class CQuoteStaticEx;
class MyRichEdit;
class SButton;

namespace wirepane {
class StoryOwner;
class StoryTools;

}  // namespace wirepane

// The story of a headline in a window of its own, modeless. It serves a news view, with buttons to page
// through the view's headlines, print and save; or a main frame, bare, which pushes its texts in. Created
// hidden; its owner shows it, hides it and deletes it. Colours are the platform's. The back end must have
// been installed.
class TRVNewsStory : public QDialog, public wirepane::NewsStoryWindow {
    Q_OBJECT

public:
    // Both outlive the dialog. `ownerView` is its parent window and gets the keyboard back.
    TRVNewsStory(wirepane::StoryOwner& owner, QWidget* ownerView);
    explicit TRVNewsStory(CMainFrame* mainFrame);

    // How stories are set; the owner's choice.
    void setStorySetting(const wirepane::StorySetting& setting);
    // The dialog bears the headline as its title; its buttons stand above the story, with tools at the right.
    // It opens beside the owner's window, where `places`, which outlives it, has no other place, and keeps
    // that there. Once, for a news view's dialog.
    void addTools(QStringList& places);
    // Whether the user has pinned it: other stories leave it alone.
    bool isPinned() const;
    bool hasTools() const { return tools != nullptr; }

    // Sets every text of the dialog in the language in force.
    void vLoadLanguageString() override;
    void vSetFont(const QFont& font);

    // Points at a row of a list of the owner and shows it; found by a search: under this condition.
    void vSetStoryData(int table, int position, const CSearch& condition = {});
    // The row whose story the answers that come are for; negative: 0. What is shown stays.
    void SetHeadLinePos(int position) { reader.SetHeadLinePos(position); }
    int GetHeadLinePos() const { return reader.GetHeadLinePos(); }
    std::optional<wirepane::ListIndex> list() const { return reader.list(); }
    const std::optional<CHeadlineTable>& shownHeadline() const { return reader.shownHeadline(); }
    // Shows the headline and story at the position, or a placeholder while they are not at hand. An empty
    // list leaves the dialog as it is.
    void vShowData();
    // Headlines, a story, can be had now. Whatever does not belong to the headline shown is ignored.
    void RespHeadLine(const std::vector<CHeadlineTable>& entries);
    void RespStory(const CHeadlineTable& entry);
    // The story is being updated: says so above the title until the next show or story.
    void vStoryUpdateNotify(const CHeadlineTable* entry);
    // What has changed in the story since the version before, or the story again; where heads tell of it.
    void turnChanges() { draw(reader.turnChanges()); }
    bool hasChanges() const { return reader.hasChanges(); }
    // Selects the last match of the search's keywords; only where a keyword search found the headline. Or, as
    // the setting says, marks all of them.
    void vSetStorySearchMarke();

    // To the next, the previous headline of the list, round and round; the owner's selection follows.
    void OnBtnPageDown();
    void OnBtnPageUp();
    // Moves the owner's selection to the headline on show, wherever its list has it by now, and has it
    // printed, saved; one that has left the list is put out all the same.
    void OnBtnPrint();
    void OnBtnSaveas();

    // The main frame's texts: a headline whose story is not there yet; a story (an empty one has not come).
    QWidget* frameWindow() override { return this; }
    void vMainFrameShowHeadline(const QString& text) override;
    void vMainFrameShowStroy(const CStory& story) override;

    // The user closes the dialog, by its frame or with Esc.
    void reject() override;

Q_SIGNALS:
    // The user has chosen a symbol of the story; wants stories in another size, as steppedStorySize has it.
    void symbolChosen(unsigned char market, const QString& code);
    void sizeWanted(int step);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    TRVNewsStory(wirepane::StoryOwner* owner, CMainFrame* mainFrame, QWidget* parent);
    void createButtons();
    void addShortcuts();
    void layOut();
    void placeButtons();
    void layOutWithTools();
    void keepOwnPlace();
    QRect besideOthers(QRect place) const;
    void copyStory();
    void draw(const wirepane::StoryTexts& texts);
    void setNotice(const QString& text);
    void page(int step);
    void putOutShown(void (wirepane::StoryOwner::*putOut)(const CHeadlineTable&));

    wirepane::StoryOwner* owner;
    CMainFrame* mainFrame;
    wirepane::StoryReader reader;
    MyRichEdit* titleEdit;
    MyRichEdit* storyEdit;
    CQuoteStaticEx* notice;
    wirepane::StoryTools* tools = nullptr;
    QStringList* keptPlaces = nullptr;
    wirepane::StorySetting storySetting;
    QFont dialogFont;
    std::array<SButton*, 4> buttons{};  // from the right: previous, next, save as, print
};

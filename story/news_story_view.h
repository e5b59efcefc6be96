// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/quote_base_view.h"
#include "story/story_reader.h"
#include "story/story_size.h"

#include <QFont>

class CQuoteStaticEx;

namespace wirepane {
class EntrySource;

}  // namespace wirepane

class MyRichEdit;

// The pane inside the news view that shows the story of the selected headline: a title of three lines above
// the story, and a notice above both while the story is being updated. It holds no headlines of its own: it
// points at a row of one of its owner's lists, and the owner hands the back end's answers on to it.
class NewsStoryView : public TRVQuoteBaseView {
    Q_OBJECT

public:
    // The back end must have been installed.
    Q_INVOKABLE explicit NewsStoryView(QWidget* parent = nullptr);

    // How stories are set; the owner's choice. Typeset, the story has its headline above it, in one text, and
    // the title's control is not seen.
    void setStorySetting(const wirepane::StorySetting& setting);

    // Whose headlines are shown; not owned.
    void vSetNewsParent(wirepane::EntrySource* owner) { reader.showSource(owner); }

    // Does not attach to the back end: the pane hears it through its owner alone.
    void OnInitialUpdate() override;
    // Creates the controls; until then the operations below only keep what they are given.
    void InitialViewInfo(TRVCfgIO2* settings, const QString& section, int first, int second,
                         const QString& name) override;

    // Points at a row of a list of the owner and shows it; found by a search: under this condition.
    void vSetStoryData(int table, int position);
    void vSetStoryData(int table, int position, const CSearch& condition);
    // The row alone; nothing is drawn. A negative position counts as 0.
    void SetHeadLinePos(int position) { reader.SetHeadLinePos(position); }
    int GetHeadLinePos() const { return reader.GetHeadLinePos(); }
    // Rows have come or gone above the headline shown: the position moves along.
    void moveHeadLinePos(int position) { reader.moveHeadLinePos(position); }
    // The headline shown has left the list: it stays on show.
    void leaveHeadline() { reader.leaveHeadline(); }
    // The headline shown, while its list has it; nothing: none.
    const std::optional<CHeadlineTable>& headlinePointedAt() const { return reader.headlinePointedAt(); }
    // The one on show, also when its list has it no more.
    const std::optional<CHeadlineTable>& shownHeadline() const { return reader.shownHeadline(); }
    // The owner's list that the position refers to.
    std::optional<wirepane::ListIndex> list() const { return reader.list(); }

    // Shows the headline and story at the position, or a placeholder while they are not at hand. An empty
    // list leaves the pane as it is.
    void vShowData();
    // Headlines, a story, can be had now. Whatever does not belong to the headline shown is ignored.
    void RespHeadLine(const std::vector<CHeadlineTable>& entries) override;
    void RespStory(const CHeadlineTable& entry) override;
    // The story is being updated: says so above the title until the next show or story. The entry is not
    // looked at.
    void vStoryUpdateNotify(const CHeadlineTable* entry);
    // A headline arrived at the top of the list: the position moves along.
    void RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                         const QString& symbolCode) override;
    // The symbols of the headline shown are known anew.
    void showSymbolsAgain();
    // Empties the pane; answers for what it showed are ignored from here on.
    void OnClearStory();

    // What has changed in the story since the version before, or the story again; where heads tell of it.
    void turnChanges() { draw(reader.turnChanges()); }
    bool hasChanges() const { return reader.hasChanges(); }
    // Selects the last match of the search's keywords and scrolls to it; only where a keyword search found
    // the headline. Or, as the
    // setting says, marks all of them.
    void vSetStorySearchMarke();
    void vSetTextColor();
    void vSetFont(const QFont& font);
    // Non-zero hides the title; the story then fills the whole pane. Takes effect at the next layout.
    void HideHeadLine(int hide);
    void vSetComponentPos();
    void vChangeCast() override;

Q_SIGNALS:
    // The user has chosen a symbol of the story; wants stories in another size, as steppedStorySize has it.
    void symbolChosen(unsigned char market, const QString& code);
    void sizeWanted(int step);

protected:
    void OnDraw(QPainter& painter) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void draw(const wirepane::StoryTexts& texts);
    void setNotice(const QString& text);
    void applyTypography();
    void placeTypeset();
    void applyFont();
    void vLoadLanguageString();

    wirepane::StoryReader reader;
    MyRichEdit* titleEdit = nullptr;
    MyRichEdit* storyEdit = nullptr;
    CQuoteStaticEx* notice = nullptr;
    QFont paneFont;
    wirepane::StorySetting storySetting;
    bool hideHeadline = false;
};

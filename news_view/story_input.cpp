// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/story_input.h"

#include "news_view/story_stage.h"
#include "news_view/view_settings.h"
#include "story/news_story_view.h"

namespace wirepane {

StoryInput::StoryInput(Surroundings surroundings) : around(std::move(surroundings)) {}

void StoryInput::connectPane() {
    const NewsStoryView* pane = around.stage.storyPane();
    if (pane == nullptr)
        return;
    connect(pane, &NewsStoryView::sizeWanted, this, &StoryInput::stepSize);
    connect(pane, &NewsStoryView::symbolChosen, this, [this](unsigned char market, const QString& code) {
        around.chooseSymbol({market, code});
    });
}

void StoryInput::stepSize(int step) {
    around.settings.storySize = steppedStorySize(around.settings.storySize, step);
    if (NewsStoryView* pane = around.stage.storyPane())
        pane->setStorySetting(storySettingOf(around.settings));
}

}  // namespace wirepane

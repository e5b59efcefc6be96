// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/story_input.h"

#include "host/controls/my_rich_edit.h"
#include "news_view/story_menu.h"
#include "news_view/story_stage.h"
#include "news_view/view_settings.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

namespace wirepane {

StoryInput::StoryInput(Surroundings surroundings)
    : around(std::move(surroundings)), menu(around.window, [this](int command) { carryOut(command); }) {}

void StoryInput::connectPane() {
    const NewsStoryView* pane = around.stage.storyPane();
    if (pane == nullptr)
        return;
    connect(pane, &NewsStoryView::sizeWanted, this, &StoryInput::stepSize);
    connect(pane, &NewsStoryView::symbolChosen, this, [this](unsigned char market, const QString& code) {
        around.chooseSymbol({market, code});
    });
    QWidget* text = around.stage.paneText();
    if (!around.settings.options[ViewOption::StoryMenu] || text == nullptr)
        return;
    text->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(text, &QWidget::customContextMenuRequested, this,
            [this, text](const QPoint& point) { openMenu(text->mapToGlobal(point)); });
}

TRVNewsStory* StoryInput::makeWindow() {
    TRVNewsStory* window = around.newWindow();
    if (!around.settings.options[ViewOption::StoryWindow])
        return window;
    window->setStorySetting(storySettingOf(around.settings));
    window->addTools(around.settings.storyWindowPlaces);
    around.stage.setDialogMaker([this] { return makeWindow(); });
    connect(window, &TRVNewsStory::sizeWanted, this, &StoryInput::stepSize);
    connect(window, &TRVNewsStory::symbolChosen, this, [this](unsigned char market, const QString& code) {
        around.chooseSymbol({market, code});
    });
    return window;
}

void StoryInput::stepSize(int step) {
    around.settings.storySize = steppedStorySize(around.settings.storySize, step);
    applySetting();
}

void StoryInput::applySetting() {
    const StorySetting setting = storySettingOf(around.settings);
    if (NewsStoryView* pane = around.stage.storyPane())
        pane->setStorySetting(setting);
    for (TRVNewsStory* window : around.stage.windows()) {
        if (window->hasTools())
            window->setStorySetting(setting);
    }
}

// --- The menu ---

QString StoryInput::selectedWords() const {
    const auto* text = qobject_cast<const MyRichEdit*>(around.stage.paneText());
    return text != nullptr ? text->textCursor().selectedText() : QString();
}

void StoryInput::openMenu(const QPoint& screen) {
    const bool hasChanges = around.stage.storyPane()->hasChanges();
    menu.popUp(storyMenuEntries({selectedWords(), around.canSearch(), hasChanges}), screen);
}

void StoryInput::carryOut(int command) {
    auto* text = qobject_cast<MyRichEdit*>(around.stage.paneText());
    if (text == nullptr)
        return;
    switch (static_cast<StoryCommand>(command)) {
        case StoryCommand::OpenInWindow:
            around.openWindow();
            break;
        case StoryCommand::Search:
            around.searchFor(selectedWords().simplified());
            break;
        case StoryCommand::TurnChanges:
            around.stage.storyPane()->turnChanges();
            break;
        case StoryCommand::SelectAll:
            text->selectAll();
            break;
        case StoryCommand::Copy:
            text->copy();
            break;
    }
}

}  // namespace wirepane

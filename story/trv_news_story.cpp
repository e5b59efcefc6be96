// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/trv_news_story.h"

#include "headline_list/language_keys.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/s_button.h"
#include "host/controls/s_edit.h"
#include "host/controls/window_id.h"
#include "story/story_ids.h"

#include <QCloseEvent>

namespace {

constexpr int margin = 10;
constexpr int buttonGap = 9;
constexpr int spaceForButtons = 50;
constexpr int buttonTop = 15;  // below the story
constexpr QSize initialSize{640, 480};

struct StoryButton {
    int id;
    QLatin1StringView textKey;
};

// From the right edge leftward, so that they read print, save as, next, previous.
constexpr std::array<StoryButton, 4> storyButtons{{
    {story_ids::previousButton, keys::storyPrevious},
    {story_ids::nextButton, keys::storyNext},
    {story_ids::saveAsButton, keys::storySaveAs},
    {story_ids::printButton, keys::storyPrint},
}};

}  // namespace

TRVNewsStory::TRVNewsStory(QWidget* ownerView)
    : QDialog(ownerView), owner(ownerView), titleEdit(new SEdit(this)), storyEdit(new MyRichEdit(this)) {
    SetWindowId(this, story_ids::dialog);
    SetWindowId(titleEdit, story_ids::title);
    SetWindowId(storyEdit, story_ids::storyText);
    titleEdit->setReadOnly(true);
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        buttons[i] = new SButton(this);
        SetWindowId(buttons[i], storyButtons[i].id);
    }
    vLoadLanguageString();
    resize(initialSize);
}

void TRVNewsStory::vLoadLanguageString() {
    BKQuoteInterface& backEnd = *BKQuoteInterface::GetBKInterface();
    setWindowTitle(LangText(backEnd, keys::storyDialogTitle));
    for (std::size_t i = 0; i < buttons.size(); ++i)
        buttons[i]->setText(LangText(backEnd, storyButtons[i].textKey));
}

void TRVNewsStory::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    const int titleHeight = titleEdit->sizeHint().height();
    titleEdit->setGeometry(margin, margin, width() - 2 * margin, titleHeight);
    const int storyTop = margin + titleHeight + margin;
    storyEdit->setGeometry(margin, storyTop, width() - 2 * margin, height() - spaceForButtons - storyTop);
    vPlaceButtons();
}

void TRVNewsStory::vPlaceButtons() {
    const QSize size = buttons.front()->sizeHint();
    int right = storyEdit->geometry().right() + 1;
    const int top = storyEdit->geometry().bottom() + 1 + buttonTop;
    for (SButton* button : buttons) {
        button->setGeometry(right - size.width(), top, size.width(), size.height());
        right -= size.width() + buttonGap;
    }
}

void TRVNewsStory::closeEvent(QCloseEvent* event) {
    owner->setFocus();
    QDialog::closeEvent(event);
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/trv_news_story.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/lang_text.h"
#include "host/contract/sync_info.h"
#include "host/controls/line_icon.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/quote_static_ex.h"
#include "host/controls/row_look.h"
#include "host/controls/s_button.h"
#include "host/controls/window_id.h"
#include "host/views/main_frame_window.h"
#include "story/story_ids.h"
#include "story/story_owner.h"
#include "story/story_setting.h"
#include "story/story_text.h"
#include "story/story_tools.h"
#include "story/window_places.h"

#include <QScreen>
#include <QShortcut>
#include <QShowEvent>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr int margin = 10;
constexpr int titleLines = 2;   // date and title
constexpr int titleExtra = 10;  // the title is that much higher than its text needs
constexpr int titlePadding = 2;
constexpr int buttonGap = 9;
constexpr int spaceForButtons = 50;
constexpr int buttonTop = 15;  // below the story
constexpr QSize initialSize{640, 480};
// With tools.
constexpr QSize largerSize{760, 820};
constexpr int cascade = 28;
constexpr int usualBarHeight = 36;
constexpr int barMargin = 8;
constexpr int barGap = 3;

struct StoryKey {
    QLatin1StringView key;
    std::size_t button;  // of storyButtons
};

constexpr std::array<StoryKey, 4> storyKeys{
    {{"Alt+PgUp"_L1, 0}, {"Alt+PgDown"_L1, 1}, {"Ctrl+S"_L1, 2}, {"Ctrl+P"_L1, 3}}};
// Of the same buttons.
constexpr std::array<LineIcon, 4> storyIcons{LineIcon::Prev, LineIcon::Next, LineIcon::Save, LineIcon::Print};
// The places of the buttons from the left: next, previous, save as, print.
constexpr std::array<std::size_t, 4> orderWithTools{1, 0, 2, 3};

struct StoryButton {
    int id;
    QLatin1StringView textKey;
    void (TRVNewsStory::*clicked)();
};

// From the right edge leftward, so that they read print, save as, next, previous.
constexpr std::array<StoryButton, 4> storyButtons{{
    {story_ids::previousButton, keys::storyPrevious, &TRVNewsStory::OnBtnPageUp},
    {story_ids::nextButton, keys::storyNext, &TRVNewsStory::OnBtnPageDown},
    {story_ids::saveAsButton, keys::storySaveAs, &TRVNewsStory::OnBtnSaveas},
    {story_ids::printButton, keys::storyPrint, &TRVNewsStory::OnBtnPrint},
}};

}  // namespace

TRVNewsStory::TRVNewsStory(StoryOwner& storyOwner, QWidget* ownerView)
    : TRVNewsStory(&storyOwner, nullptr, ownerView) {}

TRVNewsStory::TRVNewsStory(CMainFrame* frame) : TRVNewsStory(nullptr, frame, frame->frameWindow()) {}

TRVNewsStory::TRVNewsStory(StoryOwner* storyOwner, CMainFrame* frame, QWidget* parent)
    : QDialog(parent),
      owner(storyOwner),
      mainFrame(frame),
      reader(*BKQuoteInterface::GetBKInterface(), StoryReader::Follows::Headline),
      titleEdit(new MyRichEdit(this)),
      storyEdit(new MyRichEdit(this)),
      notice(new CQuoteStaticEx(this)) {
    reader.showSource(owner);
    reader.pointAt(std::nullopt, 0);
    setWindowId(this, story_ids::dialog);
    setWindowId(titleEdit, story_ids::title);
    setWindowId(storyEdit, story_ids::storyText);
    setWindowId(notice, story_ids::updateNotice);
    titleEdit->document()->setDocumentMargin(titlePadding);
    notice->hide();
    createButtons();
    connect(storyEdit, &MyRichEdit::sizeWanted, this, &TRVNewsStory::sizeWanted);
    connect(storyEdit, &MyRichEdit::linkClicked, this, [this](const QString& link) {
        if (isLinkToChanges(link))
            turnChanges();
        else if (const auto symbol = symbolOfLink(link))
            emit symbolChosen(symbol->market, symbol->code);
    });
    vSetFont(CSyncInfo::GetSettingCFG()->SYS_fntGetViewFont());
    vLoadLanguageString();
    resize(initialSize);
}

// No button is pressed by Enter: the dialog has no keys of its own.
void TRVNewsStory::createButtons() {
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        buttons[i] = new SButton(this);
        setWindowId(buttons[i], storyButtons[i].id);
        buttons[i]->setHidden(owner == nullptr);
        connect(buttons[i], &SButton::clicked, this, storyButtons[i].clicked);
    }
    // In the order in which they read.
    for (std::size_t i = buttons.size() - 1; i > 0; --i)
        setTabOrder(buttons[i], buttons[i - 1]);
}

void TRVNewsStory::addTools(QStringList& places) {
    keptPlaces = &places;
    tools = new StoryTools(this);
    storyEdit->setFrameStyle(QFrame::NoFrame);
    connect(tools, &StoryTools::copyWanted, this, &TRVNewsStory::copyStory);
    connect(tools, &StoryTools::sizeWanted, this, &TRVNewsStory::sizeWanted);
    reader.tellHeads(true);
    QWidget* last = storyEdit;
    const auto follow = [&last](QWidget* next) {
        setTabOrder(last, next);
        last = next;
    };
    for (const std::size_t at : orderWithTools) {
        buttons[at]->setIcon(lineIcon(storyIcons[at]));
        follow(buttons[at]);
    }
    for (QToolButton* button : tools->buttons())
        follow(button);
    addShortcuts();
    resize(largerSize);
    vLoadLanguageString();
    storyEdit->setFocus();
}

void TRVNewsStory::addShortcuts() {
    for (const StoryKey& key : storyKeys) {
        auto* shortcut = new QShortcut(QKeySequence(QString(key.key)), this);
        connect(shortcut, &QShortcut::activated, this, storyButtons[key.button].clicked);
    }
    auto* changes = new QShortcut(QKeySequence(u"Ctrl+Shift+D"_s), this);
    connect(changes, &QShortcut::activated, this, &TRVNewsStory::turnChanges);
}

bool TRVNewsStory::isPinned() const {
    return tools != nullptr && tools->isPinned();
}

void TRVNewsStory::setStorySetting(const StorySetting& setting) {
    storySetting = setting;
    reader.tellHeads(setting.typeset || tools != nullptr);
    reader.tellChanges(setting.tellsChanges);
    reader.tellHits(setting.marksHits);
    storyEdit->setTypography(setting.typeset ? std::optional(storyTypography(true, palette()))
                                             : std::nullopt);
    vSetFont(dialogFont);
}

void TRVNewsStory::copyStory() {
    if (!storyEdit->textCursor().hasSelection())
        storyEdit->selectAll();
    storyEdit->copy();
}

void TRVNewsStory::vLoadLanguageString() {
    const QString headline = storyEdit->lead().headline;
    setWindowTitle(tools != nullptr && !headline.isEmpty() ? headline : langText(keys::storyDialogTitle));
    if (tools != nullptr) {
        tools->loadTexts();
        for (const StoryKey& key : storyKeys) {
            const QKeySequence sequence{QString(key.key)};
            buttons[key.button]->setToolTip(u"%1 (%2)"_s
                                                .arg(langText(storyButtons[key.button].textKey).remove(u'&'),
                                                     sequence.toString(QKeySequence::NativeText))
                                                .toHtmlEscaped());
        }
    }
    titleEdit->setAccessibleName(langText(keys::title));
    storyEdit->setAccessibleName(langText(keys::nameOfStory));
    for (std::size_t i = 0; i < buttons.size(); ++i)
        buttons[i]->setText(langText(storyButtons[i].textKey));
    layOut();
}

void TRVNewsStory::vSetFont(const QFont& font) {
    dialogFont = font;
    titleEdit->setFont(font);
    storyEdit->setFont(storyFont(font, storySetting));
    notice->setFont(font);
    layOut();
}

// --- Stories ---

void TRVNewsStory::vSetStoryData(int table, int position, const CSearch& condition) {
    reader.pointAt(listOfNumber(table), position, condition);
    vShowData();
}

void TRVNewsStory::vShowData() {
    draw(reader.showData());
}

void TRVNewsStory::RespHeadLine(const std::vector<CHeadlineTable>& entries) {
    draw(reader.RespHeadLine(entries));
}

void TRVNewsStory::RespStory(const CHeadlineTable& entry) {
    draw(reader.RespStory(entry));
}

void TRVNewsStory::draw(const StoryTexts& texts) {
    if (texts.title)
        titleEdit->showText(*texts.title);
    putStory(*storyEdit, texts, reader.storyState());
    if (tools != nullptr && texts.head)
        setWindowTitle(texts.head->headline.isEmpty() ? langText(keys::storyDialogTitle)
                                                      : texts.head->headline);
    if (!texts.story)
        return;
    setNotice({});
    vSetStorySearchMarke();
}

void TRVNewsStory::vSetStorySearchMarke() {
    markFound(*storyEdit, reader);
}

void TRVNewsStory::vStoryUpdateNotify(const CHeadlineTable*) {
    setNotice(langText(keys::waitForUpdate));
}

void TRVNewsStory::setNotice(const QString& text) {
    notice->setText(text);
    if (notice->isHidden() == text.isEmpty())
        return;
    notice->setHidden(text.isEmpty());
    layOut();
}

// --- Buttons ---

void TRVNewsStory::page(int step) {
    const int size = owner != nullptr && list() ? owner->entryCount(*list()) : 0;
    if (size < 1)
        return;
    int position = GetHeadLinePos() + step;
    if (position >= size)
        position = 0;
    else if (position < 0)
        position = size - 1;
    reader.SetHeadLinePos(position);
    vShowData();
    // What is pinned goes its own way.
    if (!isPinned())
        owner->goTo(*list(), position);
}

void TRVNewsStory::OnBtnPageDown() {
    page(1);
}

void TRVNewsStory::OnBtnPageUp() {
    page(-1);
}

void TRVNewsStory::OnBtnPrint() {
    putOutShown(&StoryOwner::printHeadline);
}

void TRVNewsStory::OnBtnSaveas() {
    putOutShown(&StoryOwner::saveHeadline);
}

// Headlines that arrived, or a list that was read anew, may have moved the headline away from the position.
void TRVNewsStory::putOutShown(void (StoryOwner::*putOut)(const CHeadlineTable&)) {
    const std::optional<CHeadlineTable> headline = reader.shownHeadline();
    if (owner == nullptr || !headline)
        return;
    if (const int row = list() ? owner->rowOf(*list(), *headline) : -1; row >= 0)
        owner->goTo(*list(), row);
    (owner->*putOut)(*headline);
}

// --- The main frame's texts ---

void TRVNewsStory::vMainFrameShowHeadline(const QString& text) {
    draw({text, langText(keys::recover)});
}

void TRVNewsStory::vMainFrameShowStroy(const CStory& story) {
    QString body = story.text;
    vConvertStoryContent(body);
    StoryTexts texts;
    texts.story = story.text.isEmpty()
                      ? langText(keys::recover)
                      : storyText(story.time, body, BodyEnd::Shown, langText(keys::storyRemark));
    draw(texts);
}

// --- Layout ---

void TRVNewsStory::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    layOut();
    keepOwnPlace();
}

void TRVNewsStory::moveEvent(QMoveEvent* event) {
    QDialog::moveEvent(event);
    keepOwnPlace();
}

void TRVNewsStory::keepOwnPlace() {
    if (keptPlaces != nullptr && isVisible())
        keepPlace(*keptPlaces, screen()->name(), geometry());
}

// A pinned one that lies there stays in sight.
QRect TRVNewsStory::besideOthers(QRect place) const {
    for (const QObject* sibling : parentWidget()->children()) {
        const auto* other = qobject_cast<const TRVNewsStory*>(sibling);
        if (other != nullptr && other != this && other->isVisible() &&
            other->geometry().topLeft() == place.topLeft())
            return besideOthers(place.translated(cascade, cascade));
    }
    return place;
}

void TRVNewsStory::showEvent(QShowEvent* event) {
    if (keptPlaces != nullptr && !event->spontaneous() && !testAttribute(Qt::WA_Moved)) {
        const QWidget* beside = parentWidget()->window();
        const QRect kept = placeOn(*keptPlaces, beside->screen()->name()).value_or(QRect());
        const QRect room = beside->screen()->availableGeometry();
        setGeometry(
            besideOthers(room.intersects(kept) ? kept : placeBeside(beside->frameGeometry(), size(), room)));
    }
    QDialog::showEvent(event);
}

// The story is as wide as the dialog; its headline stands in it.
void TRVNewsStory::layOutWithTools() {
    tools->fitTo(dialogFont);
    const int barHeight = grown(usualBarHeight, dialogFont);
    QSize size(0, barHeight - 2 * (barMargin - 1));
    for (const SButton* button : buttons)
        size = size.expandedTo(button->sizeHint()).expandedTo({button->widthWithIcon(), 0});
    int left = barMargin;
    const int top = (barHeight - size.height()) / 2;
    for (const std::size_t at : orderWithTools) {
        if (at == orderWithTools.back())
            left += buttonGap - barGap;
        buttons[at]->setGeometry(left, top, size.width(), size.height());
        left += size.width() + barGap;
    }
    tools->move(std::max(left, width() - barMargin - tools->width()), (barHeight - tools->height()) / 2);
    titleEdit->setVisible(!storySetting.typeset);
    const int titleHeight =
        storySetting.typeset ? 0 : titleLines * titleEdit->fontMetrics().lineSpacing() + titleExtra;
    titleEdit->setGeometry(0, barHeight, width(), titleHeight);
    const int storyTop = barHeight + titleHeight;
    storyEdit->setGeometry(0, storyTop, width(), height() - storyTop);
    const QSize said = notice->sizeHint();
    notice->setGeometry(width() - said.width() - 2 * margin, storyTop, said.width(), said.height());
    notice->raise();
}

void TRVNewsStory::layOut() {
    if (tools != nullptr) {
        layOutWithTools();
        return;
    }
    const int noticeHeight = notice->isHidden() ? 0 : notice->fontMetrics().height();
    notice->setGeometry(margin, margin, width() - 2 * margin, noticeHeight);
    const QRect title(margin, margin + noticeHeight, width() - 2 * margin,
                      titleLines * titleEdit->fontMetrics().lineSpacing() + titleExtra);
    titleEdit->setGeometry(title);
    const int storyTop = title.top() + title.height() + margin;
    const int storyBottom = height() - (owner != nullptr ? spaceForButtons : margin);
    storyEdit->setGeometry(margin, storyTop, title.width(), storyBottom - storyTop);
    if (owner != nullptr)
        placeButtons();
}

// All are as large as the largest needs to be.
void TRVNewsStory::placeButtons() {
    QSize size = buttons.front()->sizeHint();
    for (const SButton* button : buttons)
        size = size.expandedTo(button->sizeHint());
    const QRect story = storyEdit->geometry();
    int right = story.left() + story.width();
    const int top = story.top() + story.height() + buttonTop;
    for (SButton* button : buttons) {
        button->setGeometry(right - size.width(), top, size.width(), size.height());
        right -= size.width() + buttonGap;
    }
}

void TRVNewsStory::reject() {
    QDialog::reject();
    if (tools != nullptr)
        tools->unpin();
    if (owner == nullptr) {
        mainFrame->onStoryWindowClosed();
        return;
    }
    parentWidget()->activateWindow();
    parentWidget()->setFocus();
}

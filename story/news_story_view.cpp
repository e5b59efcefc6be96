// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/news_story_view.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/lang_text.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/quote_static_ex.h"
#include "host/controls/window_id.h"
#include "story/story_ids.h"
#include "story/story_setting.h"

#include <QEvent>

using namespace wirepane;

namespace {

constexpr int sideMargin = 10;
constexpr int titleLines = 3;
constexpr int noticeMargin = 24;  // from the right edge, where the story is typeset
constexpr int titlePadding = 1;   // leaves the title's third line readable within the height of three

}  // namespace

NewsStoryView::NewsStoryView(QWidget* parent)
    : TRVQuoteBaseView(parent), reader(*BKQuoteInterface::GetBKInterface()), paneFont(GetViewFont()) {}

void NewsStoryView::OnInitialUpdate() {
    RVComVirtualBaseView::OnInitialUpdate();
}

void NewsStoryView::InitialViewInfo(TRVCfgIO2* settings, const QString& section, int first, int second,
                                    const QString&) {
    TRVQuoteBaseView::InitialViewInfo(settings, section, first, second, QStringLiteral("NewsStoryView"));
    titleEdit = new MyRichEdit(this);
    setWindowId(titleEdit, story_ids::title);
    titleEdit->document()->setDocumentMargin(titlePadding);
    storyEdit = new MyRichEdit(this);
    setWindowId(storyEdit, story_ids::storyText);
    notice = new CQuoteStaticEx(this);
    setWindowId(notice, story_ids::updateNotice);
    notice->hide();
    connect(storyEdit, &MyRichEdit::sizeWanted, this, &NewsStoryView::sizeWanted);
    connect(storyEdit, &MyRichEdit::linkClicked, this, [this](const QString& link) {
        if (isLinkToChanges(link))
            turnChanges();
        else if (const auto symbol = symbolOfLink(link))
            emit symbolChosen(symbol->market, symbol->code);
    });
    vLoadLanguageString();
    storyEdit->show();
    vChangeCast();
}

void NewsStoryView::setStorySetting(const StorySetting& setting) {
    if (setting == storySetting)
        return;
    storySetting = setting;
    reader.tellHeads(setting.typeset);
    reader.tellChanges(setting.tellsChanges);
    reader.tellHits(setting.marksHits);
    applyFont();
    applyTypography();
    vSetComponentPos();
}

void NewsStoryView::applyTypography() {
    if (storyEdit == nullptr)
        return;
    storyEdit->setTypography(storySetting.typeset ? std::optional(storyTypography(hideHeadline, palette()))
                                                  : std::nullopt);
}

void NewsStoryView::vSetStoryData(int table, int position) {
    vSetStoryData(table, position, {});
}

void NewsStoryView::vSetStoryData(int table, int position, const CSearch& condition) {
    reader.pointAt(listOfNumber(table), position, condition);
    vShowData();
}

void NewsStoryView::vShowData() {
    draw(reader.showData());
}

void NewsStoryView::RespHeadLine(const std::vector<CHeadlineTable>& entries) {
    draw(reader.RespHeadLine(entries));
}

void NewsStoryView::RespStory(const CHeadlineTable& entry) {
    draw(reader.RespStory(entry));
}

void NewsStoryView::draw(const StoryTexts& texts) {
    if (titleEdit == nullptr)
        return;
    if (texts.title)
        titleEdit->showText(*texts.title);
    putStory(*storyEdit, texts, reader.storyState());
    if (!texts.story)
        return;
    setNotice({});
    vSetStorySearchMarke();
}

void NewsStoryView::showSymbolsAgain() {
    draw(reader.headAgain());
}

void NewsStoryView::vStoryUpdateNotify(const CHeadlineTable*) {
    if (notice != nullptr)
        setNotice(langText(keys::waitForUpdate));
}

void NewsStoryView::setNotice(const QString& text) {
    notice->setText(text);
    if (notice->isHidden() == text.isEmpty())
        return;
    notice->setHidden(text.isEmpty());
    vSetComponentPos();
}

void NewsStoryView::RecvNewHeadLine(const CHeadline*, const QString&, const QString&) {
    reader.RecvNewHeadLine();
}

void NewsStoryView::OnClearStory() {
    reader.OnClearStory();
    if (titleEdit == nullptr)
        return;
    titleEdit->showText({});
    storyEdit->setLead({});
    storyEdit->showText({});
    setNotice({});
}

void NewsStoryView::vSetStorySearchMarke() {
    if (storyEdit == nullptr)
        return;
    markFound(*storyEdit, reader);
}

void NewsStoryView::vSetTextColor() {
    if (titleEdit == nullptr)
        return;
    titleEdit->vSetTextColor(colText);
    storyEdit->vSetTextColor(colText);
    notice->setColors(colText, colBackground);
}

void NewsStoryView::vSetFont(const QFont& font) {
    if (font == paneFont)
        return;
    paneFont = font;
    applyFont();
    vSetComponentPos();
}

void NewsStoryView::applyFont() {
    for (QWidget* control : std::initializer_list<QWidget*>{titleEdit, storyEdit, notice}) {
        if (control != nullptr)
            control->setFont(control == storyEdit ? storyFont(paneFont, storySetting) : paneFont);
    }
}

void NewsStoryView::HideHeadLine(int hide) {
    hideHeadline = hide != 0;
    applyTypography();
}

void NewsStoryView::vSetComponentPos() {
    if (titleEdit == nullptr)
        return;
    if (storySetting.typeset) {
        placeTypeset();
        return;
    }
    const int line = g_iGetFontHeight(paneFont);
    const int top = notice->isHidden() ? 0 : line;
    notice->setGeometry(0, 0, width(), top);
    QRect title;
    QRect story = rect().adjusted(0, top, 0, 0);
    if (!hideHeadline) {
        title = QRect(sideMargin, top, width() - 2 * sideMargin, titleLines * line);
        story = QRect(title.left(), title.bottom() + 1, title.width(), height() - top - title.height());
    }
    titleEdit->setGeometry(title);
    titleEdit->setVisible(!hideHeadline);
    storyEdit->setGeometry(story);
}

// The notice is over the space above the headline: the story does not move for it.
void NewsStoryView::placeTypeset() {
    titleEdit->hide();
    storyEdit->setGeometry(rect());
    const QSize size = notice->sizeHint();
    notice->setGeometry(width() - size.width() - noticeMargin, 0, size.width(), size.height());
    notice->raise();
}

void NewsStoryView::vChangeCast() {
    TRVQuoteBaseView::vChangeCast();
    paneFont = GetViewFont();
    applyFont();
    applyTypography();
    for (MyRichEdit* edit : {storyEdit, titleEdit}) {
        if (edit != nullptr)
            edit->vSetBkColor(colBackground);
    }
    vSetTextColor();
    vSetComponentPos();
    update();
}

void NewsStoryView::vLoadLanguageString() {
    titleEdit->setAccessibleName(langText(keys::title));
    storyEdit->setAccessibleName(langText(keys::nameOfStory));
}

void NewsStoryView::changeEvent(QEvent* event) {
    TRVQuoteBaseView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && titleEdit != nullptr)
        vLoadLanguageString();
}

void NewsStoryView::OnDraw(QPainter&) {}

void NewsStoryView::resizeEvent(QResizeEvent* event) {
    TRVQuoteBaseView::resizeEvent(event);
    vSetComponentPos();
}

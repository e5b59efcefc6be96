// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/news_story_view.h"

#include "headline_list/language_keys.h"
#include "host/contract/lang_text.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/quote_static_ex.h"
#include "host/controls/window_id.h"
#include "story/story_ids.h"

#include <QEvent>

namespace {

constexpr int sideMargin = 10;
constexpr int titleLines = 3;
constexpr int titlePadding = 1;  // leaves the title's third line readable within the height of three

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
    SetWindowId(titleEdit, story_ids::title);
    titleEdit->document()->setDocumentMargin(titlePadding);
    storyEdit = new MyRichEdit(this);
    SetWindowId(storyEdit, story_ids::storyText);
    notice = new CQuoteStaticEx(this);
    SetWindowId(notice, story_ids::updateNotice);
    notice->hide();
    vLoadLanguageString();
    titleEdit->show();
    storyEdit->show();
    vChangeCast();
}

void NewsStoryView::vSetStoryData(int table, int position) {
    vSetStoryData(table, position, {});
}

void NewsStoryView::vSetStoryData(int table, int position, const CSearch& condition) {
    reader.vSetStoryData(table, position, condition);
    vShowData();
}

void NewsStoryView::vShowData() {
    vDraw(reader.ShowData());
}

void NewsStoryView::RespHeadLine(const std::vector<CHeadlineTable>& entries) {
    vDraw(reader.RespHeadLine(entries));
}

void NewsStoryView::RespStory(const CHeadlineTable& entry) {
    vDraw(reader.RespStory(entry));
}

void NewsStoryView::vDraw(const StoryTexts& texts) {
    if (titleEdit == nullptr)
        return;
    if (texts.title)
        titleEdit->vSetText(*texts.title);
    if (!texts.story)
        return;
    vSetNotice({});
    storyEdit->vSetText(*texts.story);
    vSetStorySearchMarke();
}

void NewsStoryView::vStoryUpdateNotify(const CHeadlineTable*) {
    if (notice != nullptr)
        vSetNotice(LangText(keys::waitForUpdate));
}

void NewsStoryView::vSetNotice(const QString& text) {
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
    titleEdit->vSetText({});
    storyEdit->vSetText({});
    vSetNotice({});
}

void NewsStoryView::vSetStorySearchMarke() {
    if (storyEdit == nullptr)
        return;
    if (const auto match = reader.Mark(storyEdit->szGetShownText()))
        storyEdit->vSetSelection(match->start, match->end);
}

void NewsStoryView::vSetTextColor() {
    if (titleEdit == nullptr)
        return;
    titleEdit->vSetTextColor(colText);
    storyEdit->vSetTextColor(colText);
    notice->vSetColors(colText, colBackground);
}

void NewsStoryView::vSetFont(const QFont& font) {
    if (font == paneFont)
        return;
    paneFont = font;
    vApplyFont();
    vSetComponentPos();
}

void NewsStoryView::vApplyFont() {
    for (QWidget* control : std::initializer_list<QWidget*>{titleEdit, storyEdit, notice}) {
        if (control != nullptr)
            control->setFont(paneFont);
    }
}

void NewsStoryView::vSetComponentPos() {
    if (titleEdit == nullptr)
        return;
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

void NewsStoryView::vChangeCast() {
    TRVQuoteBaseView::vChangeCast();
    paneFont = GetViewFont();
    vApplyFont();
    for (MyRichEdit* edit : {storyEdit, titleEdit}) {
        if (edit != nullptr)
            edit->vSetBkColor(colBackground);
    }
    vSetTextColor();
    vSetComponentPos();
    update();
}

void NewsStoryView::vLoadLanguageString() {
    titleEdit->setAccessibleName(LangText(keys::title));
    storyEdit->setAccessibleName(LangText(keys::nameOfStory));
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

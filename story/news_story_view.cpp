// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/news_story_view.h"

#include "host/controls/my_rich_edit.h"
#include "host/controls/window_id.h"
#include "story/story_ids.h"

namespace {

constexpr int sideMargin = 10;
constexpr int titleLines = 3;

}  // namespace

NewsStoryView::NewsStoryView(QWidget* parent) : TRVQuoteBaseView(parent), paneFont(GetViewFont()) {}

void NewsStoryView::OnInitialUpdate() {
    RVComVirtualBaseView::OnInitialUpdate();
}

void NewsStoryView::InitialViewInfo(TRVCfgIO2* reader, const QString& section, int first, int second,
                                    const QString&) {
    TRVQuoteBaseView::InitialViewInfo(reader, section, first, second, QStringLiteral("NewsStoryView"));
    titleEdit = new MyRichEdit(this);
    SetWindowId(titleEdit, story_ids::title);
    storyEdit = new MyRichEdit(this);
    SetWindowId(storyEdit, story_ids::storyText);
    titleEdit->show();
    storyEdit->show();
    vChangeCast();
}

void NewsStoryView::vSetFont(const QFont& font) {
    paneFont = font;
    vChangeCast();
}

void NewsStoryView::OnClearStory() {
    for (MyRichEdit* edit : {titleEdit, storyEdit}) {
        if (edit != nullptr)
            edit->vSetText({});
    }
}

void NewsStoryView::vSetComponentPos() {
    if (titleEdit == nullptr)
        return;
    QRect title;
    QRect story = rect();
    if (!hideHeadline) {
        title = QRect(sideMargin, 0, width() - 2 * sideMargin, titleLines * g_iGetFontHeight(paneFont));
        story = QRect(title.left(), title.bottom() + 1, title.width(), height() - title.height());
    }
    titleEdit->setGeometry(title);
    titleEdit->setVisible(!hideHeadline);
    storyEdit->setGeometry(story);
}

void NewsStoryView::vChangeCast() {
    TRVQuoteBaseView::vChangeCast();
    for (MyRichEdit* edit : {titleEdit, storyEdit}) {
        if (edit == nullptr)
            continue;
        edit->setFont(paneFont);
        edit->vSetBkColor(colBackground);
        edit->vSetTextColor(colText);
    }
    vSetComponentPos();
    update();
}

void NewsStoryView::OnDraw(QPainter&) {}

void NewsStoryView::resizeEvent(QResizeEvent* event) {
    TRVQuoteBaseView::resizeEvent(event);
    vSetComponentPos();
}

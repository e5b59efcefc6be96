// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/breaking_news.h"

#include "backend/store/embedded_back_end.h"
#include "host/contract/lang_text.h"
#include "terminal/frame/main_frame.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr QLatin1StringView noStoryKey{"IDS_NEWSCTRLVIEW_STRING_NO_NEWS_STORY"};
}

BreakingNews::BreakingNews(NewsModule& newsModule, EmbeddedBackEnd& newsBackEnd, MainFrame& mainFrame)
    : module(newsModule), backEnd(newsBackEnd), frame(mainFrame) {}

BreakingNews::~BreakingNews() {
    backEnd.detach(this);
}

QWidget* BreakingNews::frameWindow() {
    return &frame;
}

void BreakingNews::show() {
    if (window == nullptr)
        window = module.createStoryWindow(this);
    if (window == nullptr)
        return;
    backEnd.attach(this);
    std::vector<CHeadline> newest;
    std::vector<unsigned char> services;
    backEnd.BKQNEWS_bGetAllNewsService(services);
    for (const unsigned char service : services) {
        std::vector<CHeadlineTable> table;
        backEnd.BKQNEWS_iGetHeadlineTable(service, table, static_cast<int>(TableKind::ByDate),
                                          backEnd.BKQNEWS_cszGetCurrDateByService(service));
        if (!table.empty() && (newest.empty() || table.front().time > newest.back().time))
            backEnd.BKQNEWS_iGetHeadline(service, newest, {table.front()});
    }
    if (!newest.empty())
        showHeadline(newest.back());
    window->frameWindow()->show();
    window->frameWindow()->raise();
    window->frameWindow()->activateWindow();
}

void BreakingNews::retranslate() {
    if (window != nullptr)
        window->vLoadLanguageString();
}

void BreakingNews::onStoryWindowClosed() {
    backEnd.detach(this);
    frame.activateWindow();
}

void BreakingNews::RecvNewHeadLine(const CHeadline* headline, const QString&, const QString&) {
    if (headline != nullptr)
        showHeadline(*headline);
}

void BreakingNews::RespStory(const CHeadlineTable& entry) {
    if (keyOf(entry) == keyOf(shown))
        showStory();
}

void BreakingNews::showHeadline(const CHeadline& headline) {
    shown = {headline.time, headline.sequence, headline.service, 0, 0};
    const QDateTime time = QDateTime::fromSecsSinceEpoch(headline.time);
    window->vMainFrameShowHeadline(time.toString(u"yyyy/MM/dd HH:mm:ss"_s) + u" \r\n"_s + headline.title);
    showStory();
}

void BreakingNews::showStory() {
    CStory story;
    if (!backEnd.BKQNEWS_bGetStory(story, shown))
        return;
    // To the window a story without text is one that is still to come.
    if (story.text.isEmpty())
        story.text = langText(noStoryKey);
    window->vMainFrameShowStroy(story);
}

}  // namespace wirepane

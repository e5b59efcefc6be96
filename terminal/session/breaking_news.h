// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/news_receiver.h"
#include "host/views/main_frame_window.h"
#include "host/views/news_module.h"

namespace wirepane {
class EmbeddedBackEnd;
class MainFrame;

// The main frame's window of breaking news: while it is open it shows the headline that came last, whatever
// views are open, and its story as soon as it is there.
class BreakingNews : public CMainFrame, public NewsReceiver {
public:
    // All are not owned and outlive this.
    BreakingNews(NewsModule& module, EmbeddedBackEnd& backEnd, MainFrame& frame);
    ~BreakingNews() override;

    // Opens the window, with the newest headline of the present day.
    void show();
    void retranslate();

    QWidget* frameWindow() override;
    void onStoryWindowClosed() override;

    void RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                         const QString& symbolCode) override;
    void RespStory(const CHeadlineTable& entry) override;

private:
    void showHeadline(const CHeadline& headline);
    void showStory();

    NewsModule& module;
    EmbeddedBackEnd& backEnd;
    MainFrame& frame;
    NewsStoryWindow* window = nullptr;  // belongs to the frame
    CHeadlineTable shown;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/quote_base_view.h"

#include <QFont>
#include <QRect>

class EntrySource;
class MyRichEdit;

// The pane inside the news view that shows the story of the selected headline: a title of three lines above
// the story. It holds no headlines of its own; its owner is asked for them.
class NewsStoryView : public TRVQuoteBaseView {
    Q_OBJECT

public:
    Q_INVOKABLE explicit NewsStoryView(QWidget* parent = nullptr);

    // Whose headlines are shown; not owned.
    void vSetNewsParent(EntrySource* owner) { newsParent = owner; }

    // The owner hands the back end's answers on: the pane does not hear the back end itself.
    void OnInitialUpdate() override;
    // Creates the two text controls.
    void InitialViewInfo(TRVCfgIO2* reader, const QString& section, int first, int second,
                         const QString& name) override;

    void vSetFont(const QFont& font);
    // Non-zero hides the title; the story then fills the whole pane. Takes effect at the next layout.
    void HideHeadLine(int hide) { hideHeadline = hide != 0; }
    // Empties both controls.
    void OnClearStory();
    void vSetComponentPos();
    void vChangeCast() override;

protected:
    void OnDraw(QPainter& painter) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    EntrySource* newsParent = nullptr;
    MyRichEdit* titleEdit = nullptr;
    MyRichEdit* storyEdit = nullptr;
    QFont paneFont;
    bool hideHeadline = false;
};

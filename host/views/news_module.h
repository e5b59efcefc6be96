// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"
#include "host/views/news_output.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QtPlugin>

#include <optional>

class CMainFrame;
class CSuperSheetWnd;
class QWidget;
class TRVQuoteBaseView;

namespace wirepane {

// A bare story window of the module, filled by the host's main frame. Interface thread only.
class WIREPANE_HOST_EXPORT NewsStoryWindow {
public:
    virtual ~NewsStoryWindow();

    // To be shown, hidden and placed; belongs to the main frame's window.
    virtual QWidget* frameWindow() = 0;
    // Sets every text of the window in the language in force.
    virtual void vLoadLanguageString() = 0;
    // A headline whose story is not there yet.
    virtual void vMainFrameShowHeadline(const QString& text) = 0;
    // Its story; one without text counts as not there yet.
    virtual void vMainFrameShowStroy(const CStory& story) = 0;
};

// What a terminal uses a news module through, which it loads at run time. Interface thread only.
class WIREPANE_HOST_EXPORT NewsModule {
public:
    virtual ~NewsModule();

    // The names of the view classes that CreateView knows, such as "TRVNewsCtrlView".
    virtual QStringList viewClassNames() const = 0;

    // Creates a view by the name of its class as a child of `parent`, which owns it; null for an unknown
    // name. The caller then calls OnInitialUpdate and InitialViewInfo, in this order, once each. A back end
    // must have been installed (BKQuoteInterface::SetBKInterface) before.
    virtual TRVQuoteBaseView* CreateView(const QString& className, QWidget* parent) = 0;

    // Creates a bare story window, hidden. It belongs to the main frame's window, which `mainFrame` outlives.
    virtual NewsStoryWindow* createStoryWindow(CMainFrame* mainFrame) = 0;

    // Lays the news of these entries out and prints it into a PDF file; saves it as text. What the back end
    // has not at hand is left out, and the outcome says so; when that is all of it, it failed, and a file of
    // that name stays as it is. Needs no window, the application must be one with windows all the same.
    virtual NewsOutcome printEntries(const std::vector<CHeadlineTable>& entries,
                                     const OutputTarget& target) = 0;
    virtual NewsOutcome saveEntries(const std::vector<CHeadlineTable>& entries,
                                    const OutputTarget& target) = 0;
};

}  // namespace wirepane

#define WIREPANE_NEWS_MODULE_IID "wirepane.NewsModule/4"
Q_DECLARE_INTERFACE(wirepane::NewsModule, WIREPANE_NEWS_MODULE_IID)

namespace wirepane {

// The property of a QAction that a host adds to a view (QWidget::addAction): true when an empty list shall
// offer it where there is no news on any day, by its text. What a view offers then without one: nothing.
inline constexpr const char* offeredWithoutNews = "offeredWithoutNews";

// What a terminal and its scripts can do with a news view beyond what any view offers. A news view implements
// it beside its base class: dynamic_cast from TRVQuoteBaseView.
class WIREPANE_HOST_EXPORT NewsViewAccess {
public:
    virtual ~NewsViewAccess();

    // A NewsType. Set it before InitialViewInfo.
    virtual void vSetNewsType(int newsType) = 0;

    // The view's own state under the names of the automation interface (mode, newsType, services, ...),
    // without its controls, which are found by number.
    virtual QVariantMap state() const = 0;
    // What the story pane, or the story dialog, shows, under the names of the automation interface (title,
    // story, selection, titleRect, ...); empty where there is none.
    virtual QVariantMap storyState(bool inDialog) const = 0;
    // The grid of a headline list, numbered from 0 on; null when the list has none.
    static constexpr int lists = 7;
    virtual CSuperSheetWnd* sheetOf(int list) const = 0;
    // Prints the selected rows, saves them, shows the pages that would print. Without a target the user is
    // asked. What the user is to know of news that had waited, or was put out by a command, the view signals
    // as MessageForUser; these give it in their result.
    virtual NewsOutcome printSelection(const std::optional<OutputTarget>& target) = 0;
    virtual NewsOutcome saveSelection(const std::optional<OutputTarget>& target) = 0;
    virtual void previewSelection() = 0;
    // The keys of rows [from, from + count) of a list, cut to the rows that exist.
    virtual std::vector<HeadlineKey> keysOf(int list, int from, int count) const = 0;
    // The host's file of category names has changed: the view reads it again.
    virtual void reloadCategories() = 0;
    // The back end may have got services: the view takes them up, ticked where its settings want it
    // (TickNewServices).
    virtual void reloadServices() = 0;
};

// Loads the module from a file. Null when that fails; `error` then says why, in a sentence with the file's
// name. The module stays loaded until the process ends.
WIREPANE_HOST_EXPORT NewsModule* loadNewsModule(const QString& file, QString& error);

}  // namespace wirepane

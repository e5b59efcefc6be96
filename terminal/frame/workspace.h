// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"
#include "host/contract/cfg_io.h"
#include "host/contract/view_kinds.h"
#include "host/views/news_module.h"
#include "host/views/quote_base_view.h"
#include "terminal/frame/view_docks.h"

#include <QObject>
#include <QSize>

#include <memory>
#include <vector>

namespace wirepane {
class MainFrame;
class ViewDock;

// How a news view is to be opened.
struct ViewRequest {
    QSize size;  // of its client area, on the desk; invalid: in a dock
    NewsType newsType = NewsType::Full;
    QString typeName;
    QString section = QStringLiteral("main");
    int place = 0;  // the user's views: which of them, for its dock and its settings
    QString title;  // given by the user; empty: what the view shows
    unsigned char linkGroup = 0;
    // Where the view reads its settings for as long as it lives: `settings` (not owned), or `ownSettings`
    // where it is set.
    TRVCfgIO2* settings = nullptr;
    std::unique_ptr<MemoryCfgIO> ownSettings;
};

// One open view. The view belongs to its dock or to the desk.
struct OpenView {
    int number = 0;
    TRVQuoteBaseView* view = nullptr;
    NewsViewAccess* access = nullptr;
    ViewDock* dock = nullptr;  // null: it stands on the desk
    NewsType newsType = NewsType::Full;
    QString typeName;
    QString section;
    int place = 0;
    QString title;
    TRVCfgIO2* settings = nullptr;
    std::unique_ptr<MemoryCfgIO> ownSettings;

    // What stands on its bar: the user's title, else what the view shows.
    QString shownTitle() const;
    // With how much of its shown list is unread.
    QString countedTitle() const;
    // The grid that the user sees in the view; null when there is none.
    CSuperSheetWnd* shownGrid() const;
};

// The open news views of the terminal, numbered from 1 on in the order in which they were opened. One of them
// is the active one: where the keyboard is, or was last.
class Workspace : public QObject {
    Q_OBJECT

public:
    // Neither is owned; both outlive the workspace.
    Workspace(NewsModule& module, MainFrame& frame, QObject* parent = nullptr);
    ~Workspace() override;

    // Opens a view, starts it up whole and shows it. Fails when the module cannot make one. The result
    // belongs to the workspace.
    Result<OpenView*> open(ViewRequest request);
    // Ends the view at once, with what it has open.
    void close(int number);
    // Starts a view anew in its place, with its settings as they stand in its store. Fails as open() does;
    // the view is gone then.
    Done reopen(OpenView& view);
    // Has the view write its settings to where it read them from, or to another place of the same store.
    void save(const OpenView& view) { save(view, view.place); }
    void save(const OpenView& view, int place);
    // Where the settings of a view stand in its store.
    static ViewSettingPath settingPath(const QString& section, int place);
    // False for a view in a dock, whose size the dock gives.
    bool resize(const OpenView& view, const QSize& size);
    void rename(OpenView& view, const QString& title);
    void link(OpenView& view, unsigned char group);

    // Gives the view the keyboard and, behind others, brings it to the front.
    void activate(const OpenView& view);
    // Activates the docked view that is `step` (1 or -1) from the active one, in the order of opening.
    void activateNext(int step);
    // Brings the news of a group's symbol to the front and gives it the keyboard: in the view that shows it
    // already, else in the active one, else in another of the group. Does nothing without one.
    void showSymbolNews(unsigned char group);
    void arrange(Arrangement arrangement);

    // Null when there is no such view.
    OpenView* find(int number);
    // The view that was opened last; null when none is open.
    OpenView* newest();
    // Null when none is open.
    OpenView* active();
    const std::vector<std::unique_ptr<OpenView>>& views() const { return openViews; }
    // The views in docks.
    std::vector<OpenView*> docked() const;
    // A count of an open view has changed: those that bear it are written anew, and no menu.
    void refreshCounts();
    // Writes all titles anew.
    void refreshTitles();
    // Takes the language in force into all bars.
    void retranslate();

signals:
    // What the active view is called with its count has changed.
    void counted();
    // Views, their titles, links or sizes have changed, or another one is active.
    void arranged();
    // A view has been opened, or started anew.
    void opened(wirepane::OpenView* view);
    void linked(wirepane::OpenView* view);
    // The user asks for these by a view's bar.
    void renameAsked(int number);
    void closeAsked(int number);

private:
    Done start(OpenView& view, unsigned char group, const QSize& size);
    void watchBar(OpenView& view);
    void follow(const QWidget* focus);
    void showDeskWhereNeeded();

    NewsModule& module;
    MainFrame& frame;
    std::vector<std::unique_ptr<OpenView>> openViews;
    int lastNumber = 0;
    int activeNumber = 0;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/workspace_keeper.h"

#include "host/contract/view_options.h"
#include "terminal/frame/main_frame.h"
#include "terminal/frame/row_density.h"
#include "terminal/frame/symbol_box.h"
#include "terminal/frame/workspace.h"
#include "terminal/session/link_groups.h"
#include "terminal/settings/layout_store.h"
#include "terminal/settings/settings_file.h"
#include "terminal/settings/terminal_settings.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int keepMs = 2000;
const QString section = u"main"_s;

StoredView storedView(const OpenView& open) {
    return {open.place, open.newsType, open.typeName, open.title, open.view->linkedGroup()};
}

}  // namespace

WorkspaceKeeper::WorkspaceKeeper(Parts itsParts) : parts(std::move(itsParts)) {
    timer.setInterval(keepMs);
    connect(&timer, &QTimer::timeout, this, &WorkspaceKeeper::keep);
}

Done WorkspaceKeeper::restore() {
    WorkspaceLayout layout = WorkspaceLayout::read(parts.file);
    if (layout.views.empty())
        layout.views.push_back({0, NewsType::Full, {}, {}, parts.frame.symbolBox().group()});
    parts.links.recall(layout.symbols);
    Done failure = Nothing{};
    for (const StoredView& view : layout.views) {
        const auto opened = open(view);
        if (opened)
            continue;
        failure = opened.error();
        parts.frame.showNotice(terminalText(TextId::ViewFailed).arg(shownText(opened.error())));
    }
    const std::vector<OpenView*> opened = parts.workspace.docked();
    if (opened.empty())
        return failure;
    if (!layout.arrangement.isEmpty())
        parts.frame.restoreArrangement(layout.arrangement);
    const auto active = std::find_if(opened.begin(), opened.end(), [&layout](const OpenView* view) {
        return view->place == layout.activePlace;
    });
    parts.workspace.activate(active == opened.end() ? *opened.front() : **active);
    timer.start();
    connect(qApp, &QCoreApplication::aboutToQuit, this, &WorkspaceKeeper::keep);
    return Nothing{};
}

Result<OpenView*> WorkspaceKeeper::open(const StoredView& stored) {
    ViewOptions::writeMissing(parts.layout, Workspace::settingPath(section, stored.place));
    ViewRequest request;
    request.newsType = stored.newsType;
    request.typeName = stored.typeName;
    request.section = section;
    request.place = stored.place;
    request.title = stored.title;
    request.linkGroup = stored.linkGroup;
    request.settings = &parts.layout;
    return parts.open(std::move(request));
}

// A new view has its rows as close as the active one.
Result<OpenView*> WorkspaceKeeper::openBeside(const StoredView& view) {
    const OpenView* active = parts.workspace.active();
    const bool compact = active != nullptr && areRowsCompact(*active);
    auto opened = open(view);
    if (opened && compact)
        setRowsCompact(*opened.value(), true);
    return opened;
}

Result<OpenView*> WorkspaceKeeper::openNew(NewsType newsType) {
    StoredView view;
    view.place = freePlace();
    view.newsType = newsType;
    view.linkGroup = parts.frame.symbolBox().group();
    // What a closed view of this place has left behind.
    parts.layout.forget(section, view.place);
    // Beside others a view is narrow: its story goes under its list.
    if (!parts.workspace.docked().empty())
        parts.layout.setViewInfo(Workspace::settingPath(section, view.place), u"NewsShowType"_s,
                                 static_cast<int>(StoryShowType::Below));
    return openBeside(view);
}

Result<OpenView*> WorkspaceKeeper::openLike(const OpenView& other) {
    StoredView view = storedView(other);
    view.place = freePlace();
    parts.layout.forget(section, view.place);
    parts.workspace.save(other, view.place);
    return openBeside(view);
}

int WorkspaceKeeper::freePlace() const {
    const std::vector<OpenView*> views = parts.workspace.docked();
    int place = 0;
    while (std::any_of(views.begin(), views.end(),
                       [place](const OpenView* view) { return view->place == place; }))
        ++place;
    return place;
}

Done WorkspaceKeeper::reopenAll() {
    Done outcome = Nothing{};
    for (OpenView* view : parts.workspace.docked()) {
        parts.workspace.save(*view);
        if (const Done done = parts.workspace.reopen(*view); !done)
            outcome = done;
    }
    return outcome;
}

WorkspaceLayout WorkspaceKeeper::layoutNow() const {
    WorkspaceLayout layout;
    for (const OpenView* view : parts.workspace.docked())
        layout.views.push_back(storedView(*view));
    layout.arrangement = parts.frame.docks().save();
    if (const OpenView* active = parts.workspace.active())
        layout.activePlace = active->place;
    layout.symbols = parts.links.symbols();
    return layout;
}

Done WorkspaceKeeper::save() {
    for (const OpenView* view : parts.workspace.docked())
        parts.workspace.save(*view);
    layoutNow().write(parts.file);
    parts.settings.setFrameGeometry(parts.frame.saveGeometry());
    return parts.file.save();
}

void WorkspaceKeeper::keep() {
    if (const Done saved = save(); !saved)
        parts.frame.showNotice(shownText(saved.error()));
}

}  // namespace wirepane

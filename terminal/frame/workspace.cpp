// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/workspace.h"

#include "host/contract/lang_text.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "terminal/frame/first_news.h"
#include "terminal/frame/frame_errors.h"
#include "terminal/frame/main_frame.h"
#include "terminal/frame/view_desk.h"
#include "terminal/frame/view_dock.h"

#include <QApplication>
#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString viewClass = u"TRVNewsCtrlView"_s;
constexpr QLatin1StringView symbolNewsKey{"IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS"};

constexpr int symbolMode = 2;
constexpr QSize startSize(900, 600);  // of a view whose dock has not been laid out yet

// The first of the host's two layout numbers: one frame. The second is the view's place in it.
constexpr int frameNumber = 0;

QWidget* keyboardTarget(const OpenView& open) {
    CSuperSheetWnd* grid = open.shownGrid();
    return grid != nullptr ? grid : static_cast<QWidget*>(open.view);
}

// What the view is for: its chosen tab, else its caption.
QString subjectOf(const OpenView& open, bool& ofSymbol) {
    const auto* strip = qobject_cast<CXTPTabControl*>(dlgItem(open.view, ids::tabStrip));
    if (strip != nullptr && strip->count() > 0) {
        ofSymbol = strip->itemData(strip->curSel()) == symbolMode;
        return strip->literalTabText(strip->curSel());
    }
    ofSymbol = isOfOneSymbol(open.newsType);
    QString caption;
    if (ofSymbol)
        caption = langText(symbolNewsKey);
    else
        open.view->GetCaption(caption);
    return caption;
}

}  // namespace

QString OpenView::shownTitle() const {
    if (!title.isEmpty())
        return title;
    bool ofSymbol = false;
    const QString subject = subjectOf(*this, ofSymbol);
    const QString code = access->state()[u"symbol"_s].toMap()[u"code"_s].toString();
    return ofSymbol && !code.isEmpty() ? u"%1 %2"_s.arg(subject, code) : subject;
}

QString OpenView::countedTitle() const {
    const auto* strip = qobject_cast<CXTPTabControl*>(dlgItem(view, ids::tabStrip));
    const QString count = strip != nullptr ? strip->badge(strip->curSel()) : QString();
    return count.isEmpty() ? shownTitle() : u"%1 (%2)"_s.arg(shownTitle(), count);
}

CSuperSheetWnd* OpenView::shownGrid() const {
    for (int list = 0; list < NewsViewAccess::lists; ++list) {
        CSuperSheetWnd* sheet = access->sheetOf(list);
        if (sheet != nullptr && sheet->isVisibleTo(view))
            return sheet;
    }
    return nullptr;
}

Workspace::Workspace(NewsModule& newsModule, MainFrame& mainFrame, QObject* parent)
    : QObject(parent), module(newsModule), frame(mainFrame) {
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* focus) { follow(focus); });
}

Workspace::~Workspace() = default;

Result<OpenView*> Workspace::open(ViewRequest request) {
    auto entry = std::make_unique<OpenView>();
    entry->number = ++lastNumber;
    entry->newsType = request.newsType;
    entry->typeName = request.typeName;
    entry->section = request.section;
    entry->place = request.place;
    entry->title = request.title;
    entry->ownSettings = std::move(request.ownSettings);
    entry->settings = entry->ownSettings ? entry->ownSettings.get() : request.settings;
    OpenView& view = *entry;
    if (!request.size.isValid()) {
        const OpenView* neighbour = active();
        view.dock = frame.docks().add(view.place, neighbour != nullptr ? neighbour->dock : nullptr);
        watchBar(view);
    }
    const Done started = start(view, request.linkGroup, request.size);
    if (!started) {
        if (view.dock != nullptr)
            frame.docks().remove(view.dock);
        return started.error();
    }
    openViews.push_back(std::move(entry));
    showDeskWhereNeeded();
    activate(view);
    refreshTitles();
    return &view;
}

Done Workspace::start(OpenView& open, unsigned char group, const QSize& size) {
    QWidget* parent = open.dock != nullptr ? static_cast<QWidget*>(open.dock) : &frame.desk();
    auto* view = module.CreateView(viewClass, parent);
    auto* access = dynamic_cast<NewsViewAccess*>(view);
    if (access == nullptr) {
        delete view;
        return makeError<frame_errors::unknownView>(viewClass);
    }
    open.view = view;
    open.access = access;
    if (open.dock == nullptr)
        frame.desk().place(view, size);
    else
        view->resize(open.dock->widget() != nullptr ? open.dock->widget()->size() : startSize);
    view->setFrameId(open.number);
    view->setLinkGroup(group);
    offerFirstNews(*view, frame);
    view->OnInitialUpdate();
    view->setTypeName(open.typeName);
    access->vSetNewsType(static_cast<int>(open.newsType));
    view->InitialViewInfo(open.settings, open.section, frameNumber, open.place, viewClass);
    if (open.dock != nullptr)
        open.dock->setWidget(view);
    view->show();
    if (const auto* strip = qobject_cast<CXTPTabControl*>(dlgItem(view, ids::tabStrip))) {
        connect(strip, &QTabBar::currentChanged, this, &Workspace::refreshTitles, Qt::QueuedConnection);
        connect(strip, &CXTPTabControl::badgeChanged, this, &Workspace::refreshCounts, Qt::QueuedConnection);
    }
    emit opened(&open);
    return Nothing{};
}

void Workspace::watchBar(OpenView& view) {
    const int number = view.number;
    connect(view.dock, &ViewDock::groupChosen, this, [this, number](unsigned char group) {
        if (OpenView* chosen = find(number))
            link(*chosen, group);
    });
    connect(view.dock, &ViewDock::renameAsked, this, [this, number] { emit renameAsked(number); });
    connect(view.dock, &ViewDock::closeAsked, this, [this, number] { emit closeAsked(number); });
    connect(view.dock, &ViewDock::pressed, this, [this, number] {
        if (const OpenView* pressed = find(number))
            activate(*pressed);
    });
}

void Workspace::close(int number) {
    const auto position = std::find_if(openViews.begin(), openViews.end(),
                                       [number](const auto& view) { return view->number == number; });
    if (position == openViews.end())
        return;
    // The view may still read its settings while it goes.
    const std::unique_ptr<OpenView> closing = std::move(*position);
    openViews.erase(position);
    if (activeNumber == number)
        activeNumber = 0;
    delete closing->view;
    if (closing->dock != nullptr)
        frame.docks().remove(closing->dock);
    showDeskWhereNeeded();
    if (const OpenView* next = active())
        activate(*next);
    refreshTitles();
}

Done Workspace::reopen(OpenView& open) {
    const unsigned char group = open.view->linkedGroup();
    const QSize size = open.dock == nullptr ? open.view->size() : QSize();
    const QPointer<QWidget> old = open.view;
    const Done started = start(open, group, size);
    if (!started)
        close(open.number);
    else
        delete old;
    refreshTitles();
    return started;
}

void Workspace::save(const OpenView& view, int place) {
    view.view->SaveViewInfo(view.settings, view.section, frameNumber, place);
}

ViewSettingPath Workspace::settingPath(const QString& section, int place) {
    return {section, frameNumber, place, viewClass};
}

bool Workspace::resize(const OpenView& view, const QSize& size) {
    if (view.dock != nullptr)
        return false;
    frame.desk().place(view.view, size);
    emit arranged();
    return true;
}

void Workspace::rename(OpenView& view, const QString& title) {
    view.title = title.simplified();
    refreshTitles();
}

void Workspace::link(OpenView& view, unsigned char group) {
    view.view->setLinkGroup(group);
    emit linked(&view);
    refreshTitles();
}

void Workspace::activate(const OpenView& view) {
    if (view.dock != nullptr) {
        view.dock->show();
        view.dock->raise();
    }
    QWidget* target = keyboardTarget(view);
    if (!view.view->isAncestorOf(QApplication::focusWidget()))
        target->setFocus();
    follow(target);
}

void Workspace::showSymbolNews(unsigned char group) {
    std::vector<OpenView*> linked = docked();
    std::erase_if(linked, [group](const OpenView* view) { return view->view->linkedGroup() != group; });
    if (linked.empty())
        return;
    const auto showing = std::find_if(linked.begin(), linked.end(), [](const OpenView* view) {
        bool ofSymbol = false;
        subjectOf(*view, ofSymbol);
        return ofSymbol;
    });
    const auto current = std::find(linked.begin(), linked.end(), active());
    const OpenView& chosen = **(showing != linked.end()   ? showing
                                : current != linked.end() ? current
                                                          : linked.begin());
    if (auto* strip = qobject_cast<CXTPTabControl*>(dlgItem(chosen.view, ids::tabStrip))) {
        for (int tab = 0; tab < strip->count(); ++tab) {
            if (strip->itemData(tab) != symbolMode || tab == strip->curSel())
                continue;
            strip->SetCurSel(tab);
            chosen.view->onCommand(ids::tabStrip);
        }
    }
    activate(chosen);
    keyboardTarget(chosen)->setFocus();
}

void Workspace::follow(const QWidget* focus) {
    for (const auto& open : openViews) {
        const bool inside = focus != nullptr && (focus == open->view || open->view->isAncestorOf(focus) ||
                                                 (open->dock != nullptr && open->dock->isAncestorOf(focus)));
        if (inside && open->number != activeNumber) {
            activeNumber = open->number;
            refreshTitles();
            return;
        }
    }
}

void Workspace::activateNext(int step) {
    const std::vector<OpenView*> all = docked();
    const auto at = std::find(all.begin(), all.end(), active());
    if (all.empty())
        return;
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    const std::ptrdiff_t position = at == all.end() ? 0 : at - all.begin() + step;
    activate(*all[static_cast<std::size_t>((position + count) % count)]);
}

void Workspace::arrange(Arrangement arrangement) {
    const OpenView* top = active();
    frame.docks().arrange(arrangement, top != nullptr ? top->dock : nullptr);
    if (top != nullptr)
        activate(*top);
    emit arranged();
}

void Workspace::showDeskWhereNeeded() {
    const bool pinned = std::any_of(openViews.begin(), openViews.end(),
                                    [](const auto& open) { return open->dock == nullptr; });
    frame.showDesk(pinned || frame.docks().all().isEmpty());
}

void Workspace::refreshCounts() {
    for (const auto& open : openViews) {
        if (open->dock != nullptr && open->view != nullptr)
            open->dock->setTitle(open->countedTitle(), open->view->linkedGroup());
    }
    emit counted();
}

void Workspace::refreshTitles() {
    const OpenView* current = active();
    for (const auto& open : openViews) {
        if (open->dock != nullptr && open->view != nullptr)
            open->dock->setActive(open.get() == current);
    }
    refreshCounts();
    emit arranged();
}

void Workspace::retranslate() {
    for (ViewDock* dock : frame.docks().all())
        dock->retranslate();
    refreshTitles();
}

OpenView* Workspace::find(int number) {
    for (const auto& view : openViews) {
        if (view->number == number)
            return view.get();
    }
    return nullptr;
}

OpenView* Workspace::newest() {
    return openViews.empty() ? nullptr : openViews.back().get();
}

OpenView* Workspace::active() {
    OpenView* found = find(activeNumber);
    return found != nullptr ? found : newest();
}

std::vector<OpenView*> Workspace::docked() const {
    std::vector<OpenView*> found;
    for (const auto& open : openViews) {
        if (open->dock != nullptr)
            found.push_back(open.get());
    }
    return found;
}

}  // namespace wirepane

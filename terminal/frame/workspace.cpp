// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/workspace.h"

#include "terminal/frame/view_desk.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString viewClass = u"TRVNewsCtrlView"_s;

// The host's two layout numbers: one frame, and the view's place in it.
constexpr int frameNumber = 0;
constexpr int placeNumber = 0;

}  // namespace

Workspace::Workspace(NewsModule& newsModule, ViewDesk& viewDesk, QObject* parent)
    : QObject(parent), module(newsModule), desk(viewDesk) {}

Result<OpenView*> Workspace::open(ViewRequest request) {
    auto* view = module.CreateView(viewClass, &desk);
    auto* access = dynamic_cast<NewsViewAccess*>(view);
    if (access == nullptr) {
        delete view;
        return Error{u"The news module cannot make a view of the class %1."_s.arg(viewClass)};
    }
    auto opened = std::make_unique<OpenView>();
    opened->number = ++lastNumber;
    opened->view = view;
    opened->access = access;
    opened->section = request.section;
    opened->ownSettings = std::move(request.ownSettings);
    opened->settings = opened->ownSettings ? opened->ownSettings.get() : request.settings;
    desk.place(view, request.size);
    view->vSetFrameId(opened->number);
    view->OnInitialUpdate();
    view->vSetTypeName(request.typeName);
    access->vSetNewsType(request.newsType);
    view->InitialViewInfo(opened->settings, opened->section, frameNumber, placeNumber, viewClass);
    openViews.push_back(std::move(opened));
    view->show();
    emit arranged();
    return openViews.back().get();
}

void Workspace::close(int number) {
    const auto position = std::find_if(openViews.begin(), openViews.end(),
                                       [number](const auto& view) { return view->number == number; });
    if (position == openViews.end())
        return;
    // The view may still read its settings while it goes.
    const std::unique_ptr<OpenView> closing = std::move(*position);
    openViews.erase(position);
    delete closing->view;
    emit arranged();
}

void Workspace::save(const OpenView& view) {
    view.view->SaveViewInfo(view.settings, view.section, frameNumber, placeNumber);
}

void Workspace::resize(const OpenView& view, const QSize& size) {
    desk.place(view.view, size);
    emit arranged();
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

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/list_input.h"

#include "headline_list/headline_list.h"
#include "news_view/story_stage.h"
#include "news_view/view_context.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

namespace wirepane {

namespace {

bool isEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

ListInput::ListInput(ViewContext& context, Surroundings surroundings)
    : view(context),
      around(std::move(surroundings)),
      router(around.window, [this](const QKeyEvent& event) { return takeBefore(event); }) {}

// --- Keys ---

KeySituation ListInput::situation() const {
    const CSuperSheetWnd* grid = view.listOf(view.shownList()).grid();
    const QWidget* holder = around.window.focusWidget();
    KeyboardFocus focus = KeyboardFocus::Control;
    if (grid != nullptr && grid->bHasFocus())
        focus = KeyboardFocus::Grid;
    else if (holder == nullptr || holder == &around.window)
        focus = KeyboardFocus::View;
    return {view.shownList(), around.newsType(), around.paneShowsStories(), focus};
}

bool ListInput::takeBefore(const QKeyEvent& event) {
    if (handingKeyOn || around.stage.isInQuotes(around.window.focusWidget()))
        return false;
    if (event.type() == QEvent::KeyRelease)
        return takeRelease(event);
    const KeyRoute route = routeKey(event.key(), event.modifiers(), situation());
    if (!route.consumed)
        return false;
    if (route.atRelease) {
        if (keysAtRelease.press(event.key(), event.isAutoRepeat()))
            carryOut(route, event);
        return true;
    }
    // Enter takes its way through the grid to the view.
    if (isEnter(event.key()))
        return false;
    carryOut(route, event);
    return true;
}

void ListInput::carryOut(const KeyRoute& route, const QKeyEvent& event) {
    QWidget* receiver = &around.window;
    if (!route.toView)
        receiver = route.toGrid ? view.listOf(view.shownList()).grid() : nullptr;
    if (receiver != nullptr)
        handOn(*receiver, event);
    if (route.showStory)
        view.openStory();
}

void ListInput::handOn(QWidget& receiver, const QKeyEvent& event) {
    const QScopedValueRollback handingOn(handingKeyOn, true);
    QKeyEvent press(QEvent::KeyPress, event.key(), event.modifiers(), event.text());
    QCoreApplication::sendEvent(&receiver, &press);
}

bool ListInput::takeRelease(const QKeyEvent& event) {
    if (!keysAtRelease.release(event.key()))
        return false;
    const Qt::KeyboardModifiers shift = event.modifiers() & Qt::ShiftModifier;
    carryOut(routeKey(event.key(), shift, situation()), event);
    return true;
}

bool ListInput::takePress(const QKeyEvent& event) {
    // A control that lets a key pass does not mean the list.
    if (situation().focus == KeyboardFocus::Control)
        return false;
    const bool shifted = event.modifiers().testFlag(Qt::ShiftModifier);
    if (isEnter(event.key()))
        view.openStory();
    else if (event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && shifted))
        around.openContextMenu();
    else if (event.matches(QKeySequence::Copy))
        copyRows();
    else
        return false;
    return true;
}

void ListInput::copyRows() const {
    const HeadlineList& list = view.listOf(view.shownList());
    if (list.grid() == nullptr)
        return;
    std::vector<int> rows;
    list.grid()->vGetAllSelectionNdx(rows);
    if (!rows.empty())
        QApplication::clipboard()->setText(list.textOfRows(rows));
}

// --- The wheel ---

void ListInput::takeWheel(const QWheelEvent& event) {
    CSuperSheetWnd* grid = view.listOf(view.shownList()).grid();
    // What a grid or the story at its end lets pass is not for the grid again.
    const QWidget* under = around.window.childAt(event.position().toPoint());
    const bool isOverGrid = under != nullptr && grid != nullptr && grid->isAncestorOf(under);
    if (handingWheelOn || grid == nullptr || isOverGrid || around.stage.isInPane(under))
        return;
    const QScopedValueRollback handingOn(handingWheelOn, true);
    if (event.angleDelta().x() != 0 && event.angleDelta().y() == 0) {
        scrollSideways(event.angleDelta().x() > 0 ? Qt::Key_Left : Qt::Key_Right);
        return;
    }
    QWidget* viewport = grid->viewport();
    const QPoint centre = viewport->rect().center();
    QWheelEvent turned(centre, viewport->mapToGlobal(centre), event.pixelDelta(), event.angleDelta(),
                       event.buttons(), event.modifiers(), event.phase(), event.inverted());
    QCoreApplication::sendEvent(viewport, &turned);
}

void ListInput::scrollSideways(Qt::Key key) {
    CSuperSheetWnd* grid = view.listOf(view.shownList()).grid();
    if (grid != nullptr && grid->bHasFocus())
        handOn(*grid, QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
}

}  // namespace wirepane

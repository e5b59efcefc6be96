// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/virtual_base_view.h"

#include "host/controls/registered_message.h"

#include <QTimerEvent>

#include <algorithm>

using namespace wirepane;

TRVVirtualBaseView::TRVVirtualBaseView(QWidget* parent) : QWidget(parent) {}

void TRVVirtualBaseView::OnInitialUpdate() {}

void TRVVirtualBaseView::setTimer(int id, int periodMs) {
    timers[id].start(periodMs, this);
}

void TRVVirtualBaseView::endTimer(int id) {
    timers.erase(id);
}

std::vector<int> TRVVirtualBaseView::runningTimers() const {
    std::vector<int> ids;
    for (const auto& [id, timer] : timers)
        ids.push_back(id);
    return ids;
}

bool TRVVirtualBaseView::onCommand(int) {
    return false;
}

void TRVVirtualBaseView::OnTimer(int) {}

bool TRVVirtualBaseView::onRegisteredMessage(const RegisteredMessageEvent&) {
    return false;
}

bool TRVVirtualBaseView::event(QEvent* event) {
    const auto* message = dynamic_cast<RegisteredMessageEvent*>(event);
    if (message != nullptr && onRegisteredMessage(*message))
        return true;
    return QWidget::event(event);
}

void TRVVirtualBaseView::timerEvent(QTimerEvent* event) {
    const auto fired = std::find_if(timers.begin(), timers.end(), [event](const auto& timer) {
        return timer.second.timerId() == event->timerId();
    });
    if (fired != timers.end())
        OnTimer(fired->first);  // may kill the timer: `fired` is not used afterwards
    else
        QWidget::timerEvent(event);
}

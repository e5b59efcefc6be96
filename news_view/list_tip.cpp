// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/list_tip.h"

#include "story/quote_dlg_tip_msg.h"

#include <utility>

namespace wirepane {

ListTip::ListTip(QWidget& newsView, std::function<Look()> tipLook)
    : view(newsView), look(std::move(tipLook)) {}

// Shown over a grid it is the grid's child, which may go before or after.
ListTip::~ListTip() {
    delete window;
}

void ListTip::showOver(QWidget* grid, const QString& text, int timeMs) {
    if (grid == nullptr)
        return;
    if (window == nullptr) {
        window = new CQuoteDlgTipMsg(&view);
        window->CreateByID(nullptr);
    }
    const Look now = look();
    window->vSetFont(now.font);
    window->vSetInfo(nullptr, text, now.text, now.background, timeMs);
    window->vShow(grid, now.top, 0, false);
}

void ListTip::stop() {
    if (window != nullptr)
        window->vStop();
}

bool ListTip::isUp() const {
    return window != nullptr && window->isVisible();
}

QString ListTip::text() const {
    return window != nullptr ? window->tipText() : QString();
}

QVariantMap ListTip::state() const {
    if (window == nullptr)
        return {};
    const QPoint corner = window->mapTo(&view, QPoint(0, 0));
    return {
        {QStringLiteral("visible"), window->isVisibleTo(&view)},
        {QStringLiteral("text"), window->tipText()},
        {QStringLiteral("rect"), QVariantList{corner.x(), corner.y(), window->width(), window->height()}}};
}

}  // namespace wirepane

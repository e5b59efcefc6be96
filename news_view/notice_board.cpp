// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/notice_board.h"

#include "host/controls/s_button.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/control_set.h"
#include "news_view/notice_line.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr int noticeMargin = 8;

bool isOfNotices(int id) {
    return id == ids::stopWaiting || id == ids::notice ||
           std::find(ids::noticeCommands.begin(), ids::noticeCommands.end(), id) != ids::noticeCommands.end();
}

}  // namespace

QRect widestGap(const QRect& row, std::vector<QRect> taken) {
    taken.emplace_back(row.right() + 1, row.top(), 1, 1);
    std::sort(taken.begin(), taken.end(), [](const QRect& a, const QRect& b) { return a.left() < b.left(); });
    int end = row.left();
    QRect widest;
    for (const QRect& control : taken) {
        const QRect gap(end + noticeMargin, row.top(), control.left() - end - 2 * noticeMargin, row.height());
        if (gap.width() > widest.width())
            widest = gap;
        end = std::max(end, control.right() + 1);
    }
    return widest;
}

NoticeBoard::NoticeBoard(Surroundings surroundings, std::vector<Teller> ofTheView)
    : around(std::move(surroundings)), tellers(std::move(ofTheView)) {}

void NoticeBoard::setStatus(const QString& text) {
    if (text == statusText)
        return;
    statusText = text;
    place();
}

ListNotices NoticeBoard::notices() const {
    ListNotices told;
    told.tell(NoticeKind::Status, statusText.trimmed());
    for (const Teller& teller : tellers)
        teller(told);
    return told;
}

QRect NoticeBoard::area() const {
    QRect row = around.row();
    row.setLeft(0);
    row.setRight(around.window.width() - 1);
    std::vector<QRect> taken;
    for (const QObject* child : around.window.children()) {
        const auto* control = qobject_cast<const QWidget*>(child);
        const bool isShown = control != nullptr && !control->isWindow() && !control->isHidden();
        if (isShown && !isOfNotices(windowId(control)) && control->geometry().intersects(row))
            taken.push_back(control->geometry());
    }
    return widestGap(row, std::move(taken));
}

void NoticeBoard::place() {
    auto* line = around.controls.find<NoticeLine>(ids::notice);
    auto* stop = around.controls.find<SButton>(ids::stopWaiting);
    if (line == nullptr || stop == nullptr)
        return;
    QRect room = area();
    const bool stops = around.isWaiting() && room.width() > room.height();
    // The keyboard does not go on to whatever comes next.
    QWidget* next = around.next();
    if (!stops && stop == around.window.focusWidget() && next != nullptr)
        next->setFocus();
    stop->setGeometry(room.left(), room.top(), room.height(), room.height());
    stop->setVisible(stops);
    if (stops)
        room.setLeft(stop->geometry().right() + noticeMargin);
    const Look look = around.look();
    line->setFont(look.font);
    line->setColours(look.text, lateColour(look.background));
    line->showNotices(notices(), room, next);
}

}  // namespace wirepane

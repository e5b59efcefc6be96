// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the commands of rows, days and notices do.
#include "headline_list/headline_list.h"
#include "host/controls/s_button.h"
#include "host/views/news_control_ids.h"
#include "news_view/view_parts.h"

using namespace wirepane;

bool TRVNewsCtrlView::Parts::takeRowCommand(int id) {
    if (id == ids::copyRows)
        input.copyRows();
    else if (id == ids::exportRows)
        rowsExport.ask(shownEntries());
    else if (id == ids::openInWindow)
        story.openWindow();
    else if (id == ids::turnChanges)
        story.turnChanges();
    else
        return reading.carryOut(id) || arrivalPill.carryOut(id);
    return true;
}

bool TRVNewsCtrlView::Parts::takeDayCommand(int id) {
    if (id != ids::earlierDay && id != ids::laterDay && id != ids::presentDay)
        return false;
    if (lists[ListIndex::All].grid() == nullptr)
        return true;
    showMode(ListIndex::All);
    if (const auto day = days.dayOfCommand(id))
        goToDay(*day);
    return true;
}

void TRVNewsCtrlView::Parts::goToDay(const QDate& day) {
    days.goTo(day);
    story.show();
}

bool TRVNewsCtrlView::Parts::takeNoticeCommand(int id) {
    // The button beside the notice asks first what is to become of what is complete.
    if (id == ids::askBeforeStop && output.ready() > 0) {
        const QWidget* stop = controls.find<SButton>(ids::stopWaiting);
        menu.popUp(output.waitingCommands(), stop->mapToGlobal(QPoint(0, stop->height())));
    } else if (id == ids::stopWaiting || id == ids::askBeforeStop) {
        output.stopWaiting();
    } else if (id == ids::putOutReady) {
        output.putOutReady();
    } else if (id == ids::endNarrowing) {
        searches.endNarrowing();
    } else if (id == ids::readUnfiltered) {
        readUnfiltered();
    } else {
        return false;
    }
    return true;
}

// The shown list without another list's filter.
void TRVNewsCtrlView::Parts::readUnfiltered() {
    if (!lists.hasOthersFilter(shownList()))
        return;
    sentAgain.readAgain(shownList());
    story.show();
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

#include <QObject>

#include <functional>
#include <set>

class CSuperSheetWnd;

namespace wirepane {
class ViewContext;

// Goes to the newest row for a reader who has gone to none: it is selected, and the pane shows its story, as
// news comes in; until the reader goes to a row of that list, or scrolls away from its top, himself.
// Interface thread only.
class NewestRow : public QObject {
    Q_OBJECT

public:
    // The view outlives this. `isWanted`: by the view's options.
    NewestRow(ViewContext& view, std::function<bool()> isWanted);

    // From here on its rows are followed.
    void watch(CSuperSheetWnd& grid, ListIndex list);
    // The reader has gone to a row of the list, or scrolled away from its top.
    bool isRead(ListIndex list) const;
    // The list's rows are others now: the reader has gone to none of them.
    void forget(ListIndex list);
    // The row is being gone to for the reader.
    bool isGoingThere() const { return isGoing; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // From the event loop: once for what changes together.
    void followSoon();
    void follow();

    ViewContext& view;
    std::function<bool()> isWanted;
    std::set<ListIndex> leftToReader;
    bool isGoing = false;  // the row is being gone to from here
    bool isPosted = false;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "host/contract/records.h"
#include "news_view/unread_set.h"

#include <QObject>
#include <QTimer>

#include <map>
#include <vector>

namespace wirepane {
class HeadlineTable;
class ReadingMarks;
class ViewContext;
struct CommonParts;
struct HeadlinePlace;

// How many of a list's headlines are unread, on its tab. A list that was read is counted by the back end, off
// the interface thread; from there on what comes and what is marked is followed. No more are counted than can
// be told apart at a glance, so that neither the memory nor a push grows with a list. Where the settings do
// not want it nothing is counted. Interface thread only.
class UnreadCounts : public QObject {
    Q_OBJECT

public:
    // All that is referred to outlives this.
    UnreadCounts(ViewContext& view, const CommonParts& parts);

    void noteMoved(ListIndex list, const HeadlinePlace& place);
    // The list's rows are others now.
    void forget(ListIndex list);
    // The tabs may be others, or bear texts in another language.
    void showAgain();

private:
    struct Counted {
        UnreadSet unread;
        std::vector<HeadlineKey> changed;  // that came or were marked since
        bool isDue = true;                 // to be counted by the back end
        bool isUnderWay = false;
    };

    bool isOn() const;
    void noteMarked(const std::vector<HeadlineKey>& keys);
    void noteChanged(Counted& counted, const HeadlineKey& key);
    void update();
    void update(ListIndex list, Counted& counted);
    void takeFound(ListIndex list, const std::vector<HeadlineKey>& found);
    UnreadSet::Test isUnreadIn(const HeadlineTable& table) const;
    void show(ListIndex list, const Counted& counted) const;

    ViewContext& view;
    const CommonParts& parts;
    ReadingMarks* marks;  // null: the back end keeps none
    std::map<ListIndex, Counted> lists;
    QTimer soon;
};

}  // namespace wirepane

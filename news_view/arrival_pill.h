// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <map>
#include <optional>

class CSuperSheetWnd;

namespace wirepane {
class PillButton;
class ViewContext;
struct CommonParts;
struct HeadlinePlace;

// Counts the rows that have come above those on screen since the reader left a list's top, and says so in the
// band of its headings, where it covers no row; a click or its command goes to the top. Of a list that is
// held it says what waits, and lets it go. Where the settings want neither nothing is created. Interface
// thread only.
class ArrivalPill : public QObject {
    Q_OBJECT

public:
    struct Calls {
        // How many of what came into a list that is held key sets want; nothing: it is not held.
        std::function<std::optional<int>(ListIndex)> heldAt;
        std::function<void(ListIndex)> letGo;
    };

    // All that is referred to outlives this.
    ArrivalPill(ViewContext& view, const CommonParts& parts, Calls calls);

    // From here on the list's rows are followed.
    void watch(CSuperSheetWnd& grid, ListIndex list);
    void noteMoved(ListIndex list, const HeadlinePlace& place);
    // The list's rows are others now.
    void forget(ListIndex list);
    // What is shown may have changed: the list, its place, the language.
    void followSoon();
    // Whether it is its command.
    bool carryOut(int command);
    // Of the shown list.
    int count() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();
    void noteScrolled(ListIndex list);
    void goToTop();
    // What is to be said; empty: nothing.
    QString said(ListIndex list) const;

    ViewContext& view;
    const CommonParts& parts;
    const Calls calls;
    std::map<ListIndex, int> above;  // what has come there; lists without are at their top
    QPointer<PillButton> button;
    bool isPosted = false;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

namespace wirepane {
class ReadingMarks;
class ViewContext;
enum class ReadingState : std::uint8_t;
struct CommonParts;
struct MarkChange;

// What is marked as seen, read and starred from this view, and that its rows show what was marked anywhere.
// What the reader's hand has opened is read at once; what was shown by itself is seen when it has stood for a
// second in the pane of the active window, and read after five. Interface thread only.
class Reading : public QObject {
    Q_OBJECT

public:
    struct Calls {
        std::function<std::vector<CHeadlineTable>()> selected;
        std::function<std::optional<CHeadlineTable>()> inPane;  // whose story the pane shows
        std::function<void(const QString& sentence)> tell;
    };

    // All that is referred to outlives this.
    Reading(ViewContext& view, const CommonParts& common, Calls calls);

    // Whether the settings want it, and the back end can.
    bool isOn() const;
    // The first of the selected rows is starred.
    bool isStarred() const;
    void noteShown(const CHeadlineTable& entry, bool byHand);
    // Whether it is one of its commands.
    bool carryOut(int command);

private:
    // The same, telling the user where what is kept can only be read.
    bool isAllowed() const;
    void markSelected(const MarkChange& change);
    void markAll();
    void markIfNew(const HeadlineKey& key, ReadingState state);
    void countSecond();
    void showAgain(const std::vector<HeadlineKey>& changed);

    ViewContext& view;
    const CommonParts& parts;
    Calls calls;
    ReadingMarks* marks;                  // null: the back end keeps none
    std::optional<HeadlineKey> standing;  // in the pane, shown by itself
    int stood = 0;                        // seconds
    QTimer second;
};

}  // namespace wirepane

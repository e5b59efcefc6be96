// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <QString>

#include <map>
#include <vector>

namespace wirepane {

// What the user must know of a view and of the list that it shows, in order of precedence: where the control
// row has no room for all of it, the first ones stand there. Those before the status text name what is
// missing in the list; what only explains comes last.
enum class NoticeKind {
    Awaited,       // what printing and saving wait for; the button beside it stops that
    Offline,       // the back end is cut off from its source
    Quiet,         // sources give no sign of life, or have nothing new for longer than is usual
    AsOf,          // the back end is read as of an earlier moment
    Narrowed,      // the search is narrowed to a symbol
    Filtered,      // the list was read under another list's filter
    BeforeOutage,  // what was found is older than an outage
    Status,        // the services that have nothing
    Hint,
};

// The command of the view that a click on the notice and Enter on it carry out; 0: it only tells.
int commandOf(NoticeKind kind);

// The notices that are in force. A value.
class ListNotices {
public:
    // An empty text: nothing is to be told of the kind.
    void tell(NoticeKind kind, const QString& text);

    // By kind, which is the order of precedence.
    const std::map<NoticeKind, QString>& inOrder() const { return texts; }
    // All of them as one text.
    QString text() const;
    // What is told of a kind; empty: nothing.
    QString text(NoticeKind kind) const;

private:
    std::map<NoticeKind, QString> texts;
};

// A notice in its place on a line.
struct PlacedNotice {
    NoticeKind kind;
    int left;      // from the beginning of the line, in pixels
    int width;     // of the text, in pixels
    QString text;  // cut with dots where it does not fit

    bool operator==(const PlacedNotice&) const = default;
};

// Puts notices one behind the other into a room of so many pixels. The first that does not fit is cut, as
// long as a few letters of it can be read; those behind it are left out.
std::vector<PlacedNotice> placeNotices(const ListNotices& notices, int room, const QFontMetrics& metrics);

}  // namespace wirepane

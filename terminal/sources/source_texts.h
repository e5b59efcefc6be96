// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"
#include "backend/feed/live_feed.h"
#include "host/contract/colour_roles.h"
#include "host/controls/line_icon.h"
#include "terminal/sources/source_desk.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace wirepane {

// What a row of the Sources page says, in the language in force.
struct SourceRow {
    QString title;
    QString detail;  // where it is, what it is, how often it is asked
    QString state;   // a sentence
    QString last;
    QString next;
    QString today;
    QString delay;
    QString delays;  // of the last hour; empty: nothing came
    ColourRole lamp = ColourRole::Weak;
    LineIcon icon = LineIcon::Feed;
    bool isOn = false;
    bool isFaulty = false;

    bool operator==(const SourceRow&) const = default;
};

// How long most news of a source took, and the longest.
QString delaysText(const SourceDelays& delays);
// `live`: how a terminal that reads it stands to it; nothing: none does. `now`: seconds since 1970.
SourceRow rowOf(const ListedSource& listed, const std::optional<SourceState>& live, std::int64_t now);

QString titleOf(const NetworkSource& source);
QString kindText(NetworkKind kind);
QString stateText(const SourceState& state);

}  // namespace wirepane

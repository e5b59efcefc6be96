// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/event_parser.h"
#include "backend/network/source_asker.h"

#include <cstdint>

namespace wirepane {

// Makes news of what a stream sends: of the data of events, or of messages. One thread at a time.
class StreamReading {
public:
    // `lastEvent`: behind which it goes on.
    StreamReading(NetworkSource definition, const QByteArray& lastEvent);

    // What these bytes of server-sent events, or this message of a web socket, say. `now`: seconds since
    // 1970.
    SourceAnswer takeBytes(const QByteArray& bytes, std::int64_t now);
    SourceAnswer takeMessage(const QByteArray& text, std::int64_t now);
    // What the end of the connection says: by itself, or with a fault; or that no stream came at all.
    SourceAnswer end(const HttpAnswer& answer, bool hasStood, std::int64_t now) const;

private:
    static SourceAnswer begun();
    std::optional<std::int64_t> wish() const;

    NetworkSource source;
    EventParser parser;
};

}  // namespace wirepane

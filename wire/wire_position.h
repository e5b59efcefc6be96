// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"
#include "wire/wire_rows.h"

#include <QString>

#include <cstdint>
#include <map>
#include <optional>

namespace wirepane {

// How far a store has followed a wire: epoch and sequence, and for each service its own last row, by which a
// hole shows also where rows of other services are not to be seen.
class WirePosition {
public:
    // "EPOCH:SEQUENCE SERVICE=SEQUENCE ..."; empty: from the start, of whichever epoch.
    static Result<WirePosition> of(const QString& text);
    QString text() const;

    std::int64_t sequence() const { return last; }
    std::int64_t lastOf(int service) const;
    // Behind the page. An error: it does not follow, and the position stays as it is.
    Done follow(const WirePage& page);
    // Behind a row that is being written.
    void append(const WireRow& row);

private:
    std::optional<Error> faultOf(const WireHead& head) const;

    QString epoch;
    std::int64_t last = 0;
    std::map<int, std::int64_t> services;
};

}  // namespace wirepane

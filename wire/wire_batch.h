// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"
#include "wire/wire_rows.h"

#include <utility>

namespace wirepane {

// Rows of a wire on their way into a store that follows it: all of them, or none.
class WireBatch : public FeedBatch {
public:
    // `positionBehind`: that of the store once it has them.
    WireBatch(std::vector<WireRow> wireRows, QString positionBehind)
        : rows(std::move(wireRows)), behind(std::move(positionBehind)) {}

    Done read(const ItemVisitor& visit) override;
    QString position() const override { return behind; }
    bool isWhole() const override { return true; }

private:
    std::vector<WireRow> rows;
    QString behind;
};

}  // namespace wirepane

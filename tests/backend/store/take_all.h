// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/embedded_back_end.h"

#include <functional>

namespace wirepane {

// A back end over a store that is there or is made.
inline StoreConnections connectionsTo(const QString& path) {
    return std::move(withReader(openStore(path)).value());
}

// Takes items into a back end in one transaction, which `middle` sees still open. False: not all were taken.
template <class Item>
bool takeAll(EmbeddedBackEnd& backEnd, const std::vector<Item>& items,
             const std::function<void()>& middle = {}) {
    bool good = true;
    backEnd.run([&](StoreWriter& writer) {
        good = static_cast<bool>(writer.begin());
        for (const Item& item : items) {
            const auto taken = writer.take(item);
            good = good && taken && taken.value().take == Take::TakenIn;
        }
        if (middle)
            middle();
        good = good && writer.commit();
    });
    return good;
}

}  // namespace wirepane

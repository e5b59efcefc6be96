// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/settings/store_kind.h"

#include <QString>

#include <optional>

namespace wirepane {

struct UserStores {
    QString own;
    QString sample;

    const QString& operator[](StoreKind kind) const { return kind == StoreKind::Own ? own : sample; }
};

// Both in the folder of the user's data.
UserStores userStores();

// The store that follows a wire, for a terminal or for an ingest point; each has its own.
enum class WireStore { Terminal, Ingest };
QString storeOfWire(const QString& wire, WireStore use);

// The store to begin with: the one that was chosen last, else his own when it has news, else the sample's.
// An own store that holds the sample wire and nothing else becomes the sample's, unless that has one already
// or another program has the store open.
StoreKind startingStore(const UserStores& stores, const std::optional<StoreKind>& chosen);

// The store that commands read which name none: his own, else the sample's when only that is there.
QString storeToRead(const UserStores& stores);

}  // namespace wirepane

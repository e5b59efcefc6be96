// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"

#include <QByteArray>

#include <optional>

namespace wirepane {

// An item as the store keeps one that waits for its turn. A change of the form is a step of the schema. Any
// thread.
QByteArray bytesOf(const StoreItem& item);
// Nothing: these are not the bytes of one.
std::optional<StoreItem> itemOf(const QByteArray& bytes);

}  // namespace wirepane

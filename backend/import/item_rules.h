// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"
#include "backend/news_item.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// What holds for news of every format.

// Whether a source's name for an item is too long to be kept; the error calls it `what`.
std::optional<Error> faultOfIdentity(const QString& identity, Phrase what);

// A later version must have a greater number: that which `stated` starts with, else the item's time.
int versionOf(QStringView stated, std::int64_t time);

// Whether an item of this publication status takes back what was sent before.
bool isWithdrawal(const QString& status);

// Why an item of this publication status may not be shown. `field` is what the format calls the status; an
// empty one is "usable". A withdrawal may be shown.
std::optional<Error> notForPublication(const QString& status, QLatin1StringView field);

// Why an item may not be shown before `until`; a text that is not a time holds it back for good.
std::optional<Error> underEmbargo(const QString& until, QLatin1StringView field);

// Adds a symbol that is not there yet; one without code and more than 100 are left out.
void addSymbol(std::vector<CSymbolInfo>& symbols, const CSymbolInfo& symbol);

}  // namespace wirepane

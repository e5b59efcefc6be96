// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {
struct AlertEntry;

// What became of an alert, in the language in force: that it was told, or why not.
QString outcomeText(const AlertEntry& entry);
// Which rule matched what, and when the news was published, received, matched and told, in lines.
QString reasonText(const AlertEntry& entry);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

// The name under which the user's terminal takes feeds, unless it is told another.
inline const QString defaultFeedName = QStringLiteral("wirepane-feed");

}  // namespace wirepane

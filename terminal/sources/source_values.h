// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/address_secrets.h"
#include "terminal/sources/source_desk.h"
#include "terminal/sources/source_trial.h"

#include <QJsonObject>

namespace wirepane {

// The definition of a source at an address that the user named, with what that says of a sign-in.
QJsonObject typedDefinition(const SplitAddress& typed);
// A source with how it stands, as scripts read it: the definition (without secrets), and `standing`. Moments
// are in ISO 8601, UTC; what has never been is left out.
QJsonObject valueOf(const ListedSource& listed);
// What came of a trial, as scripts read it.
QJsonObject valueOf(const TrialReport& report);

}  // namespace wirepane

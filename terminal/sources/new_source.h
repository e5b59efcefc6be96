// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/address_secrets.h"
#include "backend/network/network_source.h"

namespace wirepane {

// A source as it begins at an address, whoever names that: with a service of its own, and a sign-in where the
// address says one, whose secret is still to be kept.
NetworkSource newSource(const SplitAddress& address);

}  // namespace wirepane

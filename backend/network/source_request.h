// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/address_secrets.h"
#include "backend/network/http_fetch.h"
#include "backend/network/network_source.h"

namespace wirepane {

// What is asked for a source with this secret: its address with the parameters that are secret, its sign-in,
// its language, its certificates. Nothing is known of an earlier answer.
HttpRequest requestOf(const NetworkSource& source, const SourceSecret& secret);

}  // namespace wirepane

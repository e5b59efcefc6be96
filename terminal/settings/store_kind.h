// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// A user has two stores, so that invented and real news never mix: his own, and that of the sample wire.
enum class StoreKind { Own, Sample };

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHostAddress>
#include <QList>

namespace wirepane {

// Whether an address is one of the public network: no loopback, private, link-local, unique-local, shared,
// multicast, documentation or reserved one, in none of the forms in which IPv6 carries those of IPv4.
bool isPublicAddress(const QHostAddress& address);

// Of the addresses of a host those that may be dialled, in their order. Where the user has typed the host's
// name any may, but what nobody can be at (multicast, the unspecified address).
QList<QHostAddress> allowedAddresses(const QList<QHostAddress>& addresses, bool isTyped);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/new_source.h"

namespace wirepane {

NetworkSource newSource(const SplitAddress& address) {
    NetworkSource source;
    source.address = address.address;
    source.service = ownService;
    if (!address.secret.authorisation.isEmpty())
        source.authorisation = Authorisation::Basic;
    return source;
}

}  // namespace wirepane

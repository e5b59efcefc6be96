// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/source_services.h"

#include <utility>

namespace wirepane {

SourceServices::SourceServices(QString store)
    : storeFile(std::move(store)), kept(keychain, secretsFolder()) {}

SourceDesk& SourceServices::desk() {
    if (!list)
        list = std::make_unique<SourceDesk>(storeFile, kept);
    return *list;
}

SourceTrial& SourceServices::trial() {
    if (!fetching)
        fetching = std::make_unique<FetchingTrial>(kept);
    return *fetching;
}

}  // namespace wirepane

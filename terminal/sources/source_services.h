// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/sources/fetching_trial.h"
#include "terminal/sources/keychain.h"
#include "terminal/sources/secrets.h"
#include "terminal/sources/source_desk.h"

#include <QString>

#include <memory>

namespace wirepane {

// What a terminal has of the list of sources of its store. What is not asked for is not made.
class SourceServices {
public:
    explicit SourceServices(QString storeFile);

    Secrets& secrets() { return kept; }
    SourceDesk& desk();
    SourceTrial& trial();

private:
    QString storeFile;
    SystemKeychain keychain;
    Secrets kept;
    std::unique_ptr<SourceDesk> list;
    std::unique_ptr<FetchingTrial> fetching;
};

}  // namespace wirepane

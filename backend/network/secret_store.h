// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>

#include <functional>

namespace wirepane {

// Where the secrets of sources are kept: passwords, tokens, values of headers. None of them is ever in the
// store, the settings, a log, an export or an error. Interface thread.
class SecretStore {
public:
    // The secret; or why it cannot be had, without a word of it.
    using Found = std::function<void(const Result<QString>&)>;

    SecretStore() = default;
    SecretStore(const SecretStore&) = delete;
    SecretStore& operator=(const SecretStore&) = delete;
    virtual ~SecretStore() = default;

    // Calls back once, from the event loop or at once; not any more when the store is gone. Who asks makes
    // sure that the callback can be made for as long.
    virtual void find(const QString& name, const Found& found) = 0;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>

#include <functional>

namespace wirepane {

// Where the secrets of sources are. No secret stands in the store, in settings, logs, exports or errors.
// Interface thread.
class SecretStore {
public:
    using Answer = std::function<void(const Result<QString>& secret)>;

    SecretStore() = default;
    SecretStore(const SecretStore&) = delete;
    SecretStore& operator=(const SecretStore&) = delete;
    virtual ~SecretStore() = default;

    // Finds the secret of this name, a text of SourceSecret. The answer comes once, at once or later; it must
    // not outlive what it captures.
    virtual void find(const QString& name, const Answer& answer) = 0;
};

}  // namespace wirepane

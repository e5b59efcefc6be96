// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>

#include <functional>

namespace wirepane {

// What keeps secrets for the user's programs, by keys. Interface thread; each answer comes later, once.
class Keychain {
public:
    Keychain() = default;
    Keychain(const Keychain&) = delete;
    Keychain& operator=(const Keychain&) = delete;
    virtual ~Keychain() = default;

    virtual void read(const QString& key, const std::function<void(const Result<QString>&)>& answer) = 0;
    virtual void write(const QString& key, const QString& secret,
                       const std::function<void(const Done&)>& answer) = 0;
    // What is not there is removed.
    virtual void remove(const QString& key, const std::function<void(const Done&)>& answer) = 0;
};

// That of the user's desktop. Where there is none, or it does not answer in time, it fails.
class SystemKeychain : public Keychain {
public:
    void read(const QString& key, const std::function<void(const Result<QString>&)>& answer) override;
    void write(const QString& key, const QString& secret,
               const std::function<void(const Done&)>& answer) override;
    void remove(const QString& key, const std::function<void(const Done&)>& answer) override;
};

}  // namespace wirepane

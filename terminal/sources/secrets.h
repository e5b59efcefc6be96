// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/secret_store.h"

#include <QString>

#include <functional>

namespace wirepane {
class Keychain;

// Where files with secrets stand: in the user's data folder.
QString secretsFolder();

// The secrets of the user's sources: in the keychain or, where none answers, in files that he alone can read.
// A name that starts with "file:" is that of such a file, which the user may have made himself.
class Secrets : public SecretStore {
public:
    // The keychain is not owned and outlives this. `folder` is for the files; it is made when there is one.
    Secrets(Keychain& keychain, QString folder);

    void find(const QString& name, const Found& found) override;
    // Keeps the secret; the answer is the name to find it under, which is this one or that of a file.
    void keep(const QString& name, const QString& secret, const Found& found);
    // A file that the user made stays. Answers once, also where there is nothing to forget.
    void forget(const QString& name, const std::function<void(const Done&)>& finished);

private:
    QString fileOf(const QString& name) const;

    Keychain& keychain;
    QString folder;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>
#include <QStringList>

namespace wirepane {

// Verifies a news store without writing to it: the file's structure, the references between its tables, the
// rules that the store keeps, and the search index word by word. Other programs may use the store meanwhile.
// It reads everything: about a quarter of a second for a thousand stories of ordinary length.
class StoreChecker {
public:
    explicit StoreChecker(QString storePath) : path(std::move(storePath)) {}

    // A sentence for each thing that is wrong, naming the first that it concerns; empty: the store is sound.
    // An error when the file cannot be read as a news store at all, an empty one included.
    Result<QStringList> check() const;

private:
    QString path;
};

}  // namespace wirepane

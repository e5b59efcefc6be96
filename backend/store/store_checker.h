// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace wirepane {

// Hears how far a check is, from 0 to 1, and how long the rest will take; first, before it begins, how long
// all of it will, by what a few pieces took.
using CheckProgress = std::function<void(double share, std::chrono::seconds left)>;

// Verifies a news store without writing to it: the file's structure, the references between its tables, the
// rules that the store keeps, and the search index word by word. It reads everything: about half a minute for
// a million short stories. But for the structure it reads in small pieces, each of its own moment of the
// store: other programs may use it meanwhile, and their log does not grow for long.
class StoreChecker {
public:
    explicit StoreChecker(QString storePath) : path(std::move(storePath)) {}

    // A sentence for each thing that is wrong, naming the first that it concerns; empty: the store is sound.
    // An error when the file cannot be read as a news store at all, an empty one included.
    Result<QStringList> check(const CheckProgress& progress = {}) const;

private:
    QString path;
};

}  // namespace wirepane

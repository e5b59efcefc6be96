// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "backend/result.h"

#include <QTemporaryFile>

#include <functional>
#include <memory>

namespace wirepane {

// Items that wait for their turn, in the order of coming: in a file without a name beside the store, so that
// they take no memory and a kill leaves nothing of them. One thread at a time.
class ItemSpool {
public:
    explicit ItemSpool(QString storePath) : path(std::move(storePath)) {}

    Done add(const StoreItem& item);
    // Calls `take` with each, until it fails.
    Done forEach(const std::function<Done(const StoreItem&)>& take);
    bool isEmpty() const { return file == nullptr; }
    void clear() { file.reset(); }

private:
    Error failure() const;

    const QString path;
    std::unique_ptr<QTemporaryFile> file;
};

}  // namespace wirepane

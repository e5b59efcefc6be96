// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/news_receiver.h"
#include "terminal/settings/module_files.h"

#include <functional>
#include <set>
#include <vector>

namespace wirepane {
class EmbeddedBackEnd;

// Notices the news whose category has come into the store since the module's file of categories was written.
class CategoryWatch : public NewsReceiver {
public:
    // The back end is not owned and outlives this. `missed` is called before the views hear of the headline
    // where they open later than this is made.
    CategoryWatch(EmbeddedBackEnd& backEnd, std::function<void()> missed);
    ~CategoryWatch() override;
    CategoryWatch(const CategoryWatch&) = delete;
    CategoryWatch& operator=(const CategoryWatch&) = delete;

    // These are in the file now.
    void know(const std::vector<CategoryName>& categories);

    void RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                         const QString& symbolCode) override;

private:
    EmbeddedBackEnd& backEnd;
    std::function<void()> missed;
    std::set<int> known;
};

}  // namespace wirepane

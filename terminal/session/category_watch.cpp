// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/category_watch.h"

#include "backend/store/embedded_back_end.h"
#include "host/contract/fixed_services.h"

#include <utility>

namespace wirepane {

CategoryWatch::CategoryWatch(EmbeddedBackEnd& embedded, std::function<void()> onMissed)
    : backEnd(embedded), missed(std::move(onMissed)) {
    backEnd.attach(this);
}

CategoryWatch::~CategoryWatch() {
    backEnd.detach(this);
}

void CategoryWatch::know(const std::vector<CategoryName>& categories) {
    for (const CategoryName& category : categories)
        known.insert(category.id);
}

// Warrants have categories of their own, which are not in the file.
void CategoryWatch::RecvNewHeadLine(const CHeadline* headline, const QString&, const QString&) {
    if (headline != nullptr && headline->service != warrantService &&
        known.insert(headline->categoryId).second)
        missed();
}

}  // namespace wirepane

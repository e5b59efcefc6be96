// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/item_display.h"
#include "terminal/settings/module_files.h"

#include <vector>

namespace wirepane {
class EmbeddedBackEnd;

// The colours of news categories, as the store has them.
class CategoryDisplay : public TRVItemDisplay {
public:
    // Not owned.
    explicit CategoryDisplay(EmbeddedBackEnd& backEnd);

    void GetNewsCatColor(int categoryId, QColor& text, QColor& background) override;
    void warrantCatColor(int categoryId, QColor& text, QColor& background) override;

private:
    EmbeddedBackEnd& backEnd;
};

// The categories of all services but the warrant service (which names its own to the module), each id once.
// Where they are too many for the module's file, those that the latest news has most come first.
std::vector<CategoryName> categoryNames(EmbeddedBackEnd& backEnd);

}  // namespace wirepane

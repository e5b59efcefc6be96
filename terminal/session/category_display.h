// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/item_display.h"
#include "terminal/settings/module_files.h"

#include <QColor>

#include <vector>

namespace wirepane {
class EmbeddedBackEnd;
class TerminalSettings;

// The colours of news categories: the tones of the scheme that come nearest to what the store has.
class CategoryDisplay : public TRVItemDisplay {
public:
    // Neither is owned.
    CategoryDisplay(EmbeddedBackEnd& backEnd, const TerminalSettings& settings);

    void GetNewsCatColor(int categoryId, QColor& text, QColor& background) override;
    void warrantCatColor(int categoryId, QColor& text, QColor& background) override;

private:
    QColor colourOf(int categoryId, unsigned char service);

    EmbeddedBackEnd& backEnd;
    const TerminalSettings& settings;
};

// The categories of all services but the warrant service (which names its own to the module), each id once.
// Where they are too many for the module's file, those that the latest news has most come first.
std::vector<CategoryName> categoryNames(EmbeddedBackEnd& backEnd);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"
#include "terminal/settings/terminal_settings.h"

#include <cstdint>
#include <vector>

namespace wirepane {

// A news category as the module's category column names it.
struct CategoryName {
    std::int32_t id = 0;
    QString name;
};

// Both files are replaced as a whole, in the folder that the back end gives as its system path, and must
// stand there before a view opens.

// Writes "NewsService.ini": the ids and the short names, pairwise. Each list ends where either would pass
// 1024 characters, so the most used categories come first. Blanks, commas and line breaks in a name become
// '-'.
Done writeCategoryFile(const QString& folder, const std::vector<CategoryName>& categories);

// Whether the file has room for all of them.
bool categoryFileHoldsAll(const std::vector<CategoryName>& categories);

// Writes "Application.ini": which search modes have a tab.
Done writeSwitchesFile(const QString& folder, const SearchSwitches& switches);

}  // namespace wirepane

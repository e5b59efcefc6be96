// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/search/news_search.h"
#include "host/contract/search_condition.h"

#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

class QCommandLineParser;

namespace wirepane {
class CommandArguments;

inline constexpr int lastNewsService = 255;

// The options that say which news a command is about: --service, --symbol, and those of scopes and methods.
void addQueryOptions(QCommandLineParser& parser);
// The condition of the options and these keywords; what is wrong about it is a fault of the arguments.
CSearch conditionOf(CommandArguments& arguments, const QStringList& keywords);

// The moment that --now names, beyond which news is not there yet; without it the end of all time.
std::int64_t latestOf(const CommandArguments& arguments);
// Takes out what is dated later.
void dropLater(std::vector<CHeadlineTable>& news, std::int64_t latest);

// Tells the user that what is found may lack something, where the search index is behind the store.
void noteBacklog(Database& store);

}  // namespace wirepane

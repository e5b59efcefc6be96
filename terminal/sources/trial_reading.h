// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/http_fetch.h"
#include "backend/network/source_asker.h"
#include "terminal/sources/source_trial.h"

#include <cstdint>

namespace wirepane {

// What an answer of the source would bring. Where the source does not say what it is, and one of the built-in
// mappings fits a table, that is proposed; a page of markup is looked through for the feeds that it names.
// `now`: seconds since 1970. Any thread.
TrialReport readTrial(const HttpAnswer& answer, const NetworkSource& source, std::int64_t now);

// Adds what a stream has said to what came of following it so far.
void addToTrial(TrialReport& report, SourceAnswer&& answer);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/sources/source_trial.h"

#include <QByteArray>

namespace wirepane {

// What an answer of the source would bring. `from`: the address that it came from in the end. Where the
// source does not say what it is, and one of the built-in mappings fits a table, that is proposed; a page of
// markup is looked through for the feeds that it names. Any thread.
TrialReport readTrial(const QByteArray& body, const NetworkSource& source, const QUrl& from);

}  // namespace wirepane

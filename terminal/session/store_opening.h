// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/embedded_back_end.h"

#include <memory>

namespace wirepane {

enum class SampleUse { None, WhenNew, Followed };

// Where the search index of an older store is made anew meanwhile, `onIndexing` hears of it.

// Opens a store for writing, which is made, with its folder, when it is absent.
Result<std::unique_ptr<Database>> openOrMakeStore(const QString& storeFile,
                                                  const IndexProgress& onIndexing = {});

// Opens the back end over a store, which is made, with its folder, when it is absent. A store that holds
// no headline yet may be filled with the sample wire up to the present moment; where that is followed from
// then on, it has the present day when this returns, at later starts, too (sample_history.h). One that cannot
// be written to is opened as it is. `onFilling` hears how far the sample is, the total being a guess.
Result<std::unique_ptr<EmbeddedBackEnd>> openBackEnd(const QString& storeFile, SampleUse sample,
                                                     const IndexProgress& onIndexing = {},
                                                     const IndexProgress& onFilling = {});

}  // namespace wirepane

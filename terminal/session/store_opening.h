// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/embedded_back_end.h"

#include <memory>

namespace wirepane {

// Where the search index of an older store is made anew meanwhile, `onIndexing` hears of it.

// Opens a store for writing, which is made, with its folder, when it is absent.
Result<std::unique_ptr<Database>> openOrMakeStore(const QString& storeFile,
                                                  const IndexProgress& onIndexing = {});

// Opens the back end over a store, which is made, with its folder, when it is absent. With `sampleWhenNew` a
// store that holds no headline yet is filled with the sample wire up to the present moment. One that cannot
// be written to is opened as it is. `onFilling` hears how far the sample is, the total being a guess.
Result<std::unique_ptr<EmbeddedBackEnd>> openBackEnd(const QString& storeFile, bool sampleWhenNew,
                                                     const IndexProgress& onIndexing = {},
                                                     const IndexProgress& onFilling = {});

}  // namespace wirepane

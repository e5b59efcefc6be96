// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>

namespace wirepane {

inline constexpr int longestSound = 5;  // seconds

// Whether a file holds a sound that can be told with: WAV with plain samples of 8 or 16 bits, one or two
// channels, no longer than `longestSound`.
Done checkWaveFile(const QString& path);

}  // namespace wirepane

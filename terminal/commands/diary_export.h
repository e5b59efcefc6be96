// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/diary/diary_check.h"

#include <QString>

#include <optional>

namespace wirepane {

// Writes a diary that has to go as far as `kept` into a file, by the ending of its name as CSV, as JSON or as
// a PDF with numbered pages. Each ends with how many entries there are and the seal of the last. What the
// look through it has found; nothing has been written where it cannot be read, or for another ending.
Result<DiaryReport> exportDiary(const QString& diary, const DiaryHead& kept, const QString& file);
bool isDiaryExport(const QString& file);

}  // namespace wirepane

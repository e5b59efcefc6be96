// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/diary/diary_head.h"
#include "backend/result.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <functional>

namespace wirepane {

// What a look through a whole diary has found.
struct DiaryReport {
    DiaryHead head;           // of its last whole line
    QStringList faults;       // sentences, the first that there are; empty: it is as it was written
    QString headFault;        // of them, what only the store's head shows; empty: nothing
    bool hasTornEnd = false;  // a program was killed while it wrote; nobody was told of that entry
};

// Looks through a diary that has to go at least as far as `kept` does. `onEntry` is given the JSON of each
// whole line and its number, from 1 on, in order. A diary that is not there has no entries.
Result<DiaryReport> checkDiary(
    const QString& path, const DiaryHead& kept,
    const std::function<void(std::int64_t line, QByteArrayView json)>& onEntry = {});

}  // namespace wirepane

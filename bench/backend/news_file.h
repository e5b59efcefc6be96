// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"

#include <QTemporaryDir>

#include <vector>

namespace wirepane::bench {

enum class Format { Rss, Ninjs, Table };

// A file of so many pieces of news of 2 kB, half a minute apart from `from` on, and how it is read.
struct NewsFile {
    NewsFile(Format format, int count, std::int64_t from = 1'772'400'000);
    std::vector<NewsItem> items() const;

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("news"));
    ReadOptions options;
};

}  // namespace wirepane::bench

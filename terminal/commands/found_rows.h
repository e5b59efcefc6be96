// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/row_file.h"
#include "backend/store/store_reader.h"
#include "host/contract/news_rows.h"

#include <QByteArray>

#include <optional>
#include <variant>

namespace wirepane {

// How a command writes each piece of news: a line for people, a short JSON object per line, or whole rows.
enum class FoundLine { Text, Json };
using FoundForm = std::variant<FoundLine, NewsRowForm>;

// Makes the bytes of the news that a command has found, one piece after the other. Thread: that of the
// database, which must outlive this.
class FoundRows {
public:
    FoundRows(Database& database, FoundForm rowForm);

    // Nothing where the headline is not there any more.
    std::optional<QByteArray> row(const HeadlineKey& key);
    QByteArray end() const;

private:
    QByteArray line(const CHeadline& headline);

    StoreReader reader;
    const FoundForm form;
    NewsRowMaker maker;  // of whole rows, and of names
};

}  // namespace wirepane

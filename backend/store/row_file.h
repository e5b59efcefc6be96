// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/price_book.h"
#include "backend/store/store_reader.h"
#include "host/contract/clock.h"
#include "host/contract/news_row_files.h"

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <optional>
#include <span>

namespace wirepane {

// Makes the bytes of rows, one piece of news after the other. Thread: that of the database, which must
// outlive this.
class NewsRowMaker {
public:
    NewsRowMaker(Database& database, NewsRowForm rowForm)
        : reader(database), prices(database), asOf(host_clock::now()), form(rowForm) {}

    // Nothing where the headline is not there any more.
    std::optional<QByteArray> row(const HeadlineKey& key);
    QByteArray end() const { return newsRowsEnd(form, isFirst); }
    // The short name, else the number.
    QString serviceName(unsigned char service);

private:
    StoreReader reader;
    PriceBook prices;
    const std::int64_t asOf;  // of the prices
    const NewsRowForm form;
    bool isFirst = true;
};

// Row by row into a file beside the one that is wanted, whose place it takes when it is whole. `goesOn` is
// told how many entries are behind it and says whether the rest is wanted. Thread: that of the database.
RowFileOutcome writeRowFile(Database& database, std::span<const CHeadlineTable> entries, NewsRowForm form,
                            const QString& name, const std::function<bool(int done)>& goesOn);

}  // namespace wirepane

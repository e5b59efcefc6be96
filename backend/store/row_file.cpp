// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/row_file.h"

#include "backend/database/database.h"

#include <QSaveFile>

#include <utility>

namespace wirepane {

std::optional<QByteArray> NewsRowMaker::row(const HeadlineKey& key) {
    const std::optional<CHeadline> headline = reader.headline(key);
    if (!headline)
        return std::nullopt;
    NewsRow row{*headline, serviceName(headline->service), {}, {}, reader.story(key)};
    if (const auto topic = reader.category(headline->service, headline->categoryId))
        row.topic = topic->name;
    row.symbols = reader.relatedSymbols(key).value_or(std::vector<CSymbolInfo>());
    if (!row.symbols.empty()) {
        if (const auto since = prices.since(row.symbols.front(), key.time))
            row.prices = FrozenPrices{*since, asOf};
    }
    if (const auto withdrawal = reader.state(key).withdrawal)
        row.withdrawn = withdrawal->reason;
    return newsRow(form, row, std::exchange(isFirst, false));
}

QString NewsRowMaker::serviceName(unsigned char service) {
    const auto stored = reader.service(service);
    return stored ? stored->shortName : QString::number(service);
}

RowFileOutcome writeRowFile(Database& database, std::span<const CHeadlineTable> entries, NewsRowForm form,
                            const QString& name, const std::function<bool(int done)>& goesOn) {
    using End = RowFileOutcome::End;
    RowFileOutcome outcome;
    QSaveFile file(name);
    const auto failed = [&] {
        outcome.end = End::NotWritten;
        outcome.reason = file.errorString();
        return outcome;
    };
    if (!file.open(QIODevice::WriteOnly))
        return failed();
    NewsRowMaker maker(database, form);
    int done = 0;
    for (const CHeadlineTable& entry : entries) {
        if (!goesOn(done)) {
            outcome.end = End::Stopped;
            return outcome;
        }
        const auto row = maker.row(keyOf(entry));
        if (database.damage()) {
            outcome.end = End::Unreadable;
            return outcome;
        }
        if (row && file.write(*row) != row->size())
            return failed();
        outcome.rows += row ? 1 : 0;
        ++done;
    }
    file.write(maker.end());
    outcome.bytes = file.size();
    return file.commit() ? outcome : failed();
}

}  // namespace wirepane

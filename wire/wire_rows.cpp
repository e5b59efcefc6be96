// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/wire_rows.h"

#include "backend/store/stored_item.h"
#include "wire/wire_errors.h"

#include <QDataStream>
#include <QIODevice>

namespace wirepane {

namespace {

constexpr auto streamVersion = QDataStream::Qt_6_4;

bool isOfKind(const StoreItem& item, const QString& kind) {
    if (std::holds_alternative<SymbolItem>(item))
        return kind == wire_kinds::symbol;
    if (std::holds_alternative<CategoryItem>(item))
        return kind == wire_kinds::category;
    return std::holds_alternative<NewsItem>(item) && kind != wire_kinds::symbol &&
           kind != wire_kinds::category;
}

bool isKnown(const QString& kind) {
    return kind == wire_kinds::news || kind == wire_kinds::story || kind == wire_kinds::version ||
           kind == wire_kinds::withdrawal || kind == wire_kinds::category || kind == wire_kinds::symbol;
}

}  // namespace

QByteArray bodyOf(const StoreItem& item) {
    QByteArray body;
    QDataStream out(&body, QIODevice::WriteOnly);
    out.setVersion(streamVersion);
    if (const auto* const news = std::get_if<NewsItem>(&item))
        out << qint32(news->day.value_or(0)) << qint64(news->received.value_or(0));
    else
        out << qint32(0) << qint64(0);
    return body + bytesOf(item);
}

Result<StoreItem> contentOf(const WireRow& row) {
    if (!isKnown(row.kind))
        return makeError<wire_errors::unknownKind>(row.kind);
    QDataStream in(row.body);
    in.setVersion(streamVersion);
    qint32 day = 0;
    qint64 received = 0;
    in >> day >> received;
    const auto decided = static_cast<qsizetype>(sizeof day + sizeof received);
    std::optional<StoreItem> item =
        in.status() == QDataStream::Ok ? itemOf(row.body.mid(decided)) : std::nullopt;
    if (!item || !isOfKind(*item, row.kind))
        return makeError<wire_errors::rowDamaged>();
    if (auto* const news = std::get_if<NewsItem>(&*item)) {
        if (news->service != row.service || day <= 0 || received <= 0)
            return makeError<wire_errors::rowDamaged>();
        news->day = day;
        news->received = received;
    }
    return *item;
}

}  // namespace wirepane

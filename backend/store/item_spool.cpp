// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/item_spool.h"

#include "backend/database/database_errors.h"

#include <QDataStream>
#include <QDir>

#include <array>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QDataStream& operator<<(QDataStream& out, const std::int64_t& number) {
    return out << qint64(number);
}

QDataStream& operator>>(QDataStream& in, std::int64_t& number) {
    qint64 read = 0;
    in >> read;
    number = read;
    return in;
}

template <class Value>
QDataStream& operator<<(QDataStream& out, const std::optional<Value>& value) {
    out << value.has_value();
    return value ? out << *value : out;
}

template <class Value>
QDataStream& operator>>(QDataStream& in, std::optional<Value>& value) {
    bool isThere = false;
    in >> isThere;
    value.reset();
    return isThere ? in >> value.emplace() : in;
}

// One description for both ways.
template <class Stream, class Item>
void pass(Stream&& each, Item& item) {
    using Kind = std::remove_const_t<Item>;
    if constexpr (std::is_same_v<Kind, SymbolItem>)
        each(item.market, item.code, item.name, item.category, item.englishName);
    else if constexpr (std::is_same_v<Kind, CategoryItem>)
        each(item.service, item.id, item.name, item.colour);
    else if constexpr (std::is_same_v<Kind, QuoteItem>)
        each(item.market, item.code, item.last, item.change, item.volume);
    else
        each(item.service, item.identity, item.version, item.time, item.title, item.story, item.category,
             item.link, item.withdrawn, item.sequence, item.categoryId);
}

void write(QDataStream& out, const StoreItem& item) {
    out << quint8(item.index());
    std::visit(
        [&out](const auto& one) { pass([&out](const auto&... part) { (void)(out << ... << part); }, one); },
        item);
    if (const auto* news = std::get_if<NewsItem>(&item)) {
        out << quint32(news->related.size());
        for (const CSymbolInfo& symbol : news->related)
            out << symbol.market << symbol.code;
    }
}

template <std::size_t... kinds>
StoreItem emptyItem(quint8 kind, std::index_sequence<kinds...>) {
    StoreItem item;
    (void)((kind == kinds && (item = std::variant_alternative_t<kinds, StoreItem>(), true)) || ...);
    return item;
}

StoreItem readItem(QDataStream& in) {
    quint8 kind = 0;
    in >> kind;
    StoreItem item = emptyItem(kind, std::make_index_sequence<std::variant_size_v<StoreItem>>());
    std::visit([&in](auto& one) { pass([&in](auto&... part) { (void)(in >> ... >> part); }, one); }, item);
    if (auto* news = std::get_if<NewsItem>(&item)) {
        quint32 count = 0;
        in >> count;
        for (; count > 0 && in.status() == QDataStream::Ok; --count) {
            CSymbolInfo& symbol = news->related.emplace_back();
            in >> symbol.market >> symbol.code;
        }
    }
    return item;
}

}  // namespace

Error ItemSpool::failure() const {
    return makeError<database_errors::notReadOrWritten>(QDir::toNativeSeparators(path), file->errorString());
}

Done ItemSpool::add(const StoreItem& item) {
    if (file == nullptr) {
        file = std::make_unique<QTemporaryFile>(path + u"-XXXXXX"_s);
        if (!file->open())
            return failure();
    }
    QDataStream out(file.get());
    write(out, item);
    return out.status() == QDataStream::Ok ? Done(Nothing{}) : Done(failure());
}

Done ItemSpool::forEach(const std::function<Done(const StoreItem&)>& take) {
    if (isEmpty())
        return Nothing{};
    if (!file->seek(0))
        return failure();
    QDataStream in(file.get());
    while (!in.atEnd()) {
        const StoreItem item = readItem(in);
        if (in.status() != QDataStream::Ok)
            return failure();
        if (Done taken = take(item); !taken)
            return taken;
    }
    return Nothing{};
}

}  // namespace wirepane

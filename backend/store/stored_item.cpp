// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/stored_item.h"

#include "backend/packed_text.h"

#include <QDataStream>
#include <QIODevice>

#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>
#include <variant>

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
        each(item.service, item.identity, item.version, item.time, item.title, item.category, item.link,
             item.withdrawn, item.sequence, item.categoryId);
}

enum class StoryForm : quint8 { ToCome, Text, Packed };

void writeStory(QDataStream& out, const NewsItem& news) {
    if (!news.story)
        out << StoryForm::ToCome;
    else if (news.packedStory.isOf(*news.story) && !news.packedStory.bytes.isEmpty())
        out << StoryForm::Packed << news.packedStory.bytes;
    else
        out << StoryForm::Text << news.story->toUtf8();
}

// False: it is none.
bool readStory(QDataStream& in, NewsItem& news) {
    auto form = StoryForm::ToCome;
    in >> form;
    news.story.reset();
    if (form == StoryForm::ToCome)
        return true;
    QByteArray bytes;
    in >> bytes;
    if (form == StoryForm::Text) {
        news.story = QString::fromUtf8(bytes);
        return true;
    }
    const std::optional<std::size_t> size = sizeOfUnpacked(bytes);
    QByteArray text(static_cast<qsizetype>(size.value_or(0)), Qt::Uninitialized);
    if (form != StoryForm::Packed || !size || !unpackText(bytes, text.data(), *size))
        return false;
    news.story = QString::fromUtf8(text);
    news.packedStory = {*news.story, bytes};
    return true;
}

void write(QDataStream& out, const NewsItem& news) {
    writeStory(out, news);
    out << quint32(news.related.size());
    for (const CSymbolInfo& symbol : news.related)
        out << symbol.market << symbol.code;
}

bool read(QDataStream& in, NewsItem& news) {
    if (!readStory(in, news))
        return false;
    quint32 count = 0;
    in >> count;
    for (; count > 0 && in.status() == QDataStream::Ok; --count) {
        CSymbolInfo& symbol = news.related.emplace_back();
        in >> symbol.market >> symbol.code;
    }
    return true;
}

template <std::size_t... kinds>
StoreItem emptyItem(quint8 kind, std::index_sequence<kinds...>) {
    StoreItem item;
    (void)((kind == kinds && (item = std::variant_alternative_t<kinds, StoreItem>(), true)) || ...);
    return item;
}

}  // namespace

QByteArray bytesOf(const StoreItem& item) {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_6_4);
    out << quint8(item.index());
    std::visit(
        [&out](const auto& one) { pass([&out](const auto&... part) { (void)(out << ... << part); }, one); },
        item);
    if (const auto* const news = std::get_if<NewsItem>(&item))
        write(out, *news);
    return bytes;
}

std::optional<StoreItem> itemOf(const QByteArray& bytes) {
    QDataStream in(bytes);
    in.setVersion(QDataStream::Qt_6_4);
    quint8 kind = std::numeric_limits<quint8>::max();
    in >> kind;
    if (kind >= std::variant_size_v<StoreItem>)
        return std::nullopt;
    StoreItem item = emptyItem(kind, std::make_index_sequence<std::variant_size_v<StoreItem>>());
    std::visit([&in](auto& one) { pass([&in](auto&... part) { (void)(in >> ... >> part); }, one); }, item);
    auto* const news = std::get_if<NewsItem>(&item);
    if ((news != nullptr && !read(in, *news)) || in.status() != QDataStream::Ok)
        return std::nullopt;
    return item;
}

}  // namespace wirepane

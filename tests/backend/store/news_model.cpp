// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/store/news_model.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

QDate localDate(std::int64_t time) {
    return QDateTime::fromSecsSinceEpoch(time).date();
}

std::int32_t NewsModel::nextNumber(unsigned char service, QDate date) {
    return ++lastNumbers[{service, date}];
}

Take NewsModel::take(const NewsItem& item) {
    const QDate date = localDate(item.time);
    const auto known = std::find_if(pieces.begin(), pieces.end(), [&](const Piece& piece) {
        return piece.item.service == item.service && piece.item.identity == item.identity;
    });
    if (known != pieces.end()) {
        const NewsItem& before = known->item;
        if (std::tie(item.version, item.time) > std::tie(before.version, before.time)) {
            if (localDate(before.time) != date)
                known->sequence = nextNumber(item.service, date);
            known->item = item;
            return Take::TakenIn;
        }
        if (item.version != before.version || before.story.value_or(QString()).size() > 0 ||
            item.story.value_or(QString()).isEmpty())
            return Take::AlreadyThere;
        known->item.story = item.story;
        return Take::TakenIn;
    }
    pieces.push_back({item, nextNumber(item.service, date)});
    return Take::TakenIn;
}

QStringList NewsModel::listing() const {
    QStringList lines;
    for (const auto& [item, sequence] : pieces) {
        QString line = u"%1|%2|%3|%4|%5|%6|"_s.arg(item.service)
                           .arg(item.time)
                           .arg(sequence)
                           .arg(item.version)
                           .arg(item.title, item.story.value_or(u"-"_s));
        for (const CSymbolInfo& symbol : item.related)
            line += symbol.code + u' ';
        lines += line;
    }
    lines.sort();
    return lines;
}

QStringList NewsModel::day(unsigned char service, QDate date) const {
    std::vector<std::pair<std::int64_t, std::int32_t>> entries;
    for (const Piece& piece : pieces) {
        if (piece.item.service == service && localDate(piece.item.time) == date)
            entries.emplace_back(piece.item.time, piece.sequence);
    }
    std::sort(entries.rbegin(), entries.rend());
    QStringList lines;
    for (const auto& [time, sequence] : entries)
        lines += u"%1|%2"_s.arg(time).arg(sequence);
    return lines;
}

NewsItem randomNews(std::mt19937& random) {
    const auto upTo = [&](unsigned most) { return static_cast<int>(random() % most); };
    static constexpr unsigned char services[] = {1, 16, 52};
    NewsItem item = newsItem(services[upTo(3)], QString::number(upTo(60)),
                             at(0, 0) + upTo(3) * 86400 - upTo(40), u"Title %1 of oil"_s.arg(upTo(1000)));
    item.version = upTo(3);
    if (upTo(3) > 0)
        item.story = u"Text %1 on gas@@@@and coal %2"_s.arg(upTo(1000)).arg(upTo(1000));
    else if (upTo(2) > 0)
        item.story.reset();
    if (upTo(2) > 0)
        item.category = u"Kind%1"_s.arg(upTo(5));
    for (int i = upTo(4); i > 0; --i)
        item.related.push_back({16, QString::number(i * 10 + upTo(10))});
    return item;
}

}  // namespace wirepane

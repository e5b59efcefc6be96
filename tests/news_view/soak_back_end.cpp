// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/news_view/soak_back_end.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace wirepane {

void SoakBackEnd::store(const Item& item) {
    const int number = item.headline.sequence;
    if (number < size()) {
        items[static_cast<std::size_t>(number)] = item;
        return;
    }
    const QString day = QDateTime::fromSecsSinceEpoch(item.headline.time).date().toString(u"yyyyMMdd"_s);
    items.push_back(item);
    days[{item.headline.service, day}].push_back(number);
    ofService[item.headline.service].push_back(number);
}

QString SoakBackEnd::BKQNEWS_cszGetCurrDateByService(unsigned char) {
    return newsDay.toString(u"yyyyMMdd"_s);
}

template <class Wanted>
int SoakBackEnd::append(std::vector<CHeadlineTable>& table, const std::vector<int>& numbers,
                        Wanted wanted) const {
    const std::size_t before = table.size();
    for (const int number : numbers) {
        const Item& item = at(number);
        if (wanted(item))
            table.push_back({item.headline.time, number, item.headline.service, 0, 0});
    }
    return static_cast<int>(table.size() - before);
}

int SoakBackEnd::BKQNEWS_iGetHeadlineTable(std::vector<CHeadlineTable>& table, unsigned char service,
                                           const CSymbolInfo& symbol) {
    return append(table, ofService[service], [&](const Item& item) { return item.symbol == symbol.code; });
}

int SoakBackEnd::BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table,
                                           int kind, const QString& key) {
    if (kind == static_cast<int>(TableKind::ByDate))
        return append(table, days[{service, key}], [](const Item&) { return true; });
    return append(table, ofService[service],
                  [id = key.toInt()](const Item& item) { return item.headline.categoryId == id; });
}

int SoakBackEnd::BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                      const std::vector<CHeadlineTable>& entries) {
    int count = 0;
    for (const CHeadlineTable& entry : entries) {
        if (entry.service != service || entry.sequence >= size() ||
            keyOf(at(entry.sequence).headline) != keyOf(entry))
            continue;
        headlines.push_back(at(entry.sequence).headline);
        ++count;
    }
    return count;
}

bool SoakBackEnd::BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) {
    story = {entry.time, u"story %1"_s.arg(entry.sequence), entry};
    return true;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/support/fake_back_end.h"

#include <QDateTime>

#include <algorithm>

namespace wirepane {

namespace {

class WrittenWords : public HitFinder {
public:
    explicit WrittenWords(std::vector<QString> written) : words(std::move(written)) {}

    std::vector<SearchHit> hitsIn(const QString& text, HitPlace place, std::size_t most) const override {
        Q_UNUSED(place);
        std::vector<SearchHit> hits;
        for (qsizetype at = 0; at < text.size() && hits.size() < most; ++at) {
            for (std::size_t word = 0; word < words.size(); ++word) {
                if (QStringView(text).sliced(at).startsWith(words[word], Qt::CaseInsensitive))
                    hits.push_back({at, words[word].size(), static_cast<int>(word)});
            }
        }
        return hits;
    }

private:
    const std::vector<QString> words;
};

}  // namespace

std::shared_ptr<const HitFinder> FakeBackEnd::prepareHits(const CSearch& condition) {
    return std::make_shared<WrittenWords>(condition.keywords);
}

void FakeBackEnd::add(unsigned char service, std::int64_t time, std::int32_t sequence, const QString& title,
                      std::int32_t category, const QString& symbol, bool atHand) {
    CHeadline headline;
    headline.service = service;
    headline.time = time;
    headline.sequence = sequence;
    headline.title = title;
    headline.categoryId = category;
    pieces.push_back({headline, symbol, atHand});
}

void FakeBackEnd::withdraw(unsigned char service, std::int32_t sequence) {
    std::erase_if(pieces, [&](const Piece& piece) {
        return piece.headline.service == service && piece.headline.sequence == sequence;
    });
}

void FakeBackEnd::makeAllAtHand() {
    for (Piece& piece : pieces)
        piece.atHand = true;
}

void FakeBackEnd::registerSymbols(NewsReceiver* view, const std::vector<CSymbolInfo>& added,
                                  const std::vector<CSymbolInfo>& removed) {
    for (const CSymbolInfo& symbol : added) {
        if (symbol.code.isEmpty())
            registrations[view].insert(symbol.market);
        else
            followed[view].append(QStringLiteral("%1:%2").arg(symbol.market).arg(symbol.code));
    }
    for (const CSymbolInfo& symbol : removed) {
        if (symbol.code.isEmpty())
            registrations[view].erase(symbol.market);
        else
            followed[view].removeAll(QStringLiteral("%1:%2").arg(symbol.market).arg(symbol.code));
    }
}

void FakeBackEnd::unregisterSymbols(NewsReceiver* view) {
    registrations.erase(view);
    followed.erase(view);
}

bool FakeBackEnd::BKNEWS_GetSymbolListBySeqNo(CNewsSymLst& list, const CHeadlineTable& entry) {
    const auto found = related.find({entry.service, entry.sequence});
    if (found == related.end())
        return false;
    list.symbols = found->second;
    return true;
}

bool FakeBackEnd::BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& out) {
    out = services;
    return !out.empty();
}

bool FakeBackEnd::BKQNEWS_bGetFullNameByService(QString& name, unsigned char service) {
    name = QStringLiteral("Service %1").arg(service);
    return true;
}

QString FakeBackEnd::BKQNEWS_cszGetCurrDateByService(unsigned char service) {
    const auto known = currentDates.find(service);
    return known == currentDates.end() ? QStringLiteral("20260302") : known->second;
}

bool FakeBackEnd::BKQNews_bReRequestHeadlineStory(const CHeadlineTable& entry) {
    asked.append(QStringLiteral("again story %1 %2").arg(entry.service).arg(entry.sequence));
    return true;
}

bool FakeBackEnd::BKNEWS_bReRequestHeadlineTable(unsigned char service, const CSymbolInfo& symbol) {
    asked.append(QStringLiteral("again %1 symbol %2").arg(service).arg(symbol.code));
    return true;
}

bool FakeBackEnd::BKNEWS_bReRequestHeadlineTable(unsigned char service, int kind, const QString& key) {
    asked.append(QStringLiteral("again %1 %2 %3").arg(service).arg(kind).arg(key));
    return true;
}

bool FakeBackEnd::BKQNEWS_bReCoverHeadline(unsigned char service, std::vector<CHeadline>&,
                                           const std::vector<CHeadlineTable>& entries) {
    QStringList sequences;
    for (const CHeadlineTable& entry : entries)
        sequences.append(QString::number(entry.sequence));
    asked.append(QStringLiteral("again %1 [%2]").arg(service).arg(sequences.join(u' ')));
    return true;
}

bool FakeBackEnd::bNewsAPI_GetNewsCatId(unsigned char service, std::vector<QString>& ids,
                                        std::vector<QString>& names) {
    ids.clear();
    names.clear();
    for (const auto& [id, name] : categories[service]) {
        ids.push_back(id);
        names.push_back(name);
    }
    return !ids.empty();
}

bool FakeBackEnd::bGetAllServiceID(std::vector<unsigned char>& out) {
    out.clear();
    for (const auto& [service, list] : symbols)
        out.push_back(service);
    return !out.empty();
}

bool FakeBackEnd::bGetServiceID2Delay(unsigned char service, unsigned char& id) {
    const auto found = delayed.find(service);
    if (found != delayed.end())
        id = found->second;
    return found != delayed.end();
}

int FakeBackEnd::bIsFromTheSameAuthServiceID(unsigned char service, unsigned char other) {
    const auto found = delayed.find(other);
    return service == other || (found != delayed.end() && found->second == service) ? 1 : 0;
}

bool FakeBackEnd::bGetSymbolID(unsigned char service, std::vector<QString>& codes,
                               std::vector<QString>& names) {
    asked.append(QStringLiteral("symbols %1").arg(service));
    codes.clear();
    names.clear();
    for (const auto& [code, name] : symbols[service]) {
        codes.push_back(code);
        names.push_back(name);
    }
    return !codes.empty();
}

bool FakeBackEnd::GetSymbolsByService(unsigned char service, std::vector<QString>& codes,
                                      std::vector<QString>& names, int) {
    return bGetSymbolID(service, codes, names);
}

bool FakeBackEnd::FindSearchList(const QString& typed, std::vector<QString>& found) {
    asked.append(QStringLiteral("candidates %1").arg(typed));
    found.assign(candidates.begin(), candidates.end());
    return !found.empty();
}

bool FakeBackEnd::bGetItemDataByItemNo(QString& value, unsigned char market, const QString& code, int item) {
    for (const auto& [known, name] : symbols[market]) {
        if (known == code && item == symbol_items::name) {
            value = name;
            return true;
        }
    }
    return false;
}

bool FakeBackEnd::BKQNEWS_bSearchNews(unsigned char service, int kind, const CSearch& condition) {
    const QStringList words(condition.keywords.begin(), condition.keywords.end());
    QString line = QStringLiteral("search %1 %2 %3/%4 %5")
                       .arg(service)
                       .arg(kind)
                       .arg(condition.scope)
                       .arg(condition.method)
                       .arg(words.join(u'|'));
    if (condition.isQuery())
        line += QStringLiteral(" as a query");
    for (const CSymbolInfo& symbol : condition.symbols)
        line += QStringLiteral(" @%1 %2").arg(symbol.market).arg(symbol.code);
    asked.append(line);
    return true;
}

int FakeBackEnd::bIsSymbolIDExist(unsigned char service, const QString& code) {
    const auto& list = symbols[service];
    return std::any_of(list.begin(), list.end(), [&](const auto& symbol) { return symbol.first == code; })
               ? 1
               : 0;
}

bool FakeBackEnd::bGetCategorybySymbolID(int& category, unsigned char service, const QString& code) {
    if (bIsSymbolIDExist(service, code) == 0)
        return false;
    category = hongKongCategory;
    return true;
}

template <class Wanted>
int FakeBackEnd::append(std::vector<CHeadlineTable>& table, unsigned char service, Wanted wanted) const {
    int count = 0;
    for (const Piece& piece : pieces) {
        if (piece.headline.service != service || !wanted(piece))
            continue;
        table.push_back({piece.headline.time, piece.headline.sequence, service, 0, 0});
        ++count;
    }
    return count;
}

int FakeBackEnd::BKQNEWS_iGetHeadlineTable(std::vector<CHeadlineTable>& table, unsigned char service,
                                           const CSymbolInfo& symbol) {
    asked.append(QStringLiteral("table %1 symbol %2").arg(service).arg(symbol.code));
    return append(table, service, [&](const Piece& piece) { return piece.symbol == symbol.code; });
}

int FakeBackEnd::BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table,
                                           int kind, const QString& key) {
    asked.append(QStringLiteral("table %1 %2 %3").arg(service).arg(kind).arg(key));
    const bool isSearch = kind == static_cast<int>(TableKind::Search);
    if (isSearch || kind == static_cast<int>(TableKind::SecondSearch)) {
        const std::vector<CHeadlineTable>& found = (isSearch ? searchTables : secondSearchTables)[service];
        table.insert(table.end(), found.begin(), found.end());
        return static_cast<int>(found.size());
    }
    return append(table, service, [&](const Piece& piece) {
        const QDate day = QDateTime::fromSecsSinceEpoch(piece.headline.time).date();
        return kind == 0 ? day.toString(QStringLiteral("yyyyMMdd")) == key
                         : QString::number(piece.headline.categoryId) == key;
    });
}

int FakeBackEnd::BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                      const std::vector<CHeadlineTable>& entries) {
    int count = 0;
    QStringList sequences;
    for (const CHeadlineTable& entry : entries) {
        sequences.append(QString::number(entry.sequence));
        const auto piece = std::find_if(pieces.begin(), pieces.end(), [&](const Piece& candidate) {
            return keyOf(candidate.headline) == keyOf(entry);
        });
        if (piece == pieces.end() || !piece->atHand || entry.service != service)
            continue;
        headlines.push_back(piece->headline);
        ++count;
    }
    asked.append(QStringLiteral("headlines %1 [%2]").arg(service).arg(sequences.join(u' ')));
    return count;
}

bool FakeBackEnd::BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) {
    asked.append(QStringLiteral("story %1 %2").arg(entry.service).arg(entry.sequence));
    const auto found = std::find_if(stories.rbegin(), stories.rend(), [&](const CStory& candidate) {
        return keyOf(candidate.entry) == keyOf(entry);
    });
    if (!storyAtHand || found == stories.rend())
        return false;
    story = *found;
    return true;
}

void FakeBackEnd::LangConvertToSimplifiedChinese(const QString& in, QString& out) {
    out = in;
    out.replace(QStringLiteral("聞"), QStringLiteral("闻"))
        .replace(QStringLiteral("資"), QStringLiteral("资"));
}

std::int64_t localTime(int year, int month, int day, int hour, int minute, int second) {
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second)).toSecsSinceEpoch();
}

}  // namespace wirepane

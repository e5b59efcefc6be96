// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/search/query_scan.h"

#include "backend/search/news_search.h"
#include "host/contract/clock.h"
#include "tests/backend/search/real_news.h"

#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

// Invents queries of all operators about pieces of real texts.
class QueryMaker {
public:
    QueryMaker(const std::vector<NewsItem>& taken, unsigned seed) : news(taken), random(seed) {}

    // About news of the service of `item`, so that it often finds some.
    QString query() {
        item = &news.at(random() % news.size());
        QString made = any(0);
        // A slip of the finger.
        if (oneIn(12))
            made.remove(qsizetype(below(made.size())), 1);
        if (oneIn(12))
            made.insert(qsizetype(below(made.size() + 1)), pick({u"("_s, u")"_s, u"|"_s, u"-"_s, u"\""_s,
                                                                 u"*"_s, u" NEAR "_s, u" OR "_s, u":"_s}));
        return made;
    }
    unsigned char service() { return oneIn(10) ? 1 : item->service; }
    int scope() { return oneIn(2) ? 2 : int(below(3)); }

private:
    std::size_t below(qsizetype bound) { return random() % std::size_t(std::max<qsizetype>(bound, 1)); }
    bool oneIn(unsigned n) { return random() % n == 0; }
    QString pick(const QStringList& some) { return some.at(qsizetype(below(some.size()))); }

    QString any(int depth) {
        QString made = all(depth);
        while (oneIn(depth == 0 ? 5 : 3))
            made += pick({u" | "_s, u"|"_s, u"｜"_s}) + all(depth);
        return made;
    }
    QString all(int depth) {
        QString made = factor(depth);
        while (oneIn(3))
            made += pick({u" "_s, u" "_s, u"  "_s, u"　"_s}) + factor(depth);
        return made;
    }
    QString factor(int depth) {
        QString made = oneIn(4) ? pick({u"-"_s, u"-"_s, u"－"_s}) : u""_s;
        if (depth < 3 && oneIn(6))
            return made + pick({u"("_s, u"（"_s}) + any(depth + 1) + u')';
        if (oneIn(8))
            return made + text() + pick({u" NEAR "_s, u" NEAR/0 "_s, u" NEAR/3 "_s, u" NEAR/40 "_s}) + text();
        return made + (oneIn(3) ? field(depth) : text());
    }
    QString text() {
        const QString made = piece();
        const bool isCut = oneIn(6);
        const bool needsMarks = made.contains(u' ') || made.startsWith(u'-') || made.contains(u':');
        if (needsMarks || oneIn(4))
            return (oneIn(5) ? u"“%1”"_s : u"\"%1\""_s).arg(made) + (isCut ? u"*"_s : u""_s);
        return made + (isCut ? u"*"_s : u""_s);
    }
    // What people search for: a few characters, some words, the beginning of a word.
    QString piece() {
        const NewsItem& from = oneIn(4) ? news.at(random() % news.size()) : *item;
        const QString whole = from.story.value_or(QString()).isEmpty() || oneIn(3) ? from.title : *from.story;
        static const QString signs = u"\"“”„‟＂()（）|｜*＊\n@"_s;
        QString made;
        if (oneIn(2)) {
            made = whole.sliced(qsizetype(below(whole.size()))).left(1 + qsizetype(below(4)));
        } else {
            const auto words = whole.split(u' ', Qt::SkipEmptyParts);
            made = words.value(qsizetype(below(words.size()))).left(20);
            if (oneIn(3))
                made += u' ' + words.value(qsizetype(below(words.size())));
        }
        for (const QChar sign : signs)
            made.remove(sign);
        made = made.trimmed();
        return made.isEmpty() ? u"the"_s : made;
    }
    QString field(int depth) {
        switch (below(7)) {
            case 0:
                return u"title:"_s + (oneIn(3) ? u"(%1 | %2)"_s.arg(text(), text()) : text());
            case 1:
                return u"STORY:"_s + (oneIn(3) ? u"(%1 -%2)"_s.arg(text(), text()) : text());
            case 2:
                return u"topic:"_s + (oneIn(3) ? QString::number(below(40)) : item->category);
            case 3:
                return u"service:"_s + pick({QString::number(item->service), u"1"_s, u"exchange"_s,
                                             u"\"General news\""_s, u"16"_s});
            case 4:
                return symbol();
            case 5:
                return pick({u"from:"_s, u"to："_s, u"on:"_s}) + day();
            default:
                return depth > 1 ? text() : u'(' + field(depth + 1) + u')';
        }
    }
    QString symbol() {
        const QString code = item->related.empty() ? u"2330"_s : item->related.front().code;
        return u"symbol:"_s + pick({code, u"16:"_s + code, u"0"_s + code, code + u".TW"_s, u"台積"_s,
                                    u"IBM"_s, u"apple"_s, u"00700.hk"_s, u"22:700"_s, u"300:1"_s});
    }
    QString day() {
        const QDate date = QDateTime::fromSecsSinceEpoch(item->time).date();
        return pick({date.toString(u"yyyy-MM-dd"_s), date.toString(u"yyyyMMdd"_s),
                     date.toString(u"yyyy-MM"_s), QString::number(date.year()), u"today"_s,
                     u"-%1d"_s.arg(below(900)), u"-%1w"_s.arg(below(90)), u"yesterday"_s, u"2026-13-01"_s});
    }

    const std::vector<NewsItem>& news;
    std::mt19937 random;
    const NewsItem* item = nullptr;
};

// WIREPANE_SCAN_COPIES: so many times the news, WIREPANE_SCAN_QUERIES: so many queries, WIREPANE_SCAN_SEED:
// others than usual. Both numbers are small where nobody says otherwise.
class QueryScanTest : public RealNews {
protected:
    static int setting(const char* name, int otherwise) {
        const int value = qEnvironmentVariableIntValue(name);
        return value > 0 ? value : otherwise;
    }
    void SetUp() override {
        RealNews::SetUp();
        host_clock::startAt(at(12, 0));
        takeCopies(setting("WIREPANE_SCAN_COPIES", 1));
        takeSymbols();
        for (const NewsItem& item : sink->taken) {
            const int space = item.service == 52 ? 52 : 0;
            scan.add(item, topics.value(u"%1/%2"_s.arg(space).arg(item.category), 0));
        }
        for (const QString& row : rows("SELECT id, full_name, short_name FROM services"))
            scan.nameService(static_cast<unsigned char>(row.section(u'|', 0, 0).toInt()),
                             {row.section(u'|', 1, 1), row.section(u'|', 2, 2)});
        readIdentities();
    }
    // Under other identities, on other days.
    void takeCopies(int copies) {
        const std::vector<NewsItem> once = sink->taken;
        ASSERT_TRUE(writer->begin());
        for (int copy = 1; copy < copies; ++copy) {
            for (NewsItem item : once) {
                item.identity += u"/%1"_s.arg(copy);
                item.time += copy * 40'000;
                item.sequence.reset();
                ASSERT_TRUE(sink->take(item));
            }
        }
        ASSERT_TRUE(writer->commit());
        for (const QString& row : rows("SELECT space, name, id FROM categories"))
            topics.insert(row.section(u'|', 0, 0) + u'/' + row.section(u'|', 1, 1),
                          row.section(u'|', 2, 2).toInt());
    }
    void takeSymbols() {
        for (const SymbolItem& symbol :
             {SymbolItem{16, u"2330"_s, u"台積電"_s}, SymbolItem{16, u"2317"_s, u"鴻海"_s},
              SymbolItem{22, u"0700"_s, u"騰訊控股"_s, 0, u"Apple Daily"_s},
              SymbolItem{1, u"IBM"_s, u"International Business"_s}, SymbolItem{1, u"AAPL"_s, u"Apple Inc."_s},
              SymbolItem{1, u"APLE"_s, u"Apple Hospitality"_s}}) {
            take(symbol);
            scan.add(symbol);
        }
    }

    QueryScan scan{QDateTime::fromSecsSinceEpoch(at(12, 0)).date()};
    QMap<QString, int> topics;  // ids, by space and name
};

TEST_F(QueryScanTest, FindsExactlyWhatAScanFinds) {
    QueryMaker maker(sink->taken, unsigned(setting("WIREPANE_SCAN_SEED", 20260302)));
    NewsSearch search(*reading);
    int found = 0;
    int faulty = 0;
    const int queries = setting("WIREPANE_SCAN_QUERIES", 300);
    for (int i = 0; i < queries; ++i) {
        if (i == queries / 2)
            search.prepare();
        CSearch condition;
        condition.language = SearchLanguage::Query;
        condition.keywords = {maker.query()};
        condition.scope = static_cast<unsigned char>(maker.scope());
        const unsigned char service = maker.service();
        SCOPED_TRACE(condition.query().toStdString() + " in " + std::to_string(condition.scope));
        const auto entries = search.find(service, condition);
        ASSERT_TRUE(entries);
        const auto wanted = scan.find(service, condition.query(), condition.scope);
        EXPECT_EQ(std::holds_alternative<QueryFault>(readQuery(condition.query())), !wanted);
        compare(identitiesOf(*entries), wanted.value_or(QStringList()));
        found += entries->empty() ? 0 : 1;
        faulty += wanted ? 0 : 1;
    }
    EXPECT_GT(found, queries / 3);
    EXPECT_GT(faulty, queries / 20);
    EXPECT_LT(faulty, queries / 4);
}

}  // namespace
}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/search/query_scan.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using Entry = QueryScan::Entry;
using Test = std::function<bool(const Entry&)>;
struct Fault {};

QString withPlainSigns(QString query) {
    const QString shown = u"“”„‟＂（）｜"_s;
    for (qsizetype i = 0; i < shown.size(); ++i)
        query.replace(shown[i], u"\"\"\"\"\"()|"_s[i]);
    return query;
}

bool isFault(const QString& word) {
    return word == "AND"_L1 || word == "OR"_L1 || word == "NOT"_L1;
}

// A text as it is looked for in one field: its words between blanks, the last one open at its end if cut.
QByteArray needle(const QByteArray& words, bool cut) {
    return cut ? words.chopped(1) : words;
}

QList<qsizetype> startsOf(const QByteArray& text, const QByteArray& wanted) {
    QList<qsizetype> starts;
    for (qsizetype at = text.indexOf(wanted); at >= 0; at = text.indexOf(wanted, at + 1))
        starts += text.first(at).count(' ');
    return starts;
}

}  // namespace

// Reads a query from left to right and makes the test of it.
class QueryReading {
public:
    QueryReading(const QueryScan& whole, const QString& query, int wholeScope)
        : scan(whole), text(withPlainSigns(query)), scope(wholeScope) {
        if (query.size() > 2000)
            throw Fault();
    }

    Test whole() {
        const Test read = anyOf();
        if (at < text.size())
            throw Fault();
        return read;
    }

private:
    void skipBlanks() {
        while (at < text.size() && text[at].isSpace())
            ++at;
    }
    bool isAt(QChar sign) {
        skipBlanks();
        return at < text.size() && text[at] == sign;
    }
    bool startsWith(QStringView signs) const { return at < text.size() && signs.contains(text[at]); }

    Test anyOf() {
        std::vector<Test> parts{allOf()};
        while (isAt(u'|')) {
            ++at;
            parts.push_back(allOf());
        }
        return [parts](const Entry& entry) {
            return std::any_of(parts.begin(), parts.end(), [&](const Test& part) { return part(entry); });
        };
    }
    Test allOf() {
        std::vector<Test> parts;
        for (skipBlanks(); at < text.size() && !startsWith(u"|)"); skipBlanks())
            parts.push_back(factor());
        if (parts.empty())
            throw Fault();
        return [parts](const Entry& entry) {
            return std::all_of(parts.begin(), parts.end(), [&](const Test& part) { return part(entry); });
        };
    }
    Test factor() {
        if (!startsWith(u"-－"))
            return near();
        ++at;
        if (at == text.size() || text[at].isSpace() || startsWith(u"-－|)"))
            throw Fault();
        const Test excluded = near();
        return [excluded](const Entry& entry) { return !excluded(entry); };
    }

    struct Read {
        Test test;
        bool isText = false;
        QByteArray words = {};
        bool cut = false;
    };

    // The word NEAR, when it stands here by itself.
    std::optional<int> nearHere() {
        static const QRegularExpression sign(u"^NEAR(/([0-9]{0,5}))?(?=[\\s\"()|]|$)"_s,
                                             QRegularExpression::UseUnicodePropertiesOption);
        skipBlanks();
        const auto match = sign.match(text.sliced(at));
        if (!match.hasMatch()) {
            if (QStringView(text).sliced(at).startsWith(u"NEAR/"))
                throw Fault();
            return std::nullopt;
        }
        at += match.capturedLength();
        if (match.captured(1).isEmpty())
            return 10;
        const int most = match.captured(2).toInt();
        if (match.captured(2).isEmpty() || most > 1000)
            throw Fault();
        return most;
    }
    Test near() {
        if (nearHere())
            throw Fault();
        const Read first = primary();
        const auto most = nearHere();
        if (!most)
            return first.test;
        if (at == text.size() || startsWith(u"-－"))
            throw Fault();
        skipBlanks();
        if (at == text.size() || startsWith(u"-－|)") || nearHere())
            throw Fault();
        const Read second = primary();
        if (!first.isText || !second.isText || nearHere())
            throw Fault();
        return [=, fields = scope](const Entry& entry) {
            return (fields != 1 && isNear(entry.title, first, second, *most)) ||
                   (fields != 0 && isNear(entry.story, first, second, *most));
        };
    }
    static bool isNear(const QByteArray& field, const Read& a, const Read& b, int most) {
        if (a.words.isEmpty() || b.words.isEmpty())
            return false;
        const QList<qsizetype> ofA = startsOf(field, needle(a.words, a.cut));
        const QList<qsizetype> ofB = ofA.isEmpty() ? ofA : startsOf(field, needle(b.words, b.cut));
        const qsizetype lengthA = a.words.count(' ') - 1;
        const qsizetype lengthB = b.words.count(' ') - 1;
        return std::any_of(ofA.begin(), ofA.end(), [&](qsizetype i) {
            return std::any_of(ofB.begin(), ofB.end(), [&](qsizetype j) {
                return i <= j ? j - i - lengthA <= most : i - j - lengthB <= most;
            });
        });
    }

    Read primary() {
        if (startsWith(u"("))
            return {brackets()};
        if (startsWith(u"\""))
            return textOf(quoted(), false);
        const qsizetype start = at;
        const QString word = plainWord();
        static const QRegularExpression named(u"^([A-Za-z]+)[:：]"_s);
        const auto match = named.match(word);
        const bool isKnown = match.hasMatch() && fields().contains(match.captured(1).toLower());
        const bool isBare = match.capturedLength() == word.size() &&
                            (at == text.size() || text[at].isSpace() || startsWith(u"|)"));
        if (match.hasMatch() && (isKnown || !isBare)) {
            at = start + match.capturedLength();
            if (!isKnown || isBare || inField)
                throw Fault();
            return {field(match.captured(1).toLower())};
        }
        if (isFault(word))
            throw Fault();
        return textOf(word, true);
    }
    static QStringList fields() { return u"title story topic service symbol from to on"_s.split(u' '); }

    Test brackets() {
        if (++depth > 20)
            throw Fault();
        ++at;
        const Test inner = anyOf();
        if (!isAt(u')'))
            throw Fault();
        ++at;
        --depth;
        return inner;
    }
    QString plainWord() {
        const qsizetype start = at;
        while (at < text.size() && !text[at].isSpace() && !startsWith(u"\"()|"))
            ++at;
        if (at == start)
            throw Fault();
        return text.sliced(start, at - start);
    }
    QString quoted() {
        const qsizetype end = text.indexOf(u'"', at + 1);
        if (end < 0)
            throw Fault();
        const QString inner = text.sliced(at + 1, end - at - 1);
        at = end + 1;
        if (inner.trimmed().isEmpty())
            throw Fault();
        return inner;
    }
    Read textOf(QString value, bool isWord) {
        count();
        bool cut = false;
        if (isWord && (value.endsWith(u'*') || value.endsWith(u'＊'))) {
            cut = true;
            value.chop(1);
        } else if (!isWord && startsWith(u"*＊")) {
            cut = true;
            ++at;
        }
        if (value.isEmpty())
            throw Fault();
        const QByteArray words = phrase(value);
        const int where = scope;
        const Test test = [=](const Entry& entry) {
            return !words.isEmpty() && ((where != 1 && entry.title.contains(needle(words, cut))) ||
                                        (where != 0 && entry.story.contains(needle(words, cut))));
        };
        return {test, true, words, cut};
    }
    QByteArray phrase(const QString& value) const {
        QStringList all = scan.words.of(value);
        all.removeAll(u"\n"_s);
        all = all.first(std::min<qsizetype>(all.size(), 256));
        return all.isEmpty() ? QByteArray() : ' ' + all.join(u' ').toUtf8() + ' ';
    }
    void count() {
        if (++counted > 200)
            throw Fault();
    }

    Test field(const QString& name) {
        if (name == "title"_L1 || name == "story"_L1)
            return inOneField(name == "title"_L1 ? 0 : 1);
        count();
        const bool isQuoted = startsWith(u"\"");
        if (startsWith(u"("))
            throw Fault();
        const QString value = isQuoted ? quoted() : plainWord();
        const bool hasStar = isQuoted ? startsWith(u"*＊") : value.endsWith(u'*') || value.endsWith(u'＊');
        if (hasStar)
            throw Fault();
        if (name == "topic"_L1)
            return [=, wanted = scan.joined(value)](const Entry& entry) {
                return (!wanted.isEmpty() && entry.topic == wanted) ||
                       (entry.topicId > 0 && isNumber(value, entry.topicId));
            };
        if (name == "service"_L1)
            return [=, &names = scan.serviceNames, wanted = scan.joined(value)](const Entry& entry) {
                return isNumber(value, entry.service) ||
                       (!wanted.isEmpty() && names[entry.service].contains(wanted));
            };
        return name == "symbol"_L1 ? symbol(value) : days(name, value);
    }
    static bool isNumber(const QString& value, int number) {
        return QRegularExpression(u"^[0-9]{1,9}$"_s).match(value).hasMatch() && value.toInt() == number;
    }
    Test inOneField(int where) {
        if (startsWith(u"-－") || nearHere())
            throw Fault();
        const int outer = std::exchange(scope, where);
        inField = true;
        const Test inner = primary().test;
        inField = false;
        scope = outer;
        if (nearHere())
            throw Fault();
        return inner;
    }

    Test days(const QString& name, const QString& value) {
        QDate first;
        QDate last;
        static const QRegularExpression back(u"^-([0-9]{1,5})([dw])$"_s);
        static const QRegularExpression date(u"^([0-9]{4})-?([0-9]{2})-?([0-9]{2})$"_s);
        static const QRegularExpression month(u"^([0-9]{4})-([0-9]{2})$"_s);
        static const QRegularExpression year(u"^[0-9]{4}$"_s);
        if (value == "today"_L1 || value == "yesterday"_L1) {
            first = last = scan.today.addDays(value == "today"_L1 ? 0 : -1);
        } else if (const auto match = back.match(value); match.hasMatch()) {
            first = last =
                scan.today.addDays(-match.captured(1).toInt() * (match.captured(2) == "w"_L1 ? 7 : 1));
        } else if (const auto day = date.match(value); day.hasMatch() && value.count(u'-') != 1) {
            first = last = QDate(day.captured(1).toInt(), day.captured(2).toInt(), day.captured(3).toInt());
        } else if (const auto some = month.match(value); some.hasMatch()) {
            first = QDate(some.captured(1).toInt(), some.captured(2).toInt(), 1);
            last = first.addMonths(1).addDays(-1);
        } else if (year.match(value).hasMatch()) {
            first = QDate(value.toInt(), 1, 1);
            last = QDate(value.toInt(), 12, 31);
        }
        const bool isCounted = value.startsWith(u'-');
        if (!first.isValid() || (!isCounted && (first.year() < 1900 || first.year() > 9999)))
            throw Fault();
        const bool hasStart = name != "to"_L1;
        const bool hasEnd = name != "from"_L1;
        return [=](const Entry& entry) {
            return (!hasStart || entry.day >= first) && (!hasEnd || entry.day <= last);
        };
    }

    struct Codes {
        int market = -1;  // -1: any
        QSet<QString> forms;
    };
    Test symbol(const QString& value) {
        static const QRegularExpression form(u"^(?:([0-9]{1,3})[:：])?(.+)$"_s,
                                             QRegularExpression::DotMatchesEverythingOption);
        const auto match = form.match(value);
        const int market = match.captured(1).isEmpty() ? -1 : match.captured(1).toInt();
        if (!match.hasMatch() || market > 255)
            throw Fault();
        const QString code = match.captured(2).toUpper();
        QString bare = code;
        bare.remove(QRegularExpression(u"(?<=.)\\.[A-Z]{1,4}$"_s));
        const bool isDigits = QRegularExpression(u"^[0-9]+$"_s).match(bare).hasMatch();
        QSet<QString> forms{code, bare};
        if (isDigits) {
            QString least = bare;
            least.remove(QRegularExpression(u"^0+(?=.)"_s));
            for (const int length : {1, 4, 5, 6})
                forms.insert(least.rightJustified(length, u'0'));
        }
        QList<QByteArray> names;
        QList<std::pair<int, QString>> meant;
        for (auto known = scan.symbolNames.begin(); known != scan.symbolNames.end(); ++known) {
            if ((market < 0 || known.key().first == market) && forms.contains(known.key().second))
                names += known.value();
        }
        if (names.isEmpty() && market < 0 && !isDigits) {
            const QByteArray start = phrase(value);
            for (auto known = scan.symbolNames.begin(); known != scan.symbolNames.end(); ++known) {
                const bool fits = std::any_of(known->begin(), known->end(), [&](const QByteArray& name) {
                    return !start.isEmpty() && name.startsWith(start);
                });
                if (fits && meant.size() < 100) {
                    meant += known.key();
                    names += known.value();
                }
            }
            names += start;
        }
        names.removeAll(QByteArray());
        return [=](const Entry& entry) {
            return std::any_of(entry.related.begin(), entry.related.end(),
                               [&](const CSymbolInfo& other) {
                                   const bool inMarket =
                                       market < 0 || other.market == market || other.market == 0;
                                   return (inMarket && forms.contains(other.code)) ||
                                          std::any_of(meant.begin(), meant.end(), [&](const auto& one) {
                                              return one.second == other.code &&
                                                     (one.first == other.market || other.market == 0);
                                          });
                               }) ||
                   std::any_of(names.begin(), names.end(), [&](const QByteArray& name) {
                       return entry.title.contains(name) || entry.story.contains(name);
                   });
        };
    }

    const QueryScan& scan;
    const QString text;
    int scope;
    qsizetype at = 0;
    int depth = 0;
    int counted = 0;
    bool inField = false;
};

QByteArray QueryScan::joined(const QString& text) const {
    const QStringList split = words.of(text);
    return split.isEmpty() ? QByteArray() : ' ' + split.join(u' ').toUtf8() + ' ';
}

void QueryScan::add(const NewsItem& item, int categoryId) {
    const QString story = item.story.value_or(QString()).replace(u"@@@@"_s, u"\n"_s);
    entries.push_back({item.service, item.identity, QDateTime::fromSecsSinceEpoch(item.time).date(),
                       joined(item.title), joined(story), joined(item.category), categoryId, item.related});
}

void QueryScan::add(const SymbolItem& symbol) {
    symbolNames.insert({symbol.market, symbol.code}, {joined(symbol.name), joined(symbol.englishName)});
}

void QueryScan::nameService(unsigned char service, const QStringList& names) {
    for (const QString& name : names)
        serviceNames[service] += joined(name);
}

std::optional<QStringList> QueryScan::find(unsigned char service, const QString& query, int scope) const {
    QStringList found;
    try {
        const Test fits = QueryReading(*this, query, scope).whole();
        for (const Entry& entry : entries) {
            if (entry.service == service && fits(entry))
                found += entry.identity;
        }
    } catch (const Fault&) {
        return std::nullopt;
    }
    found.sort();
    return found;
}

}  // namespace wirepane

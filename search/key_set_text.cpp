// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/key_set_text.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr QLatin1StringView queryMark{"L:1 "};
constexpr QLatin1StringView methodMark{"C:"};
constexpr QLatin1StringView newsTypesMark{" T:"};
constexpr QLatin1StringView keywordsMark{" K:"};

QString escaped(QString keyword) {
    return keyword.replace(u'\\', u"\\\\"_s).replace(u',', u"\\,"_s).replace(keywordsMark, u"\\ K:"_s);
}

// As they are written alone: no sign but a minus, no blank, no leading zero.
std::optional<std::int32_t> numberIn(QStringView text) {
    const int number = text.toInt();
    return QString::number(number) == text ? std::optional<std::int32_t>(number) : std::nullopt;
}

std::optional<std::vector<std::int32_t>> numbersIn(QStringView text) {
    std::vector<std::int32_t> numbers;
    if (text.isEmpty())
        return numbers;
    for (const QStringView part : text.split(u',')) {
        const auto number = numberIn(part);
        if (!number)
            return std::nullopt;
        numbers.push_back(*number);
    }
    return numbers;
}

std::optional<std::vector<QString>> keywordsIn(QStringView text) {
    std::vector<QString> keywords;
    if (text.isEmpty())
        return keywords;
    QString keyword;
    for (auto character = text.begin(); character != text.end(); ++character) {
        if (*character == u',') {
            keywords.push_back(std::exchange(keyword, {}));
            continue;
        }
        if (*character == u'\\' && ++character == text.end())
            return std::nullopt;
        keyword += *character;
    }
    keywords.push_back(keyword);
    for (const QString& read : keywords) {
        if (read.isEmpty())
            return std::nullopt;
    }
    return keywords;
}

}  // namespace

QString textOfKeySet(const CNewsKey& keySet) {
    QStringList newsTypes;
    for (const std::int32_t id : keySet.newsTypes)
        newsTypes.append(QString::number(id));
    QStringList keywords;
    for (const QString& keyword : keySet.keywords)
        keywords.append(escaped(keyword));
    return (keySet.isQuery() ? queryMark : QLatin1StringView()) + methodMark +
           QString::number(keySet.method) + newsTypesMark + newsTypes.join(u',') + keywordsMark +
           keywords.join(u',');
}

std::optional<CNewsKey> keySetOfText(const QString& stored) {
    const bool isQuery = stored.startsWith(queryMark);
    const QString text = isQuery ? stored.sliced(queryMark.size()) : stored;
    const qsizetype types = text.indexOf(newsTypesMark);
    const qsizetype words = types < 0 ? -1 : text.indexOf(keywordsMark, types);
    if (!text.startsWith(methodMark) || words < 0)
        return std::nullopt;
    const QStringView whole(text);
    const qsizetype afterTypes = types + newsTypesMark.size();
    const auto method = numberIn(whole.mid(methodMark.size(), types - methodMark.size()));
    const auto newsTypes = numbersIn(whole.mid(afterTypes, words - afterTypes));
    const auto keywords = keywordsIn(whole.mid(words + keywordsMark.size()));
    if (!method || !newsTypes || !keywords || (isQuery && keywords->size() != 1))
        return std::nullopt;
    CNewsKey keySet(*method, *newsTypes, *keywords);
    if (isQuery)
        keySet.language = SearchLanguage::Query;
    return keySet;
}

}  // namespace wirepane

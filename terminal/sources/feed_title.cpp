// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/feed_title.h"

#include "backend/clean_text.h"

#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// A title that is not told by then is not looked for any further.
constexpr qsizetype headBytes = 65536;

bool isItem(QStringView name) {
    return name == "item"_L1 || name == "entry"_L1;
}

// Half a character is none.
QString shortened(QString title) {
    title.truncate(mostFeedTitle);
    if (!title.isEmpty() && title.back().isHighSurrogate())
        title.chop(1);
    return title;
}

}  // namespace

QString feedTitle(const QByteArray& feed) {
    QXmlStreamReader xml(feed.left(headBytes));
    int depth = 0;
    int titleDepth = 0;  // 0: neither <feed> nor <rss><channel> has begun; titles further in are others
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            --depth;
        if (token != QXmlStreamReader::StartElement)
            continue;
        ++depth;
        if (isItem(xml.name()))
            break;
        if ((depth == 1 && xml.name() == "feed"_L1) || (depth == 2 && xml.name() == "channel"_L1))
            titleDepth = depth + 1;
        if (depth == titleDepth && xml.name() == "title"_L1) {
            const QString title = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            return xml.hasError() ? QString() : shortened(cleanTitle(title).simplified());
        }
    }
    return {};
}

}  // namespace wirepane

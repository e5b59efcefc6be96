// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/opml.h"

#include "backend/clean_text.h"
#include "backend/import/xml_source.h"
#include "terminal/sources/source_errors.h"

#include <QSet>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Writers of these lists do not agree on capitals.
QString attribute(const QXmlStreamReader& xml, QLatin1StringView name) {
    for (const QXmlStreamAttribute& each : xml.attributes()) {
        if (each.name().compare(name, Qt::CaseInsensitive) == 0)
            return each.value().toString().trimmed();
    }
    return {};
}

QString titleOf(const QXmlStreamReader& xml) {
    const QString title = attribute(xml, "title"_L1);
    return cleanTitle(title.isEmpty() ? attribute(xml, "text"_L1) : title);
}

bool isOfTheWeb(const QUrl& address) {
    return address.isValid() && !address.host().isEmpty() &&
           (address.scheme() == "http"_L1 || address.scheme() == "https"_L1);
}

}  // namespace

Result<OpmlReading> readOpml(QIODevice& list) {
    if (list.size() > largestOpml)
        return makeError<source_errors::opmlTooLarge>(largestOpml);
    XmlSource source;
    if (const Done opened = source.open(list); !opened)
        return opened.error();
    const QXmlStreamReader& xml = source.reader();
    OpmlReading reading;
    QSet<QUrl> known;
    int depth = source.enterChild() ? 1 : 0;
    if (depth == 1 && xml.name().compare("opml"_L1, Qt::CaseInsensitive) != 0)
        return makeError<source_errors::noOpml>(xml.name().left(100));
    while (depth > 0) {
        if (!source.enterChild()) {
            --depth;
            continue;
        }
        ++depth;
        const QString address = attribute(xml, "xmlUrl"_L1);
        if (xml.name().compare("outline"_L1, Qt::CaseInsensitive) != 0 || address.isEmpty())
            continue;
        const QUrl url(address, QUrl::StrictMode);
        const bool isTaken = isOfTheWeb(url) && reading.feeds.size() < mostListedFeeds;
        if (isTaken && !known.contains(url))
            reading.feeds.push_back({titleOf(xml), url});
        reading.leftOut += isTaken ? 0 : 1;
        known.insert(url);
    }
    if (const auto fault = source.fault())
        return *fault;
    if (reading.feeds.empty())
        return makeError<source_errors::opmlWithoutFeeds>();
    return reading;
}

QByteArray writtenOpml(const std::vector<ListedFeed>& feeds) {
    QByteArray list;
    QXmlStreamWriter xml(&list);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(u"opml"_s);
    xml.writeAttribute(u"version"_s, u"2.0"_s);
    xml.writeStartElement(u"head"_s);
    xml.writeTextElement(u"title"_s, u"Wirepane"_s);
    xml.writeEndElement();
    xml.writeStartElement(u"body"_s);
    for (const ListedFeed& feed : feeds) {
        xml.writeEmptyElement(u"outline"_s);
        xml.writeAttribute(u"type"_s, u"rss"_s);
        xml.writeAttribute(u"text"_s, feed.title);
        xml.writeAttribute(u"xmlUrl"_s, QString::fromUtf8(feed.address.toEncoded()));
    }
    xml.writeEndDocument();
    return list;
}

}  // namespace wirepane

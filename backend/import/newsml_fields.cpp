// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/newsml_fields.h"

#include "backend/import/import_errors.h"
#include "backend/import/item_rules.h"
#include "backend/import/markets.h"
#include "backend/import/news_time.h"
#include "backend/import/newsml_story.h"
#include "backend/import/plain_text.h"
#include "backend/import/wire_form.h"
#include "backend/import/xml_source.h"

#include <algorithm>
#include <array>
#include <map>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView xmlNamespace("http://www.w3.org/XML/1998/namespace");

// What stands behind the alias of a code ("stat:usable"), or behind the last slash of a URI.
QString codeOf(QStringView value) {
    const QStringView code = value.trimmed();
    return code.sliced(std::max(code.lastIndexOf(u':'), code.lastIndexOf(u'/')) + 1).toString();
}

QString attribute(const XmlSource& xml, QLatin1StringView name) {
    return xml.reader().attributes().value(name).trimmed().toString();
}

// "en" of "en-GB".
QString languageOf(const XmlSource& xml) {
    const QString tag = xml.reader().attributes().value(xmlNamespace, "lang"_L1).toString().toLower();
    return tag.section(u'-', 0, 0);
}

QString codeAttribute(const XmlSource& xml) {
    const QString code = attribute(xml, "qcode"_L1);
    return codeOf(code.isEmpty() ? attribute(xml, "uri"_L1) : code);
}

// The first of several texts, or the first in the item's own language.
class Preferred {
public:
    void offer(const QString& candidate, bool inLanguage) {
        if (candidate.isEmpty() || (!text.isEmpty() && (suits || !inLanguage)))
            return;
        text = candidate;
        suits = inLanguage;
    }
    const QString& value() const { return text; }

private:
    QString text;
    bool suits = false;
};

class NewsmlFields {
public:
    explicit NewsmlFields(XmlSource& source)
        : xml(source),
          guid(cleanLine(attribute(source, "guid"_L1))),
          version(attribute(source, "version"_L1)),
          language(languageOf(source)),
          vocabulary(source.reader().namespaceUri().toString()) {}

    void read() {
        while (xml.enterChild()) {
            if (isElement("itemMeta"_L1))
                readChildren(&NewsmlFields::takeItemMeta);
            else if (isElement("contentMeta"_L1))
                readChildren(&NewsmlFields::takeContentMeta);
            else if (isElement("contentSet"_L1))
                readContentSet();
            else if (isElement("assert"_L1))
                readInstruments();
            else
                xml.skip();
        }
    }

    Result<NewsItem> item(unsigned char service) const {
        if (guid.isEmpty())
            return makeError<import_errors::itemWithoutGuid>();
        if (const auto fault = faultOfIdentity(guid, makeError<import_errors::guidOfItem>()))
            return *fault;
        if (const auto reason = heldBack())
            return *reason;
        NewsItem item;
        item.service = service;
        item.identity = guid;
        const QString text = wireForm(!story.text.isEmpty() ? story.text : description.value());
        if (isWithdrawal(status))
            item.withdrawn = titleLine(note);
        item.title = item.withdrawn ? statedTitle() : titleOf(text);
        if (item.title.isEmpty() && !item.withdrawn)
            return makeError<import_errors::itemWithoutHeadline>();
        const Result<std::int64_t> stated = time();
        if (!stated)
            return stated.error();
        item.time = stated.value();
        item.version = versionOf(version, item.time);
        item.story = text;
        item.category = category;
        item.related = symbols;
        return item;
    }

private:
    bool isElement(QLatin1StringView name) const {
        return xml.reader().name() == name && xml.reader().namespaceUri() == vocabulary;
    }

    void readChildren(void (NewsmlFields::*take)()) {
        while (xml.enterChild()) {
            if (xml.reader().namespaceUri() == vocabulary)
                (this->*take)();
            else
                xml.skip();
        }
    }

    void takeItemMeta() {
        const QString name = xml.reader().name().toString();
        if (name == "title"_L1)
            return takeText(title);
        if (name.endsWith("Created"_L1))
            return takeTime(name);
        if (name == "embargoed"_L1) {
            embargo = cleanLine(xml.content().text);
            return;
        }
        if (name == "edNote"_L1) {
            note = textOfUnknownForm(xml.content().text.trimmed());
            return;
        }
        if (name == "itemClass"_L1)
            itemClass = codeAttribute(xml);
        else if (name == "pubStatus"_L1)
            status = codeAttribute(xml);
        xml.skip();
    }

    void takeContentMeta() {
        const QString name = xml.reader().name().toString();
        if (name == "headline"_L1)
            takeText(headline);
        else if (name == "description"_L1)
            takeText(description);
        else if (name == "slugline"_L1)
            takeText(slugline);
        else if (name == "subject"_L1)
            takeSubject();
        else if (name == "contentCreated"_L1 || name == "contentModified"_L1)
            takeTime(name);
        else
            xml.skip();
    }

    void takeText(Preferred& kept) {
        const QString lang = languageOf(xml);
        kept.offer(textOfUnknownForm(xml.content().text.trimmed()), lang.isEmpty() || lang == language);
    }

    void takeTime(const QString& name) { times.emplace(name, cleanLine(xml.content().text)); }

    // People, organisations and places are what the news is about, not what kind it is.
    void takeSubject() {
        constexpr std::array entities{QLatin1StringView("person"),  QLatin1StringView("organisation"),
                                      QLatin1StringView("geoArea"), QLatin1StringView("POI"),
                                      QLatin1StringView("object"),  QLatin1StringView("event")};
        const QString type = codeOf(attribute(xml, "type"_L1));
        Preferred name;
        while (xml.enterChild()) {
            if (isElement("name"_L1))
                takeText(name);
            else
                xml.skip();
        }
        if (category.isEmpty() && std::find(entities.begin(), entities.end(), type) == entities.end())
            category = titleLine(name.value());
    }

    void readContentSet() {
        while (xml.enterChild())
            story.takeRendition(xml);
    }

    // Instruments stand in an assertion or in its details of an organisation.
    void readInstruments() {
        while (xml.enterChild()) {
            if (isElement("organisationDetails"_L1)) {
                readInstruments();
                continue;
            }
            if (isElement("hasInstrument"_L1))
                takeInstrument();
            xml.skip();
        }
    }

    void takeInstrument() {
        if (codeOf(attribute(xml, "type"_L1)) == "ISIN"_L1)
            return;  // names a security, not what is quoted
        const unsigned char market = marketOfExchange(codeOf(attribute(xml, "market"_L1)));
        addSymbol(symbols,
                  {market != unknownMarket ? market : marketOfExchange(attribute(xml, "marketlabel"_L1)),
                   cleanLine(attribute(xml, "symbol"_L1))});
    }

    std::optional<Error> heldBack() const {
        if (const auto reason = notForPublication(status, "pubStatus"_L1))
            return reason;
        return embargo ? underEmbargo(*embargo, "embargoed"_L1) : std::nullopt;
    }

    QString statedTitle() const {
        for (const QString& candidate : {headline.value(), story.headline, title.value()}) {
            if (QString line = titleLine(candidate); !line.isEmpty())
                return line;
        }
        return {};
    }

    // A picture is not told by its caption alone.
    QString titleOf(const QString& text) const {
        if (QString stated = statedTitle(); !stated.isEmpty())
            return stated;
        const bool isText = itemClass.isEmpty() || itemClass == "text"_L1 || itemClass == "composite"_L1;
        if (!isText)
            return {};
        const QString made = titleFromStory(text);
        return made.isEmpty() ? titleLine(slugline.value()) : made;
    }

    Result<std::int64_t> time() const {
        constexpr std::array names{QLatin1StringView("versionCreated"), QLatin1StringView("contentModified"),
                                   QLatin1StringView("firstCreated"), QLatin1StringView("contentCreated")};
        std::optional<Error> unread;
        for (const QLatin1StringView name : names) {
            const auto found = times.find(name);
            if (found == times.end())
                continue;
            if (const auto moment = newsTime(found->second))
                return *moment;
            if (!unread)
                unread = makeError<import_errors::itemTimeUnread>(name, titleLine(found->second.left(60)));
        }
        return unread.value_or(makeError<import_errors::itemWithoutTime>());
    }

    XmlSource& xml;
    QString guid;
    QString version;
    QString language;
    QString vocabulary;
    QString itemClass;
    QString status;
    QString note;
    std::optional<QString> embargo;
    std::map<QString, QString, std::less<>> times;
    Preferred headline;
    Preferred title;
    Preferred slugline;
    Preferred description;
    QString category;
    NewsmlStory story;
    std::vector<CSymbolInfo> symbols;
};

}  // namespace

Result<NewsItem> newsmlItem(XmlSource& xml, unsigned char service) {
    NewsmlFields fields(xml);
    fields.read();
    return fields.item(service);
}

}  // namespace wirepane

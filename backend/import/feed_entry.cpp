// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/feed_entry.h"

#include "backend/import/import_errors.h"
#include "backend/import/item_rules.h"
#include "backend/import/news_time.h"
#include "backend/import/wire_form.h"
#include "backend/import/xml_source.h"

#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <utility>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

enum class Vocabulary { Other, Own, DublinCore, Terms, ContentModule, Atom, Xhtml };

Vocabulary vocabularyOf(QStringView name, QStringView ownNamespace) {
    if (name == ownNamespace || name.isEmpty())
        return Vocabulary::Own;
    if (name == "http://purl.org/dc/terms/"_L1)
        return Vocabulary::Terms;
    if (name.startsWith("http://purl.org/dc/"_L1))
        return Vocabulary::DublinCore;
    if (name == "http://purl.org/rss/1.0/modules/content/"_L1)
        return Vocabulary::ContentModule;
    if (name == "http://www.w3.org/2005/Atom"_L1)
        return Vocabulary::Atom;
    return name == "http://www.w3.org/1999/xhtml"_L1 ? Vocabulary::Xhtml : Vocabulary::Other;
}

enum class Role { None, Identity, Link, Title, OtherTitle, Content, Summary, Category, Published, Updated };

struct Meaning {
    Vocabulary vocabulary;
    QLatin1StringView element;
    Role role;
    FeedTextKind kind = FeedTextKind::Unknown;
};

// Elements that only Atom has are read by their attributes; "title" is in both (see kindOf).
constexpr std::array meanings{
    Meaning{Vocabulary::Own, QLatin1StringView("guid"), Role::Identity},
    Meaning{Vocabulary::Own, QLatin1StringView("id"), Role::Identity},
    Meaning{Vocabulary::Own, QLatin1StringView("link"), Role::Link},
    Meaning{Vocabulary::Own, QLatin1StringView("title"), Role::Title},
    Meaning{Vocabulary::DublinCore, QLatin1StringView("title"), Role::OtherTitle},
    Meaning{Vocabulary::Own, QLatin1StringView("content"), Role::Content, FeedTextKind::Stated},
    Meaning{Vocabulary::ContentModule, QLatin1StringView("encoded"), Role::Content, FeedTextKind::Markup},
    Meaning{Vocabulary::Xhtml, QLatin1StringView("body"), Role::Content},
    Meaning{Vocabulary::Own, QLatin1StringView("fullitem"), Role::Content},
    Meaning{Vocabulary::Own, QLatin1StringView("summary"), Role::Summary, FeedTextKind::Stated},
    Meaning{Vocabulary::Own, QLatin1StringView("description"), Role::Summary},
    Meaning{Vocabulary::DublinCore, QLatin1StringView("description"), Role::Summary},
    Meaning{Vocabulary::Own, QLatin1StringView("category"), Role::Category},
    Meaning{Vocabulary::DublinCore, QLatin1StringView("subject"), Role::Category},
    Meaning{Vocabulary::Own, QLatin1StringView("pubDate"), Role::Published},
    Meaning{Vocabulary::Own, QLatin1StringView("published"), Role::Published},
    Meaning{Vocabulary::Own, QLatin1StringView("issued"), Role::Published},
    Meaning{Vocabulary::Own, QLatin1StringView("created"), Role::Published},
    Meaning{Vocabulary::DublinCore, QLatin1StringView("date"), Role::Published},
    Meaning{Vocabulary::Terms, QLatin1StringView("issued"), Role::Published},
    Meaning{Vocabulary::Terms, QLatin1StringView("created"), Role::Published},
    Meaning{Vocabulary::Atom, QLatin1StringView("published"), Role::Published},
    Meaning{Vocabulary::Own, QLatin1StringView("updated"), Role::Updated},
    Meaning{Vocabulary::Own, QLatin1StringView("modified"), Role::Updated},
    Meaning{Vocabulary::Own, QLatin1StringView("lastBuildDate"), Role::Updated},
    Meaning{Vocabulary::Terms, QLatin1StringView("modified"), Role::Updated},
    Meaning{Vocabulary::Atom, QLatin1StringView("updated"), Role::Updated},
};

Meaning meaningOf(const QXmlStreamReader& xml, QStringView ownNamespace) {
    const Vocabulary vocabulary = vocabularyOf(xml.namespaceUri(), ownNamespace);
    const auto* found = std::find_if(meanings.begin(), meanings.end(), [&](const Meaning& meaning) {
        return meaning.vocabulary == vocabulary && xml.name() == meaning.element;
    });
    return found == meanings.end() ? Meaning{vocabulary, {}, Role::None} : *found;
}

// A namespace of its own that is not one of RSS 0.90 or 1.0 is Atom's.
FeedTextKind kindOf(const Meaning& meaning, QStringView ownNamespace) {
    const bool rss = ownNamespace.isEmpty() || ownNamespace.contains("rss"_L1, Qt::CaseInsensitive) ||
                     ownNamespace.contains("netscape"_L1) || ownNamespace.contains("userland"_L1);
    return meaning.role == Role::Title && !rss ? FeedTextKind::Stated : meaning.kind;
}

void keepFirst(QString& kept, const QString& value) {
    if (kept.isEmpty())
        kept = value;
}

// Whether a text says anything is known when it is plain; most entries have but one.
void keepFirst(FeedText& kept, FeedText&& value) {
    kept = {plainTextOf(kept), FeedText::Form::Plain};
    if (kept.raw.isEmpty())
        kept = std::move(value);
}

void keepFirst(std::optional<std::int64_t>& kept, const std::optional<std::int64_t>& value) {
    if (!kept)
        kept = value;
}

QString linkOf(XmlSource& xml) {
    const QXmlStreamAttributes attributes = xml.reader().attributes();
    const QString relation = attributes.value("rel"_L1).toString();
    const QString uri = attributes.value("href"_L1).toString();
    const QString text = xml.content().text;
    if (uri.isEmpty())
        return cleanLine(text);
    return relation.isEmpty() || relation == "alternate"_L1 ? cleanLine(uri) : QString();
}

QString categoryOf(XmlSource& xml) {
    const QXmlStreamAttributes attributes = xml.reader().attributes();
    const QString label = attributes.value("label"_L1).toString();
    const QString term = attributes.value("term"_L1).toString();
    const QString text = xml.content().text;
    return titleLine(!label.isEmpty() ? label : !term.isEmpty() ? term : text);
}

// What names the entry: its own identity, which is made unique by the feed's where it is no URI by itself;
// else its link; else its text.
QString identityOf(const FeedEntry& entry, const FeedEntry& feed) {
    if (entry.identity.contains(u':'))
        return entry.identity;
    if (!entry.identity.isEmpty())
        return (feed.link.isEmpty() ? feed.title : feed.link) + u'#' + entry.identity;
    if (!entry.link.isEmpty())
        return entry.link;
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QString& part :
         {entry.title, entry.otherTitle, plainTextOf(entry.content), plainTextOf(entry.summary)})
        hash.addData(part.toUtf8() + '\0');
    return u"sha1:"_s + QLatin1StringView(hash.result().toHex());
}

}  // namespace

void FeedEntry::takeElement(XmlSource& xml, QStringView ownNamespace) {
    const Meaning meaning = meaningOf(xml.reader(), ownNamespace);
    const FeedTextKind kind = kindOf(meaning, ownNamespace);
    switch (meaning.role) {
        case Role::Identity:
            return keepFirst(identity, cleanLine(xml.content().text));
        case Role::Link:
            return keepFirst(link, linkOf(xml));
        case Role::Title:
            return keepFirst(title, titleLine(plainTextOf(feedText(xml, kind))));
        case Role::OtherTitle:
            return keepFirst(otherTitle, titleLine(plainTextOf(feedText(xml, kind))));
        case Role::Content:
            return keepFirst(content, feedText(xml, kind));
        case Role::Summary:
            return keepFirst(summary, feedText(xml, kind));
        case Role::Category:
            return keepFirst(category, categoryOf(xml));
        case Role::Published:
            return keepFirst(published, newsTime(xml.content().text));
        case Role::Updated:
            return keepFirst(updated, newsTime(xml.content().text));
        case Role::None:
            return xml.skip();
    }
}

Result<StoreItem> feedItem(const FeedEntry& entry, const FeedEntry& feed, unsigned char service) {
    NewsItem item;
    item.service = service;
    item.identity = identityOf(entry, feed);
    if (const auto fault = faultOfIdentity(item.identity, makeError<import_errors::identityOfEntry>()))
        return *fault;
    const QString content = plainTextOf(entry.content);
    const QString story = wireForm(content.isEmpty() ? plainTextOf(entry.summary) : content);
    item.story = story;
    item.title = !entry.title.isEmpty() ? entry.title : entry.otherTitle;
    if (item.title.isEmpty())
        item.title = titleFromStory(story);
    if (item.title.isEmpty())
        return makeError<import_errors::entryWithoutTitle>();
    const auto time = entry.time() ? entry.time() : feed.time();
    if (!time)
        return makeError<import_errors::entryWithoutDate>();
    item.time = *time;
    item.version = versionOf({}, entry.updated.value_or(*time));
    item.category = entry.category;
    item.link = entry.link;
    return StoreItem(item);
}

}  // namespace wirepane

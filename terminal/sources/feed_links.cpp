// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/feed_links.h"

#include "backend/clean_text.h"
#include "backend/import/markup_tag.h"
#include "backend/import/plain_text.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype furthest = 512 * 1024;  // characters of the page

using Attributes = QHash<QString, QString>;  // names in small letters; the first of a name counts

qsizetype skipBlanks(QStringView text, qsizetype at) {
    while (at < text.size() && (isBlank(text[at]) || text[at] == u'/'))
        ++at;
    return at;
}

QStringView upTo(QStringView text, qsizetype& at, bool (*isEnd)(QChar)) {
    const auto* end = std::find_if(text.begin() + at, text.end(), isEnd);
    const QStringView found = text.sliced(at, end - text.begin() - at);
    at = end - text.begin();
    return found;
}

QString attributeValue(QStringView text, qsizetype& at) {
    const QChar first = at < text.size() ? text[at] : QChar();
    QStringView value;
    if (first == u'"' || first == u'\'') {
        const qsizetype end = text.indexOf(first, ++at);
        value = text.sliced(at, (end < 0 ? text.size() : end) - at);
        at += value.size() + 1;
    } else {
        value = upTo(text, at, isBlank);
    }
    return plainText(value.toString().replace(u'<', u"&lt;"_s));
}

// `text`: what stands in a tag behind its name.
Attributes attributesIn(QStringView text) {
    Attributes found;
    for (qsizetype at = skipBlanks(text, 0); at < text.size(); at = skipBlanks(text, at)) {
        const qsizetype start = at;
        const QString name =
            upTo(text, at, [](QChar c) { return c == u'=' || c == u'/' || isBlank(c); }).toString().toLower();
        at = skipBlanks(text, at);
        QString value;
        if (at < text.size() && text[at] == u'=') {
            while (++at < text.size() && isBlank(text[at])) {
            }
            value = attributeValue(text, at);
        }
        if (!found.contains(name))
            found.insert(name, value.trimmed());
        at = std::max(at, start + 1);
    }
    return found;
}

bool namesFeed(const Attributes& link) {
    const QStringList relations = link[u"rel"_s].toLower().simplified().split(u' ');
    const QString type = link[u"type"_s].section(u';', 0, 0).trimmed().toLower();
    return relations.contains("alternate"_L1) &&
           (type == "application/rss+xml"_L1 || type == "application/atom+xml"_L1);
}

// Where the content of this tag ends, which is no markup; behind the tag where it has none such.
qsizetype endOfContent(QStringView page, const MarkupTag& tag) {
    if (tag.closing || tag.effect != TagEffect::Hidden)
        return tag.end;
    const qsizetype end = page.indexOf(u"</%1"_s.arg(tag.name), tag.end, Qt::CaseInsensitive);
    return end < 0 ? page.size() : end;
}

}  // namespace

std::vector<FeedLink> feedLinks(QStringView page, const QUrl& pageAddress) {
    page = page.left(furthest);
    std::vector<FeedLink> links;
    QUrl base = pageAddress;
    MarkupTags tags(page, Tags::All);
    for (qsizetype at = page.indexOf(u'<'); at >= 0 && links.size() < mostFeedLinks;
         at = page.indexOf(u'<', at)) {
        const MarkupTag tag = tags.tagAt(at);
        if (tag.end == 0) {
            ++at;
            continue;
        }
        const auto isNamed = [&](QLatin1StringView name) {
            return !tag.closing && tag.name.compare(name, Qt::CaseInsensitive) == 0;
        };
        if (isNamed("body"_L1))
            break;
        const qsizetype behindName = at + 1 + tag.name.size();
        const Attributes attributes = isNamed("link"_L1) || isNamed("base"_L1)
                                          ? attributesIn(page.sliced(behindName, tag.end - 1 - behindName))
                                          : Attributes();
        const QUrl target = base.resolved(QUrl(attributes[u"href"_s]));
        const bool isOfTheWeb = target.isValid() && !target.host().isEmpty() &&
                                (target.scheme() == "http"_L1 || target.scheme() == "https"_L1);
        const auto isSame = [&](const FeedLink& link) { return link.address == target; };
        if (isOfTheWeb && isNamed("base"_L1))
            base = target;
        else if (isOfTheWeb && namesFeed(attributes) && std::none_of(links.begin(), links.end(), isSame))
            links.push_back({cleanTitle(attributes[u"title"_s]), target});
        at = endOfContent(page, tag);
    }
    return links;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/feed_reader.h"

#include "backend/import/feed_entry.h"
#include "backend/import/import_errors.h"
#include "backend/import/source_size.h"
#include "backend/import/xml_source.h"

#include <algorithm>
#include <array>
#include <optional>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView rdfNamespace("http://www.w3.org/1999/02/22-rdf-syntax-ns#");

// The feed's own date may stand behind its entries. Those that wait for it are not kept meanwhile, however
// many they are, but read again when all that the feed says is known.
class FeedReading {
public:
    FeedReading(QIODevice& document, const ReadOptions& readOptions, const ItemVisitor& visitor)
        : source(document), options(readOptions), visit(visitor) {}

    void read() {
        XmlSource xml(options.limits.record);
        if (const Done opened = xml.open(source); !opened) {
            visit({opened.error(), makeError<import_errors::atLine>(1), 0});
            return;
        }
        if (xml.enterChild())
            readContainer(xml);
        const qint64 end = xml.bytesRead();
        if (going && lastWaiting > 0)
            readWaiting(end);
        if (const auto fault = xml.fault(); going && fault)
            visit({*fault, makeError<import_errors::atLine>(xml.reader().lineNumber()), end});
    }

private:
    // The root or a channel: entries, and what the feed says of itself.
    void readContainer(XmlSource& xml) {
        const QString root = xml.reader().namespaceUri().toString();
        const bool isRdf = root == rdfNamespace;
        while (going && !isDone() && xml.enterChild()) {
            const QStringView name = xml.reader().name();
            if (name == "item"_L1 || name == "entry"_L1)
                readEntry(xml);
            else if (name == "channel"_L1)
                readContainer(xml);
            else if (secondEnd)
                xml.skip();
            else
                feed.takeElement(xml, isRdf ? xml.reader().namespaceUri().toString() : root);
        }
    }

    void readEntry(XmlSource& xml) {
        FeedEntry entry;
        entry.identity = xml.reader().attributes().value(rdfNamespace, "about"_L1).toString();
        const QString own = xml.reader().namespaceUri().toString();
        while (xml.enterChild())
            entry.takeElement(xml, own);
        if (xml.fault())
            return;  // cut off in the middle
        ++count;
        if (secondEnd) {
            if (!entry.time())
                handOver(entry, *secondEnd);
        } else if (!entry.time() && !feed.time()) {
            lastWaiting = count;
        } else {
            handOver(entry, xml.bytesRead());
        }
    }

    void readWaiting(qint64 end) {
        source.seek(0);
        XmlSource xml(options.limits.record);
        secondEnd = end;
        count = 0;
        if (xml.open(source) && xml.enterChild())
            readContainer(xml);
    }

    bool isDone() const { return secondEnd && count == lastWaiting; }

    // Markup takes as long to be made into text as XML to be read.
    void handOver(const FeedEntry& entry, qint64 position) {
        const QString name = entry.identity.isEmpty() ? entry.link : entry.identity;
        SourceItem item{StoreItem(), placeOfItem(count, name.left(200)), position};
        item.rest = [entry, feed = feed, service = options.service] {
            return feedItem(entry, feed, service);
        };
        item.sizeOfRest = entry.content.raw.size() + entry.summary.raw.size();
        if (!options.leavesRest)
            item.finish();
        going = visit(std::move(item));
    }

    QIODevice& source;
    const ReadOptions& options;
    const ItemVisitor& visit;
    FeedEntry feed;
    qsizetype count = 0;
    qsizetype lastWaiting = 0;  // 0: none waits
    std::optional<qint64>
        secondEnd;  // when those that wait are read: how far the source had been read before
    bool going = true;
};

}  // namespace

bool isRss(const SourceHead& head) {
    constexpr std::array parts{"channel"_L1, "item"_L1, "image"_L1, "textinput"_L1};
    const XmlStart start = head.xmlStart();
    const bool holdsFeed = std::find(parts.begin(), parts.end(), start.firstChild) != parts.end();
    return start.root == "rss"_L1 || (start.root == "RDF"_L1 && holdsFeed);
}

bool isAtom(const SourceHead& head) {
    constexpr std::array vocabularies{QLatin1StringView(), "http://www.w3.org/2005/Atom"_L1,
                                      "http://purl.org/atom/ns#"_L1};
    const XmlStart start = head.xmlStart();
    return start.root == "feed"_L1 &&
           std::find(vocabularies.begin(), vocabularies.end(), start.rootNamespace) != vocabularies.end();
}

Done readFeed(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    if (const auto fault = faultOfSize(source, options.limits.file))
        return *fault;
    FeedReading(source, options, visit).read();
    return Nothing{};
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/feed_reader.h"

#include "backend/import/feed_entry.h"
#include "backend/import/import_errors.h"
#include "backend/import/whole_source.h"
#include "backend/import/xml_source.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView rdfNamespace("http://www.w3.org/1999/02/22-rdf-syntax-ns#");

class FeedReading {
public:
    FeedReading(const ReadOptions& readOptions, const ItemVisitor& visitor)
        : options(readOptions), visit(visitor) {}

    void read(const QByteArray& source) {
        const Done opened = xml.open(source);
        if (!opened) {
            visit({opened.error(), makeError<import_errors::atLine>(1), 0});
            return;
        }
        if (xml.enterChild())
            readContainer();
        for (const Waiting& waiting : std::exchange(undated, {})) {
            if (going)
                handOver(waiting.entry, waiting.number);
        }
        if (const auto fault = xml.fault(); going && fault)
            visit({*fault, makeError<import_errors::atLine>(xml.reader().lineNumber()), position()});
    }

private:
    struct Waiting {
        FeedEntry entry;
        qsizetype number;
    };

    // The root or a channel: entries, and what the feed says of itself.
    void readContainer() {
        const QString root = xml.reader().namespaceUri().toString();
        const bool isRdf = root == rdfNamespace;
        while (going && xml.enterChild()) {
            const QStringView name = xml.reader().name();
            if (name == "item"_L1 || name == "entry"_L1)
                readEntry();
            else if (name == "channel"_L1)
                readContainer();
            else
                feed.takeElement(xml, isRdf ? xml.reader().namespaceUri().toString() : root);
        }
    }

    void readEntry() {
        FeedEntry entry;
        entry.identity = xml.reader().attributes().value(rdfNamespace, "about"_L1).toString();
        const QString own = xml.reader().namespaceUri().toString();
        while (xml.enterChild())
            entry.takeElement(xml, own);
        if (xml.fault())
            return;  // cut off in the middle
        ++count;
        // The feed's own date may stand behind its entries.
        if (!entry.time() && !feed.time())
            undated.push_back({std::move(entry), count});
        else
            handOver(entry, count);
    }

    void handOver(const FeedEntry& entry, qsizetype number) {
        const Result<StoreItem> content = feedItem(entry, feed, options.service);
        const QString name = entry.identity.isEmpty() ? entry.link : entry.identity;
        going = visit({content, placeOfItem(number, name.left(200)), position()});
    }

    qint64 position() const { return xml.reader().characterOffset(); }

    const ReadOptions& options;
    const ItemVisitor& visit;
    XmlSource xml;
    FeedEntry feed;
    std::vector<Waiting> undated;
    qsizetype count = 0;
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
    const Result<QByteArray> document = wholeSource(source, options.limits.file);
    if (!document)
        return document.error();
    FeedReading(options, visit).read(document.value());
    return Nothing{};
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/newsml_reader.h"

#include "backend/import/newsml_fields.h"
#include "backend/import/whole_source.h"
#include "backend/import/wire_form.h"
#include "backend/import/xml_source.h"

#include <algorithm>
#include <array>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

// Items that hold no news of their own.
struct OtherItem {
    QLatin1StringView name;
    QLatin1StringView holds;
};

constexpr std::array otherItems{
    OtherItem{QLatin1StringView("packageItem"), QLatin1StringView("a package of links to news items")},
    OtherItem{QLatin1StringView("conceptItem"), QLatin1StringView("a concept")},
    OtherItem{QLatin1StringView("knowledgeItem"), QLatin1StringView("a set of concepts")},
    OtherItem{QLatin1StringView("planningItem"), QLatin1StringView("a plan of coverage")},
    OtherItem{QLatin1StringView("catalogItem"), QLatin1StringView("a catalogue of code lists")},
};

const OtherItem* otherItem(QStringView name) {
    const auto* found = std::find_if(otherItems.begin(), otherItems.end(),
                                     [name](const OtherItem& item) { return name == item.name; });
    return found == otherItems.end() ? nullptr : found;
}

class NewsmlReading {
public:
    NewsmlReading(const ReadOptions& readOptions, const ItemVisitor& visitor)
        : options(readOptions), visit(visitor) {}

    void read(const QByteArray& source) {
        const Done opened = xml.open(source);
        if (!opened) {
            visit({Error{opened.error()}, u"line 1"_s, 0});
            return;
        }
        if (xml.enterChild())
            readElement();
        if (going && !xml.fault().isEmpty())
            visit({Error{xml.fault()}, u"line %1"_s.arg(xml.reader().lineNumber()), position()});
        else if (going && count == 0)
            visit({Error{u"The message holds no item."_s}, u"the end"_s, position()});
    }

private:
    // A message, a set of items in it, or an item.
    void readElement() {
        const QString name = xml.reader().name().toString();
        const QString guid = cleanLine(xml.reader().attributes().value("guid"_L1));
        if (name == "newsMessage"_L1 || name == "itemSet"_L1) {
            while (going && xml.enterChild())
                readElement();
        } else if (name == "newsItem"_L1) {
            const Result<NewsItem> item = newsmlItem(xml, options.service);
            handOver(item ? Result<StoreItem>(StoreItem(item.value())) : Error{item.error()}, guid);
        } else if (const OtherItem* other = otherItem(name)) {
            xml.skip();
            handOver(Error{u"The <%1> is %2, not a news item."_s.arg(name, other->holds)}, guid);
        } else {
            xml.skip();
        }
    }

    // An item that the end of the document cuts off is part of what is wrong with the document.
    void handOver(const Result<StoreItem>& content, const QString& guid) {
        if (!xml.fault().isEmpty())
            return;
        ++count;
        const QString place = u"item %1"_s.arg(count);
        going =
            visit({content, guid.isEmpty() ? place : place + u" ("_s + guid.left(200) + u')', position()});
    }

    qint64 position() const { return xml.reader().characterOffset(); }

    const ReadOptions& options;
    const ItemVisitor& visit;
    XmlSource xml;
    qsizetype count = 0;
    bool going = true;
};

}  // namespace

bool isNewsml(const SourceHead& head) {
    const XmlStart start = head.xmlStart();
    const QString& name = start.root;
    const bool isOwn = start.rootNamespace.isEmpty() ||
                       start.rootNamespace.startsWith("http://iptc.org/std/nar/"_L1, Qt::CaseInsensitive);
    return isOwn && (name == "newsMessage"_L1 || name == "newsItem"_L1 || otherItem(name) != nullptr);
}

Done readNewsml(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    const Result<QByteArray> document = wholeSource(source, options.limits.file);
    if (!document)
        return Error{document.error()};
    NewsmlReading(options, visit).read(document.value());
    return Nothing{};
}

}  // namespace wirepane

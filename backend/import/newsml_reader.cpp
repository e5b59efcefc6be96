// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/newsml_reader.h"

#include "backend/import/import_errors.h"
#include "backend/import/newsml_fields.h"
#include "backend/import/source_size.h"
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
    Phrase (*holds)();
};

constexpr std::array otherItems{
    OtherItem{QLatin1StringView("packageItem"), makeError<import_errors::packageOfLinks>},
    OtherItem{QLatin1StringView("conceptItem"), makeError<import_errors::loneConcept>},
    OtherItem{QLatin1StringView("knowledgeItem"), makeError<import_errors::setOfConcepts>},
    OtherItem{QLatin1StringView("planningItem"), makeError<import_errors::planOfCoverage>},
    OtherItem{QLatin1StringView("catalogItem"), makeError<import_errors::catalogueOfCodes>},
};

const OtherItem* otherItem(QStringView name) {
    const auto* found = std::find_if(otherItems.begin(), otherItems.end(),
                                     [name](const OtherItem& item) { return name == item.name; });
    return found == otherItems.end() ? nullptr : found;
}

class NewsmlReading {
public:
    NewsmlReading(const ReadOptions& readOptions, const ItemVisitor& visitor)
        : options(readOptions), visit(visitor), xml(readOptions.limits.record) {}

    void read(QIODevice& source) {
        const Done opened = xml.open(source);
        if (!opened) {
            visit({opened.error(), makeError<import_errors::atLine>(1), 0});
            return;
        }
        if (xml.enterChild())
            readElement();
        if (const auto fault = xml.fault(); going && fault)
            visit({*fault, makeError<import_errors::atLine>(xml.reader().lineNumber()), xml.bytesRead()});
        else if (going && count == 0)
            visit({makeError<import_errors::messageEmpty>(), makeError<import_errors::atEnd>(),
                   xml.bytesRead()});
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
            handOver(item ? Result<StoreItem>(StoreItem(item.value())) : item.error(), guid);
        } else if (const OtherItem* other = otherItem(name)) {
            xml.skip();
            handOver(makeError<import_errors::otherNewsml>(name, other->holds()), guid);
        } else {
            xml.skip();
        }
    }

    // An item that the end of the document cuts off is part of what is wrong with the document.
    void handOver(const Result<StoreItem>& content, const QString& guid) {
        if (xml.fault())
            return;
        ++count;
        going = visit({content, placeOfItem(count, guid.left(200)), xml.bytesRead()});
    }

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
    if (const auto fault = faultOfSize(source, options.limits.file))
        return *fault;
    NewsmlReading(options, visit).read(source);
    return Nothing{};
}

}  // namespace wirepane

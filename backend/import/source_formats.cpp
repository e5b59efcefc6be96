// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_formats.h"

#include "backend/import/feed_reader.h"
#include "backend/import/import_errors.h"
#include "backend/import/json_shape.h"
#include "backend/import/newsml_reader.h"
#include "backend/import/ninjs_source.h"
#include "backend/import/table_reader.h"
#include "backend/import/wire_form.h"

#include <algorithm>
#include <array>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestQuote = 40;
constexpr qsizetype mostFields = 5;

// The build reads the names from these lines, for the manual page.
constexpr std::array formats{
    SourceFormat{u"ninjs", u"JSON: one document, a list or one record per line",
                 u"*.json *.jsonl *.ndjson *.ninjs", isNinjs, readNinjs},
    SourceFormat{u"RSS", u"", u"*.xml *.rss *.rdf", isRss, readFeed},
    SourceFormat{u"Atom", u"", u"*.xml *.atom", isAtom, readFeed},
    SourceFormat{u"NewsML-G2", u"", u"*.xml *.newsml", isNewsml, readNewsml},
    SourceFormat{u"CSV", u"tables of symbols, categories or quotes", u"*.csv *.txt", isTable, readTable},
};

QString quoted(const QString& text) {
    return u"“"_s + titleLine(text.left(longestQuote)) + u"”"_s;
}

Error reasonOfXml(const XmlStart& xml) {
    if (xml.fault)
        return *xml.fault;
    const QString root = titleLine(xml.root.left(60));
    if (xml.rootNamespace.isEmpty())
        return makeError<import_errors::unknownXml>(root);
    return makeError<import_errors::unknownXmlOf>(root, titleLine(xml.rootNamespace.left(longestQuote)));
}

Error reasonOfJson(const QJsonObject& record) {
    const QStringList fields = record.keys().first(std::min(record.size(), mostFields));
    QStringList named;
    std::transform(fields.begin(), fields.end(), std::back_inserter(named), quoted);
    return makeError<import_errors::unknownJson>(named.join(u", "_s));
}

// What a source that no format recognises looks like.
Error reasonToRefuse(const SourceHead& head) {
    if (head.text().isEmpty())
        return makeError<import_errors::fileEmpty>();
    if (head.text().startsWith('<'))
        return reasonOfXml(head.xmlStart());
    if (const auto records = recordsInHead(head); !records.empty() && !records.front().isEmpty())
        return reasonOfJson(records.front());
    return makeError<import_errors::unknownFormat>(
        namesOfFormats(),
        quoted(QString::fromUtf8(head.text().first(std::min(head.text().size(), 4 * longestQuote)))));
}

}  // namespace

std::span<const SourceFormat> sourceFormats() {
    return formats;
}

QString namesOfFormats() {
    QStringList names;
    for (const SourceFormat& format : formats)
        names += format.name.toString();
    return names.join(u", "_s);
}

Result<const SourceFormat*> recognisedFormat(const SourceHead& head) {
    const auto* found = std::find_if(formats.begin(), formats.end(),
                                     [&](const SourceFormat& format) { return format.recognise(head); });
    if (found == formats.end())
        return reasonToRefuse(head);
    return found;
}

}  // namespace wirepane

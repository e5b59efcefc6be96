// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_format.h"

#include "backend/import/csv.h"
#include "backend/import/feed_reader.h"
#include "backend/import/newsml_reader.h"
#include "backend/import/table_reader.h"
#include "backend/import/wire_form.h"
#include "backend/import/xml_source.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <QStringDecoder>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> decoded(QStringDecoder&& decoder, const QByteArray& bytes) {
    if (!decoder.isValid())
        return std::nullopt;
    const QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional<QString>(text);
}

bool isJsonObject(QByteArrayView text) {
    QJsonParseError problem;
    QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), text.size()), &problem);
    return problem.error == QJsonParseError::NoError;
}

// A record that goes over several lines does not end on its first, and its second starts with a name, not
// with "{".
SourceFormat jsonObjectFormat(QByteArrayView text) {
    const qsizetype lineEnd = text.indexOf('\n');
    if (lineEnd < 0 || isJsonObject(text.first(lineEnd).trimmed()))
        return SourceFormat::JsonLines;
    return text.sliced(lineEnd).trimmed().startsWith('{') ? SourceFormat::JsonLines
                                                          : SourceFormat::JsonDocument;
}

Result<SourceFormat> xmlFormat(const QByteArray& head) {
    XmlSource xml;
    const Done opened = xml.open(head);
    if (!opened)
        return Error{opened.error()};
    if (!xml.enterChild()) {
        const bool cutOff = xml.reader().error() == QXmlStreamReader::PrematureEndOfDocumentError;
        return Error{cutOff ? u"The file looks like XML, but no element is found at its start."_s
                            : xml.fault()};
    }
    const QStringView root = xml.reader().name();
    if (isFeedRoot(root))
        return SourceFormat::Feed;
    if (isNewsmlRoot(root))
        return SourceFormat::Newsml;
    return Error{u"The file is XML of a kind that is not known here: its root is <%1>."_s.arg(
        titleLine(root.left(60)))};
}

Result<SourceFormat> tableFormat(const QByteArray& head) {
    const qsizetype lastLine = head.size() < recognisedFrom ? head.size() : head.lastIndexOf('\n');
    const auto text = decodedText(head.first(qMax<qsizetype>(lastLine, 0)));
    const auto header = text ? CsvReader(*text).next() : std::nullopt;
    if (header && tableKind(header->fields) != TableKind::Unknown)
        return SourceFormat::Table;
    return Error{
        u"The file is of no known format: it is neither ninjs, RSS, Atom or NewsML-G2, nor a table whose "
        u"header names its columns."_s};
}

}  // namespace

bool isUtf16(const QByteArray& bytes) {
    return bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff");
}

std::optional<QString> decodedText(const QByteArray& bytes) {
    if (isUtf16(bytes))
        return decoded(QStringDecoder(QStringDecoder::Utf16), bytes);
    if (auto text = decoded(QStringDecoder(QStringDecoder::Utf8), bytes))
        return text;
    return decoded(QStringDecoder("windows-950"), bytes);
}

Result<SourceFormat> recognisedFormat(const QByteArray& head) {
    QByteArray text = head;
    if (isUtf16(head))
        text = QString(QStringDecoder(QStringDecoder::Utf16)(head)).toUtf8();
    QByteArrayView content(text);
    if (content.startsWith("\xef\xbb\xbf"))
        content = content.sliced(3);
    content = content.trimmed();
    if (content.isEmpty())
        return Error{u"The file is empty."_s};
    if (content.startsWith('['))
        return SourceFormat::JsonList;
    if (content.startsWith('{'))
        return jsonObjectFormat(content);
    return content.startsWith('<') ? xmlFormat(head) : tableFormat(head);
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_head.h"

#include "backend/import/csv.h"
#include "backend/import/import_errors.h"
#include "backend/import/text_encoding.h"
#include "backend/import/text_pieces.h"
#include "backend/import/xml_source.h"

#include <QBuffer>

#include <utility>

namespace wirepane {

using namespace Qt::StringLiterals;

SourceHead::SourceHead(QByteArray firstBytes) : bytes(std::move(firstBytes)), content(bytes) {
    if (isUtf16(bytes)) {
        converted = QString(QStringDecoder(QStringDecoder::Utf16)(bytes)).toUtf8();
        content = converted;
    }
    content = withoutByteOrderMark(content).trimmed();
}

XmlStart SourceHead::xmlStart() const {
    if (!content.startsWith('<'))
        return {};
    XmlStart start;
    QBuffer document;
    document.setData(bytes);
    document.open(QIODevice::ReadOnly);
    XmlSource xml;
    if (const Done opened = xml.open(document); !opened) {
        start.fault = opened.error();
    } else if (xml.enterChild()) {
        start.root = xml.reader().name().toString();
        start.rootNamespace = xml.reader().namespaceUri().toString();
        if (xml.enterChild())
            start.firstChild = xml.reader().name().toString();
    } else {
        const bool cutOff = xml.reader().error() == QXmlStreamReader::PrematureEndOfDocumentError;
        start.fault = cutOff ? makeError<import_errors::xmlWithoutElement>() : *xml.fault();
    }
    return start;
}

QStringList SourceHead::csvHeader() const {
    const qsizetype lastLine = isWhole() ? bytes.size() : bytes.lastIndexOf('\n');
    QBuffer lines;
    lines.setData(bytes.first(qMax<qsizetype>(lastLine, 0)));
    lines.open(QIODevice::ReadOnly);
    auto decoder = textDecoder(lines);
    const auto header = decoder ? CsvReader(textPieces(lines, std::move(*decoder))).next() : std::nullopt;
    return header ? header->fields : QStringList();
}

}  // namespace wirepane

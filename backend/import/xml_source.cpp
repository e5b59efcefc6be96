// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/xml_source.h"

#include "backend/import/decoded_source.h"
#include "backend/import/html_entities.h"
#include "backend/import/import_errors.h"
#include "backend/import/text_encoding.h"

#include <QRegularExpression>
#include <QStringBuilder>

#include <algorithm>
#include <utility>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr int deepestNesting = 256;
constexpr int longestExpansion = 65536;  // characters that one entity may expand to
constexpr qsizetype declarationLength = 1024;

// The encoding that the XML declaration names; empty when it names none or a byte order mark says it.
QRegularExpressionMatch declaredEncoding(const QString& start) {
    static const QRegularExpression form(
        u"^\\s*<\\?xml[^>]*\\sencoding\\s*=\\s*[\"']([A-Za-z0-9._:-]+)[\"']"_s);
    return form.match(start.left(declarationLength));
}

// The decoder that the parser takes by itself.
QStringDecoder parsersDecoder(QIODevice& document) {
    const auto known = QStringConverter::encodingForData(document.peek(4), u'<');
    return QStringDecoder(known.value_or(QStringConverter::Utf8));
}

}  // namespace

void RationedSource::open(QIODevice& device) {
    source = &device;
    QIODevice::open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 RationedSource::readData(char* data, qint64 most) {
    const qint64 length = isUsedUp() ? -1 : source->read(data, std::min(most, ration - given));
    given += std::max<qint64>(length, 0);
    return length;
}

qint64 RationedSource::writeData(const char*, qint64) {
    return -1;
}

QString XmlSource::HtmlEntities::resolveUndeclaredEntity(const QString& name) {
    const char32_t character = htmlEntity(name);
    return character != 0 ? QStringView(QChar::fromUcs4(character)).toString() : QString();
}

Done XmlSource::open(QIODevice& document) {
    source = &document;
    xml.setEntityResolver(&entities);
    xml.setEntityExpansionLimit(longestExpansion);
    const QByteArray encoding =
        declaredEncoding(QString::fromLatin1(document.peek(declarationLength))).captured(1).toLatin1();
    if (encoding.isEmpty() || encoding.compare("utf-8", Qt::CaseInsensitive) == 0) {
        // A document with a wrong byte is no text, wherever the byte stands.
        const bool isText = isWellEncoded(document, parsersDecoder(document));
        bytes.open(document);
        xml.setDevice(&bytes);
        if (!isText)
            xml.raiseError(u"Encountered incorrectly encoded content."_s);
    } else {
        QStringDecoder decoder = decoderOf(encoding);
        if (!decoder.isValid())
            return makeError<import_errors::unknownEncoding>(QLatin1StringView(encoding));
        // The declaration is of the bytes that were decoded.
        TextPieces text = [pieces = textPieces(document, std::move(decoder)), isFirst = true]() mutable {
            QString piece = pieces();
            if (std::exchange(isFirst, false)) {
                const auto declared = declaredEncoding(piece);
                piece.replace(declared.capturedStart(1), declared.capturedLength(1), u"UTF-8"_s);
            }
            return piece;
        };
        decoded = std::make_unique<DecodedSource>(document, std::move(text));
        bytes.open(*decoded);
        xml.setDevice(&bytes);
    }
    return Nothing{};
}

bool XmlSource::advance() {
    bytes.renew();
    const auto token = xml.readNext();
    if (bytes.isUsedUp())
        raiseTooLong();
    else if (token == QXmlStreamReader::StartElement && ++depth > deepestNesting)
        xml.raiseError(u"elements are nested deeper than %1"_s.arg(deepestNesting));
    else if (token == QXmlStreamReader::EndElement)
        --depth;
    return !xml.atEnd();
}

void XmlSource::raiseTooLong() {
    xml.raiseError(u"a text is longer than %1 bytes"_s.arg(bytes.most()));
}

bool XmlSource::enterChild() {
    while (advance()) {
        if (xml.isStartElement())
            return true;
        if (xml.isEndElement())
            return false;
    }
    return false;
}

void XmlSource::skip() {
    const int outside = depth - 1;
    while (depth > outside && advance()) {
    }
}

XmlSource::Content XmlSource::content() {
    Content content;
    const int outside = depth - 1;
    while (depth > outside && advance()) {
        if (xml.isCharacters() || xml.isEntityReference()) {
            content.text += xml.text();
            if (content.hasChildren)
                content.tagged += xml.text().toString().toHtmlEscaped();
        } else if (xml.isStartElement()) {
            addElement(content);
        } else if (xml.isEndElement() && depth > outside) {
            content.tagged += u"</" % xml.name() % u'>';
        }
        if (std::max(content.text.size(), content.tagged.size()) > bytes.most())
            raiseTooLong();
    }
    return content;
}

void XmlSource::addElement(Content& content) {
    if (!std::exchange(content.hasChildren, true))
        content.tagged = content.text.toHtmlEscaped();
    content.tagged += u'<' % xml.name() % u'>';
}

std::optional<Error> XmlSource::fault() const {
    if (!xml.hasError())
        return std::nullopt;
    QString problem = xml.errorString();
    if (problem.endsWith(u'.'))
        problem.chop(1);
    return makeError<import_errors::xmlNotRead>(problem);
}

}  // namespace wirepane

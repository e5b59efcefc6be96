// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/feed_text.h"

#include "backend/clean_text.h"
#include "backend/import/plain_text.h"
#include "backend/import/xml_source.h"

#include <QByteArray>

#include <algorithm>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

using Form = FeedText::Form;

// A media type that is neither text nor XML says that the content is base64.
bool isBinaryType(QStringView type) {
    return type.contains(u'/') && !type.startsWith("text/"_L1) && !type.endsWith("xml"_L1);
}

// The lines of text are indented as the XML around them is, which says nothing about paragraphs. A line of
// blanks alone stays.
QString withoutIndents(const QString& text) {
    const auto isIndent = [](QChar c) { return c == u' ' || c == u'\t'; };
    const QStringView all = QStringView(text).trimmed();
    QString kept;
    kept.reserve(all.size());
    qsizetype from = 0;
    for (qsizetype at = all.indexOf(u'\n'); at >= 0; at = all.indexOf(u'\n', from)) {
        const auto* const rest = all.begin() + at + 1;
        const auto* const line = std::find_if_not(rest, all.end(), isIndent);
        const bool hasText = line != all.end() && (line->unicode() >= 0x80 || !isBlank(*line));
        kept += all.sliced(from, at + 1 - from);
        from = (hasText ? line : rest) - all.begin();
    }
    return kept.append(all.sliced(from));
}

}  // namespace

FeedText feedText(XmlSource& xml, FeedTextKind kind) {
    const QXmlStreamAttributes attributes = xml.reader().attributes();
    const QString type = attributes.value("type"_L1).toString().toLower();
    const QString mode = attributes.value("mode"_L1).toString().toLower();
    const XmlSource::Content content = xml.content();
    if (content.hasChildren)
        return {content.markup(), Form::Markup};
    if (mode == "base64"_L1 || (mode.isEmpty() && isBinaryType(type)))
        return {content.text, Form::EncodedMarkup};
    if (kind == FeedTextKind::Markup || (type.contains("html"_L1) && type != "xhtml"_L1))
        return {content.text, Form::Markup};
    const bool stated = kind == FeedTextKind::Stated || !type.isEmpty();
    return {content.text, stated ? Form::Indented : Form::Unknown};
}

QString plainTextOf(const FeedText& text) {
    switch (text.form) {
        case Form::Indented:
            return withoutIndents(text.raw);
        case Form::Unknown:
            return textOfUnknownForm(withoutIndents(text.raw));
        case Form::Markup:
            return plainText(text.raw);
        case Form::EncodedMarkup:
            return plainText(QString::fromUtf8(QByteArray::fromBase64(text.raw.toUtf8())));
        case Form::Plain:
            break;
    }
    return text.raw;
}

}  // namespace wirepane

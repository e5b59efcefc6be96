// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/newsml_story.h"

#include "backend/import/plain_text.h"
#include "backend/import/xml_source.h"

#include <QByteArray>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView xhtmlNamespace("http://www.w3.org/1999/xhtml");

QString attribute(const XmlSource& xml, QLatin1StringView name) {
    return xml.reader().attributes().value(name).trimmed().toString().toLower();
}

void addParagraph(QString& text, const QString& more) {
    if (!text.isEmpty() && !more.isEmpty())
        text += "\n\n"_L1;
    text += more;
}

}  // namespace

void NewsmlStory::takeRendition(XmlSource& xml) {
    const QStringView name = xml.reader().name();
    if (text.isEmpty() && name == "inlineXML"_L1)
        takeMarkup(xml);
    else if (text.isEmpty() && name == "inlineData"_L1)
        takeData(xml);
    else
        xml.skip();
}

// Other vocabularies (results, events, metadata) are data: their text would be a heap of words.
void NewsmlStory::takeMarkup(XmlSource& xml) {
    const bool statedHtml = attribute(xml, "contenttype"_L1).contains("html"_L1);
    while (xml.enterChild()) {
        if (xml.reader().name() == "nitf"_L1)
            takeArticle(xml);
        else if (statedHtml || xml.reader().namespaceUri() == xhtmlNamespace)
            addParagraph(text, plainText(xml.content().markup()));
        else
            xml.skip();
    }
}

// NITF repeats the headline, the byline and a summary above the story proper.
void NewsmlStory::takeArticle(XmlSource& xml) {
    while (xml.enterChild()) {
        const QStringView name = xml.reader().name();
        if (name == "body.content"_L1)
            addParagraph(text, plainText(xml.content().markup()));
        else if (name == "hl1"_L1 && headline.isEmpty())
            headline = xml.content().text;
        else if (name == "body"_L1 || name == "body.head"_L1 || name == "hedline"_L1)
            takeArticle(xml);
        else
            xml.skip();
    }
}

void NewsmlStory::takeData(XmlSource& xml) {
    const QString type = attribute(xml, "contenttype"_L1);
    const bool base64 = attribute(xml, "encoding"_L1).endsWith("base64"_L1);
    const QString content = xml.content().text;
    if (!type.isEmpty() && !type.startsWith("text/"_L1))
        return;
    const QString data = base64 ? QString::fromUtf8(QByteArray::fromBase64(content.toUtf8())) : content;
    text = type.contains("html"_L1)  ? plainText(data)
           : type == "text/plain"_L1 ? data.trimmed()
                                     : textOfUnknownForm(data.trimmed());
}

}  // namespace wirepane

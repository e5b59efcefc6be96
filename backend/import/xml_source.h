// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QIODevice>
#include <QString>
#include <QXmlStreamReader>

#include <memory>
#include <optional>

namespace wirepane {

// One XML document from outside: its encoding, HTML's named entities, and bounds on nesting and entity
// expansion. It is read a piece at a time.
class XmlSource {
public:
    // The document must be opened before anything is read; it is random-access, open for reading, stands at
    // its start and outlives this. Fails when the declared encoding is not known.
    Done open(QIODevice& document);

    // Goes to the next child of the current element; false at the end of that element or of the document.
    bool enterChild();
    // Goes to the end of the current element.
    void skip();

    // What stands in an element, and goes to its end.
    struct Content {
        QString text;  // the text in it, that of its children included
        bool hasChildren = false;

        // The same with the tags of its children, escaped as in the source.
        QString markup() const { return hasChildren ? tagged : text.toHtmlEscaped(); }

        QString tagged;  // as markup(), once there is a child
    };
    Content content();

    const QXmlStreamReader& reader() const { return xml; }
    // How far the document has been read.
    qint64 bytesRead() const { return source->pos(); }
    // What is wrong with the document; nothing when nothing is.
    std::optional<Error> fault() const;

private:
    bool advance();
    void addElement(Content& content);

    struct HtmlEntities : QXmlStreamEntityResolver {
        QString resolveUndeclaredEntity(const QString& name) override;
    };

    HtmlEntities entities;
    QIODevice* source = nullptr;
    std::unique_ptr<QIODevice> decoded;  // where the parser does not decode by itself
    QXmlStreamReader xml;
    int depth = 0;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/result.h"

#include <QIODevice>
#include <QString>
#include <QXmlStreamReader>

#include <memory>
#include <optional>

namespace wirepane {

// Hands out a device's bytes, up to a ration at a time: what asks for more is cut off.
class RationedSource : public QIODevice {
public:
    explicit RationedSource(qint64 bytes) : ration(bytes) {}

    // The device outlives this.
    void open(QIODevice& device);
    void renew() { given = 0; }
    bool isUsedUp() const { return given >= ration; }
    qint64 most() const { return ration; }

    bool isSequential() const override { return true; }
    bool atEnd() const override { return source->atEnd(); }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char* data, qint64 length) override;

private:
    QIODevice* source = nullptr;
    const qint64 ration;
    qint64 given = 0;
};

// One XML document from outside: its encoding, HTML's named entities, and bounds on nesting, entity expansion
// and the length of a text. It is read a piece at a time.
class XmlSource {
public:
    // `mostOfText`: in bytes, of a text together with its element.
    explicit XmlSource(qint64 mostOfText = ReadLimits().record) : bytes(mostOfText) {}

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
    void raiseTooLong();
    void addElement(Content& content);

    struct HtmlEntities : QXmlStreamEntityResolver {
        QString resolveUndeclaredEntity(const QString& name) override;
    };

    HtmlEntities entities;
    QIODevice* source = nullptr;
    std::unique_ptr<QIODevice> decoded;  // where the parser does not decode by itself
    RationedSource bytes;
    QXmlStreamReader xml;
    int depth = 0;
};

}  // namespace wirepane

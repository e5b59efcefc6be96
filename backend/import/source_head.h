// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

namespace wirepane {

// How many of a source's first bytes are enough to recognise it.
constexpr qint64 recognisedFrom = 65536;

// How an XML document starts. All empty for what does not start with "<".
struct XmlStart {
    QString root;                // local name
    QString rootNamespace;       // URI; empty: none
    QString firstChild;          // local name of the root's first child; empty: none in the head
    std::optional<Error> fault;  // why no root was found
};

// The first bytes of a source, as formats are recognised by them. Each look is taken anew. Any thread.
class SourceHead {
public:
    // At most recognisedFrom bytes; as many of them as the source has.
    explicit SourceHead(QByteArray firstBytes);
    SourceHead(const SourceHead&) = delete;
    SourceHead& operator=(const SourceHead&) = delete;

    // UTF-16 with a byte order mark as UTF-8, any other encoding as it is; without mark and blanks around.
    QByteArrayView text() const { return content; }
    // Nothing but the source's end follows.
    bool isWhole() const { return bytes.size() < recognisedFrom; }

    XmlStart xmlStart() const;
    // The first line of comma-separated values, a cut one left out; empty where it is no text.
    QStringList csvHeader() const;

private:
    QByteArray bytes;
    QByteArray converted;  // empty unless the bytes are UTF-16
    QByteArrayView content;
};

}  // namespace wirepane

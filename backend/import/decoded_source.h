// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/text_pieces.h"

#include <QByteArray>
#include <QIODevice>

namespace wirepane {

// A text as bytes of UTF-8, to be read one after the other. Its position is that in the source from which the
// text comes, as far as that has been read.
class DecodedSource : public QIODevice {
public:
    // The source outlives this.
    DecodedSource(const QIODevice& source, TextPieces text);

    bool isSequential() const override { return true; }
    bool atEnd() const override;
    qint64 pos() const override { return encoded.pos(); }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char* data, qint64 length) override;

private:
    const QIODevice& encoded;
    TextPieces pieces;
    QByteArray decoded;
    qsizetype given = 0;  // of these
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/decoded_source.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace wirepane {

namespace {

constexpr qint64 pieceSize = 32768;  // bytes

}  // namespace

DecodedSource::DecodedSource(QIODevice& source, QStringDecoder decoder, Start start)
    : encoded(source), decode(std::move(decoder)), changeStart(std::move(start)) {
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool DecodedSource::atEnd() const {
    return given == decoded.size() && encoded.atEnd();
}

qint64 DecodedSource::readData(char* data, qint64 most) {
    while (given == decoded.size() && !encoded.atEnd()) {
        const QByteArray piece = encoded.read(pieceSize);
        if (piece.isEmpty())
            break;
        QString text = decode(piece);
        if (const Start change = std::exchange(changeStart, {}))
            change(text);
        decoded = text.toUtf8();
        given = 0;
    }
    const qint64 length = std::min<qint64>(most, decoded.size() - given);
    std::copy_n(decoded.constData() + given, length, data);
    given += length;
    return length;
}

qint64 DecodedSource::writeData(const char*, qint64) {
    return -1;
}

bool isWellEncoded(QIODevice& source, QStringDecoder decoder) {
    const qint64 start = source.pos();
    QByteArray piece(pieceSize, Qt::Uninitialized);
    std::vector<QChar> text(std::size_t(decoder.requiredSpace(pieceSize)));
    for (qint64 length = 1; length > 0 && !decoder.hasError();) {
        length = source.read(piece.data(), piece.size());
        decoder.appendToBuffer(text.data(), QByteArrayView(piece).first(std::max<qint64>(length, 0)));
    }
    source.seek(start);
    return !decoder.hasError();
}

}  // namespace wirepane

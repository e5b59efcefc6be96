// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/decoded_source.h"

#include <algorithm>
#include <utility>

namespace wirepane {

DecodedSource::DecodedSource(const QIODevice& source, TextPieces text)
    : encoded(source), pieces(std::move(text)), decoded(pieces().toUtf8()) {
    open(QIODevice::ReadOnly);
}

bool DecodedSource::atEnd() const {
    return decoded.isEmpty() && QIODevice::atEnd();
}

// The next piece is read before it is asked for, so that the end is known when it is reached.
qint64 DecodedSource::readData(char* data, qint64 most) {
    const qint64 length = std::min<qint64>(most, decoded.size() - given);
    std::copy_n(decoded.constData() + given, length, data);
    given += length;
    if (given == decoded.size()) {
        decoded = pieces().toUtf8();
        given = 0;
    }
    return length;
}

qint64 DecodedSource::writeData(const char*, qint64) {
    return -1;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/text_pieces.h"

#include "backend/import/text_encoding.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace wirepane {

namespace {

constexpr qint64 pieceSize = 32768;  // bytes

class Decoding {
public:
    Decoding(QIODevice& source, QStringDecoder decoder) : encoded(source), decode(std::move(decoder)) {}

    QString next() {
        QString text;
        while (text.isEmpty()) {
            const QByteArray bytes = encoded.read(pieceSize);
            text = std::exchange(half, {}) + decode(bytes);
            if (bytes.isEmpty())
                return text;
            // The other half of the last character is in the next piece.
            if (!text.isEmpty() && text.back().isHighSurrogate()) {
                half = text.back();
                text.chop(1);
            }
        }
        return text;
    }

private:
    QIODevice& encoded;
    QStringDecoder decode;
    QString half;
};

}  // namespace

TextPieces textPieces(QIODevice& source, QStringDecoder decoder) {
    const auto decoding = std::make_shared<Decoding>(source, std::move(decoder));
    return [decoding] { return decoding->next(); };
}

std::optional<QStringDecoder> textDecoder(QIODevice& source, const QStringList& encodings) {
    const auto fitting = [&source](const auto& made) -> std::optional<QStringDecoder> {
        return made().isValid() && isWellEncoded(source, made()) ? std::optional(made()) : std::nullopt;
    };
    for (const QString& name : encodings) {
        if (auto found = fitting([&name] { return decoderOf(name.toLatin1()); }))
            return found;
    }
    if (!encodings.isEmpty())
        return std::nullopt;
    if (isUtf16(source.peek(2)))
        return fitting([] { return QStringDecoder(QStringDecoder::Utf16); });
    auto utf8 = fitting([] { return QStringDecoder(QStringDecoder::Utf8); });
    return utf8 ? std::move(utf8) : fitting([] { return QStringDecoder("windows-950"); });
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

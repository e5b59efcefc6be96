// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QStringDecoder>

#include <functional>

namespace wirepane {

// A source in whatever encoding, read as UTF-8 without a byte order mark, a piece at a time. What cannot be
// decoded becomes the replacement character.
class DecodedSource : public QIODevice {
public:
    // Changes the first piece of the text, which is as long as the source is or some thousand bytes.
    using Start = std::function<void(QString& text)>;

    // The source is open for reading, outlives this, and is read from where it stands.
    DecodedSource(QIODevice& source, QStringDecoder decoder, Start start = {});

    bool isSequential() const override { return true; }
    bool atEnd() const override;

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char* data, qint64 length) override;

private:
    QIODevice& encoded;
    QStringDecoder decode;
    Start changeStart;
    QByteArray decoded;
    qsizetype given = 0;  // of these
};

// Whether all that a source holds from where it stands is of the decoder's encoding; the source stands there
// again. A last character that is cut off is forgiven.
bool isWellEncoded(QIODevice& source, QStringDecoder decoder);

}  // namespace wirepane

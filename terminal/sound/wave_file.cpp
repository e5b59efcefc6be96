// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sound/wave_file.h"

#include "terminal/sound/sound_errors.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <optional>

namespace wirepane {

namespace {

constexpr qint64 largestFile = 2 * 1024 * 1024;
constexpr qsizetype headerLength = 12;  // "RIFF", a length, "WAVE"
constexpr qsizetype chunkHead = 8;      // a name and a length
constexpr qsizetype formatLength = 16;
constexpr int plainSamples = 1;

template <class Number>
Number numberAt(const QByteArray& bytes, qsizetype place) {
    return qFromLittleEndian<Number>(bytes.constData() + place);
}

struct Sound {
    quint32 bytesPerSecond = 0;
    qsizetype bytes = 0;  // of samples
};

// Bytes of a second; nothing: no plain samples.
std::optional<quint32> rateOf(const QByteArray& format) {
    const int bits = format.size() < formatLength ? 0 : numberAt<quint16>(format, 14);
    if ((bits != 8 && bits != 16) || numberAt<quint16>(format, 0) != plainSamples)
        return std::nullopt;
    const quint32 channels = numberAt<quint16>(format, 2);
    const quint32 rate = numberAt<quint32>(format, 4);
    if (channels < 1 || channels > 2 || rate < 8000 || rate > 96'000)
        return std::nullopt;
    return rate * channels * quint32(bits / 8);
}

// What the chunks say, none of which is believed to be longer than the file.
std::optional<Sound> soundIn(const QByteArray& file) {
    if (file.size() < headerLength || !file.startsWith("RIFF") || file.mid(8, 4) != "WAVE")
        return std::nullopt;
    std::optional<quint32> rate;
    for (qsizetype at = headerLength; at + chunkHead <= file.size();) {
        const QByteArray name = file.mid(at, 4);
        const qint64 length = numberAt<quint32>(file, at + 4);
        at += chunkHead;
        if (name == "fmt ")
            rate = rateOf(file.mid(at, qsizetype(length)));
        else if (name == "data")
            return rate && length <= file.size() - at ? std::optional(Sound{*rate, qsizetype(length)})
                                                      : std::nullopt;
        if (length > file.size() - at)
            return std::nullopt;
        at += length + length % 2;
    }
    return std::nullopt;
}

}  // namespace

Done checkWaveFile(const QString& path) {
    const QString shown = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return makeError<sound_errors::notRead>(shown, file.errorString());
    if (file.size() > largestFile)
        return makeError<sound_errors::tooLong>(shown, longestSound);
    const auto sound = soundIn(file.readAll());
    if (!sound || sound->bytes == 0)
        return makeError<sound_errors::noWave>(shown);
    if (sound->bytes > qsizetype(sound->bytesPerSecond) * longestSound)
        return makeError<sound_errors::tooLong>(shown, longestSound);
    return Nothing{};
}

}  // namespace wirepane

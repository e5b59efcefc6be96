// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sound/wave_file.h"

#include "terminal/sound/alert_sounds.h"
#include "terminal/sound/sound_errors.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

template <class Number>
QByteArray bytesOf(Number number) {
    QByteArray bytes(sizeof(Number), 0);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray& name, const QByteArray& content) {
    return name + bytesOf(quint32(content.size())) + content + QByteArray(content.size() % 2, 0);
}

struct Format {
    quint16 kind = 1;
    quint16 channels = 1;
    quint32 rate = 8000;
    quint16 bits = 16;

    QByteArray bytes() const {
        return bytesOf(kind) + bytesOf(channels) + bytesOf(rate) + bytesOf(rate * channels * bits / 8) +
               bytesOf(quint16(channels * bits / 8)) + bytesOf(bits);
    }
};

QByteArray wave(const QByteArray& chunks) {
    return "RIFF" + bytesOf(quint32(chunks.size() + 4)) + "WAVE" + chunks;
}

class WaveFile : public testing::Test {
protected:
    const ErrorCode* faultOf(const QByteArray& bytes) {
        QFile file(folder.filePath(u"sound.wav"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        const Done can = checkWaveFile(file.fileName());
        return can ? nullptr : can.error().code;
    }
    QTemporaryDir folder;
};

TEST_F(WaveFile, IsWhatHoldsAShortSoundOfPlainSamples) {
    const QByteArray second(16'000, 1);
    const QByteArray format = chunk("fmt ", Format{}.bytes());
    struct Case {
        const char* what;
        QByteArray bytes;
        const ErrorCode* fault;
    };
    const Case cases[] = {
        {"one second", wave(format + chunk("data", second)), nullptr},
        {"other chunks before it, of odd lengths",
         wave(chunk("LIST", "abc") + format + chunk("fact", "abcd") + chunk("data", second)), nullptr},
        {"two channels of 8 bits",
         wave(chunk("fmt ", Format{1, 2, 44'100, 8}.bytes()) + chunk("data", second)), nullptr},
        {"five seconds", wave(format + chunk("data", QByteArray(80'000, 1))), nullptr},
        {"longer", wave(format + chunk("data", QByteArray(80'002, 1))), &sound_errors::tooLong},
        {"larger than any", wave(format + chunk("data", QByteArray(3'000'000, 1))), &sound_errors::tooLong},
        {"compressed", wave(chunk("fmt ", Format{85}.bytes()) + chunk("data", second)),
         &sound_errors::noWave},
        {"24 bits", wave(chunk("fmt ", Format{1, 1, 8000, 24}.bytes()) + chunk("data", second)),
         &sound_errors::noWave},
        {"no channel", wave(chunk("fmt ", Format{1, 0}.bytes()) + chunk("data", second)),
         &sound_errors::noWave},
        {"no format", wave(chunk("data", second)), &sound_errors::noWave},
        {"a short format", wave(chunk("fmt ", "ab") + chunk("data", second)), &sound_errors::noWave},
        {"no samples", wave(format + chunk("data", {})), &sound_errors::noWave},
        {"cut off", wave(format + chunk("data", second)).chopped(8), &sound_errors::noWave},
        {"a length beyond all files", wave("LIST" + bytesOf(quint32(-1)) + format), &sound_errors::noWave},
        {"empty", {}, &sound_errors::noWave},
        {"no sound", "ID3 and what follows it", &sound_errors::noWave},
    };
    for (const Case& one : cases)
        EXPECT_EQ(faultOf(one.bytes), one.fault) << one.what;
    EXPECT_EQ(checkWaveFile(folder.filePath(u"gone.wav"_s)).error().code, &sound_errors::notRead);
}

TEST_F(WaveFile, IsEachToneOfTheProgram) {
    for (const QString& tone : AlertSounds::tones())
        EXPECT_TRUE(checkWaveFile(u":/tones/%1.wav"_s.arg(tone))) << tone.toStdString();
}

TEST_F(WaveFile, IsNotNeededForTheDesktopsSound) {
    int beeps = 0;
    AlertSounds sounds([&beeps] { ++beeps; });
    for (const QString& sound : {u"desktop"_s, u"../relative.wav"_s, QString()})
        sounds.play(sound);
    EXPECT_EQ(beeps, 3);
}

}  // namespace
}  // namespace wirepane

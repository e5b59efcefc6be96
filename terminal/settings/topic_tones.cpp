// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/topic_tones.h"

#include <QtMath>

#include <array>
#include <cmath>

namespace wirepane {

namespace {

constexpr std::size_t voiceCount = static_cast<std::size_t>(TopicVoice::Count);
constexpr std::size_t schemeCount = 3;

struct Hue {
    int angle;
    std::array<std::array<QRgb, voiceCount>, schemeCount> colours;
};

// Made by a rule that a test holds: each voice has a lightness and a chroma in every scheme; where the
// contrast with one of the six grounds of rows is too low, the lightness moves away from them until it is
// not.
constexpr std::array<Hue, topicHueCount> hues{{
    {15,
     {{{0xffae3b4c, 0xff853942, 0xff83595c},
       {0xfff39098, 0xfffab6ba, 0xffcca6a8},
       {0xfffeb9bd, 0xfffed1d3, 0xffe5c2c4}}}},
    {35,
     {{{0xffae4024, 0xff853c2a, 0xff825b51},
       {0xfff3947c, 0xfffab8a8, 0xffcca89e},
       {0xfffdbcab, 0xfffed3c8, 0xffe5c4bb}}}},
    {52,
     {{{0xff9f4d06, 0xff814112, 0xff805d49},
       {0xffed9a67, 0xfff5bc9b, 0xffc9aa97},
       {0xffffbd96, 0xffffd4bb, 0xffe2c6b5}}}},
    {72,
     {{{0xff8b5a09, 0xff764b00, 0xff786041},
       {0xffe0a454, 0xffebc391, 0xffc3ad92},
       {0xfffdbf70, 0xfffed7a8, 0xffddc9b0}}}},
    {98,
     {{{0xff746407, 0xff635500, 0xff6d6540},
       {0xffc5b250, 0xffd8cc8f, 0xffb8b291},
       {0xffdfcb6a, 0xffebdfa6, 0xffd1cbae}}}},
    {128,
     {{{0xff4c6f00, 0xff446015, 0xff5a6947},
       {0xff9bc06a, 0xffbbd59d, 0xffa9b799},
       {0xffb4da83, 0xffd0e8b3, 0xffc3d0b4}}}},
    {152,
     {{{0xff08743a, 0xff196537, 0xff4a6b52},
       {0xff72c78b, 0xffa4dab1, 0xff9dbaa3},
       {0xff8ce1a4, 0xffbaedc6, 0xffb8d3be}}}},
    {178,
     {{{0xff057262, 0xff066455, 0xff3d6c62},
       {0xff45cab1, 0xff90dcca, 0xff93bbb1},
       {0xff64e4ca, 0xffa7efde, 0xffb0d4ca}}}},
    {205,
     {{{0xff0b6f78, 0xff00616a, 0xff3a6c72},
       {0xff31c7d5, 0xff89dae3, 0xff90babf},
       {0xff55e1f0, 0xffa2edf6, 0xffadd3d7}}}},
    {230,
     {{{0xff066d90, 0xff025e7d, 0xff41697d},
       {0xff51bfee, 0xff93d5f5, 0xff95b7c9},
       {0xff86d7fd, 0xffb7e6fe, 0xffb1d0e0}}}},
    {255,
     {{{0xff1964b7, 0xff28568e, 0xff4f6684},
       {0xff7cb4fc, 0xffa8ceff, 0xff9eb3ce},
       {0xffa8ceff, 0xffcae0fd, 0xffbacce5}}}},
    {278,
     {{{0xff565abb, 0xff494d8e, 0xff5d6284},
       {0xff9fa9fc, 0xffbec6ff, 0xffaaafce},
       {0xffc0c8fe, 0xffd6dcfe, 0xffc4c9e5}}}},
    {303,
     {{{0xff7b4eaf, 0xff614585, 0xff6c5f80},
       {0xffc09ef0, 0xffd5bef6, 0xffb7abc9},
       {0xffd9c0fe, 0xffe6d5ff, 0xffd1c6e2}}}},
    {328,
     {{{0xff964595, 0xff743e72, 0xff785b76},
       {0xffda95d8, 0xffe8b9e5, 0xffc1a7c0},
       {0xfffab3f7, 0xfffacdf8, 0xffdbc3da}}}},
    {352,
     {{{0xffa73e73, 0xff803a5b, 0xff7f5969},
       {0xffeb90b9, 0xfff4b6d0, 0xffc9a6b4},
       {0xfffdb8d5, 0xfffecfe2, 0xffe2c2cf}}}},
}};

// Below and under these a colour is no clear one.
constexpr double mutedChroma = 0.05;
constexpr double deepLightness = 0.50;

struct Oklch {
    double lightness;
    double chroma;
    double hue;  // degrees, 0 to 360
};

double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

Oklch oklchOf(const QColor& colour) {
    const double red = linear(colour.redF());
    const double green = linear(colour.greenF());
    const double blue = linear(colour.blueF());
    const double l = std::cbrt(0.4122214708 * red + 0.5363325363 * green + 0.0514459929 * blue);
    const double m = std::cbrt(0.2119034982 * red + 0.6806995451 * green + 0.1073969566 * blue);
    const double s = std::cbrt(0.0883024619 * red + 0.2817188376 * green + 0.6299787005 * blue);
    const double a = 1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s;
    const double b = 0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s;
    const double angle = qRadiansToDegrees(std::atan2(b, a));
    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s, std::hypot(a, b),
            angle < 0 ? angle + 360 : angle};
}

double angleBetween(double a, double b) {
    const double apart = std::abs(a - b);
    return std::min(apart, 360 - apart);
}

}  // namespace

int topicHueAngle(int hue) {
    return hues.at(hue).angle;
}

QColor topicColour(ColourScheme scheme, const TopicTone& tone) {
    const auto& voices = hues.at(tone.hue).colours.at(static_cast<std::size_t>(scheme));
    return QColor::fromRgb(voices.at(static_cast<std::size_t>(tone.voice)));
}

TopicTone topicToneNear(const QColor& stored) {
    const Oklch colour = oklchOf(stored);
    TopicTone tone;
    for (int hue = 1; hue < topicHueCount; ++hue) {
        if (angleBetween(topicHueAngle(hue), colour.hue) < angleBetween(topicHueAngle(tone.hue), colour.hue))
            tone.hue = hue;
    }
    if (colour.chroma < mutedChroma)
        tone.voice = TopicVoice::Muted;
    else if (colour.lightness < deepLightness)
        tone.voice = TopicVoice::Deep;
    return tone;
}

TopicTone topicToneOfName(const QString& name) {
    constexpr quint32 offset = 2166136261U;
    constexpr quint32 prime = 16777619U;
    quint32 hash = offset;
    for (const char byte : name.toUtf8())
        hash = (hash ^ static_cast<unsigned char>(byte)) * prime;
    const int number = static_cast<int>(hash % (topicHueCount * voiceCount));
    return {number % topicHueCount, static_cast<TopicVoice>(number / topicHueCount)};
}

}  // namespace wirepane

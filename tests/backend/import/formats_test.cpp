// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_formats.h"
#include "tests/backend/import/format_samples.h"
#include "tests/backend/import/read_all.h"

#include <QRegularExpression>
#include <QStringEncoder>

#include <algorithm>
#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

QStringList namesOf(const QByteArray& source) {
    const SourceHead head(source.left(recognisedFrom));
    QStringList names;
    for (const SourceFormat& format : sourceFormats()) {
        if (format.recognise(head))
            names += format.name.toString();
    }
    return names;
}

QString contentOf(const ReadOut& out) {
    QStringList items;
    for (std::size_t i = 0; i < out.items.size(); ++i) {
        if (const auto* news = std::get_if<NewsItem>(&out.items[i]))
            items += news->identity + u'|' + news->title + u'|' + news->story.value_or(u"-"_s);
        else
            items += u"%1/%2|%3"_s.arg(out.symbol(i).market).arg(out.symbol(i).code, out.symbol(i).name);
    }
    return items.join(u'\n');
}

TEST(Formats, EachHasASampleThatItAloneRecognisesAndReads) {
    static const QRegularExpression patternForm(u"^\\*\\.[a-z]+( \\*\\.[a-z]+)*$"_s);
    for (const SourceFormat& format : sourceFormats()) {
        const auto& samples = formatSamples();
        EXPECT_TRUE(std::any_of(samples.begin(), samples.end(), [&](const FormatSample& sample) {
            return sample.format == format.name;
        })) << qPrintable(format.name.toString());
        EXPECT_TRUE(patternForm.match(format.patterns).hasMatch()) << qPrintable(format.name.toString());
    }
    for (const FormatSample& sample : formatSamples()) {
        EXPECT_EQ(namesOf(sample.source), QStringList{sample.format.toString()});
        const auto out = readAll(sample.source);
        EXPECT_EQ(contentOf(out), sample.items);
        EXPECT_EQ(out.complaints() + out.refusal, u"");
    }
}

struct Recognised {
    QByteArray source;
    QStringView name;
};

TEST(Formats, AreToldByContent) {
    const std::vector<Recognised> sources{
        {"{\"headline\": \"H\"}", u"ninjs"},
        {"{\n  \"Body_Text\": \"T\"\n}", u"ninjs"},
        {"{}\n{\"type\": \"text\"}\n{\"type\": \"text\", \"uri\": \"u\"}\n", u"ninjs"},
        {"[{\"type\": \"text\"}, {\"slugline\": \"s\"}]", u"ninjs"},
        {"[]", u"ninjs"},
        // Too broken, or too long, to see a field of it.
        {"{\"uri\": \"u\"", u"ninjs"},
        {"[{\"type\"", u"ninjs"},
        {"{\n\"body\": \"" + QByteArray(2 * recognisedFrom, 'x') + "\",\n\"type\": 1}", u"ninjs"},
        {"<feed><entry/></feed>", u"Atom"},
        {"<feed xmlns=\"http://purl.org/atom/ns#\"/>", u"Atom"},
        {"<rss xmlns=\"http://backend.userland.com/rss2\"/>", u"RSS"},
        {"<conceptItem xmlns=\"http://iptc.org/std/NAR/2006-10-01/\"/>", u"NewsML-G2"},
        {"service,id,name\n", u"CSV"},
        {"market,code,last,change,volume\n", u"CSV"},
        {QStringEncoder(QStringEncoder::Utf16LE)(u"\ufeffmarket,code,name\n"_s), u"CSV"},
        {QStringEncoder(QStringEncoder::Utf16BE)(u"\ufeff {\"uri\": \"u\"}"_s), u"ninjs"},
        // A line that the head cuts off does not count as the header.
        {"market,code,name" + QByteArray(recognisedFrom, ','), u""},
    };
    for (const auto& [source, name] : sources)
        EXPECT_EQ(namesOf(source).join(u' '), name) << source.left(80).toStdString();
}

TEST(Formats, WhatNoneRecognisesIsRefusedByName) {
    const QString unknown = u"The file is of no known format (%1): it starts with "_s.arg(namesOfFormats());
    const QString xml = u"The file is XML of a kind that is not known here: its root is "_s;
    const QString json = u"The file is JSON of a kind that is not known here: a record has the fields "_s;
    const std::vector<std::pair<QByteArray, QString>> sources{
        {"", u"The file is empty."_s},
        {" \r\n\t\n", u"The file is empty."_s},
        {"\xef\xbb\xbf", u"The file is empty."_s},
        {"<html><body>Access denied</body></html>", xml + u"<html>."_s},
        {"<groupSet/>", xml + u"<groupSet>."_s},
        {"<feed xmlns='urn:animals'><hay/></feed>", xml + u"<feed> of “urn:animals”."_s},
        {"<newsItem xmlns='urn:shop'/>", xml + u"<newsItem> of “urn:shop”."_s},
        {"<RDF xmlns='urn:r'><Person/></RDF>", xml + u"<RDF> of “urn:r”."_s},
        {"<", u"The file looks like XML, but no element is found at its start."_s},
        {"<a b>", u"The XML cannot be read: Expected '=', but got '>'."_s},
        {"<?xml version='1.0' encoding='utf-99'?><rss/>",
         u"The file declares the encoding “utf-99”, which is not known here."_s},
        {R"({"type": "FeatureCollection", "features": []})", json + u"“features”, “type”."_s},
        {"{\"wirepane\": {}}\n{\"wirepane\": {}}\n", json + u"“wirepane”."_s},
        {R"([{"g": 1, "f": 1, "e": 1, "d": 1, "c": 1, "b": 1}])", json + u"“b”, “c”, “d”, “e”, “f”."_s},
        {"{\\rtf1\\ansi News}", unknown + u"“{\\rtf1\\ansi News}”."_s},
        {"[section]\nkey=value\n", unknown + u"“[section] key=value”."_s},
        {"{}", unknown + u"“{}”."_s},
        {"a,b,c\n1,2,3\n", unknown + u"“a,b,c 1,2,3”."_s},
        {QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), unknown + u"“\ufffdPNG IHDR”."_s},
        {QByteArray(1000, 'x'), unknown + u"“"_s + QString(40, u'x') + u"”."_s},
    };
    for (const auto& [source, reason] : sources) {
        const auto out = readAll(source);
        EXPECT_EQ(out.refusal, reason);
        EXPECT_TRUE(out.items.empty() && out.rejections.empty());
    }
}

}  // namespace
}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/phrasebook.h"
#include "sample_wire/service_role.h"
#include "tests/sample_wire/collected_wire.h"

#include <QColor>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <set>

namespace wirepane {
namespace {

constexpr int screenful = 40;
constexpr QStringView mark = u"@@@@";

const CollectedWire& wire() {
    static const CollectedWire collected = collect(threeDays());
    return collected;
}

bool isChinese(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.script() == QChar::Script_Han; });
}

TEST(SampleTexts, EveryMoodHasItsPhrase) {
    const sample::Phrasebook& book = sampleData().book;
    for (unsigned char service : std::initializer_list<unsigned char>{1, 2, 16, 22, 52, 122}) {
        const sample::ServiceRole& role = sample::roleOf(service);
        for (const sample::Beat& beat : role.beats) {
            for (const sample::Language language : {role.language, sample::Language::English}) {
                if (language != role.language && beat.englishPermille == 0)
                    continue;
                const auto& texts = book.topic(beat.topic, language, role.market == hongKongService);
                for (const auto* list : {&texts.headlines, &texts.leads}) {
                    std::set<sample::Mood> moods;
                    for (const sample::Template& entry : *list)
                        moods.insert(entry.mood());
                    const bool both =
                        moods.contains(sample::Mood::Any) ||
                        (moods.contains(sample::Mood::Good) && moods.contains(sample::Mood::Bad));
                    EXPECT_TRUE(both) << "topic " << static_cast<int>(beat.topic);
                }
            }
        }
    }
}

TEST(SampleTexts, TitlesAreOneLineOfReasonableLength) {
    for (const NewsItem& item : wire().news) {
        const int most = isChinese(item.title) ? 60 : 125;
        EXPECT_GE(item.title.size(), 8) << item.title.toStdString();
        EXPECT_LE(item.title.size(), most) << item.title.toStdString();
        EXPECT_EQ(item.title, item.title.simplified());
        EXPECT_FALSE(item.title.contains(u'{')) << item.title.toStdString();
    }
}

TEST(SampleTexts, StoriesAreInWireForm) {
    int longOnes = 0;
    int flashes = 0;
    for (const NewsItem& item : wire().news) {
        if (item.story->isEmpty()) {
            ++flashes;
            continue;
        }
        const QString& story = *item.story;
        EXPECT_FALSE(story.contains(u'\r') || story.contains(u'\n') || story.contains(u'{'))
            << story.toStdString();
        for (QStringView paragraph : QStringView(story).split(mark)) {
            EXPECT_FALSE(paragraph.isEmpty()) << story.toStdString();
            EXPECT_EQ(paragraph, paragraph.trimmed()) << story.toStdString();
        }
        EXPECT_LE(story.size(), 20'100);
        longOnes += story.size() >= 5'000;
    }
    const int count = static_cast<int>(wire().news.size());
    EXPECT_GT(longOnes, count / 200);
    EXPECT_GT(flashes, count / 20);
    EXPECT_LT(flashes, count / 5);
}

TEST(SampleTexts, StoriesKeepToTheLengthAskedFor) {
    SampleOptions options = threeDays();
    options.days = 1;
    options.storyLength = StoryLength{1'000, 3'000};
    for (const NewsItem& item : collect(options).news) {
        ASSERT_TRUE(item.story);
        EXPECT_GE(item.story->size(), 1'000) << item.title.toStdString();
        EXPECT_LE(item.story->size(), 3'000) << item.title.toStdString();
    }
}

TEST(SampleTexts, EveryServiceSpeaksItsLanguage) {
    for (unsigned char service : std::initializer_list<unsigned char>{2, 16, 52, 122})
        for (const NewsItem* item : wire().newsOf(service))
            EXPECT_TRUE(isChinese(item->title)) << item->title.toStdString();
    for (const NewsItem* item : wire().newsOf(1))
        EXPECT_FALSE(isChinese(item->title + item->story.value_or(QString()))) << item->title.toStdString();
    const auto hongKong = wire().newsOf(22);
    const auto chinese = std::count_if(hongKong.begin(), hongKong.end(),
                                       [](const NewsItem* item) { return isChinese(item->title); });
    EXPECT_GT(chinese, static_cast<int>(hongKong.size()) / 2);
    EXPECT_LT(chinese, static_cast<int>(hongKong.size()) * 9 / 10);
}

// What is left of a title when its figures and all but its first letters are taken away: how it is worded.
QString wordingOf(const NewsItem& item) {
    static const QRegularExpression names(QStringLiteral("[0-9.,]+|[A-Z][a-z]+"));
    QString title = item.title;
    return title.remove(names).simplified();
}

TEST(SampleTexts, NoScreenfulLooksRepetitive) {
    struct Row {
        unsigned char service;
        std::size_t distinctTitles;
    };
    for (const Row& row : {Row{1, 38}, {2, 38}, {16, 38}, {22, 38}, {122, 38}, {52, 36}}) {
        const auto news = wire().newsOf(row.service);
        for (std::size_t first = 0; first + screenful <= news.size(); first += 7) {
            std::set<QString> titles;
            for (int i = 0; i < screenful; ++i)
                titles.insert(news[first + i]->title);
            EXPECT_GE(titles.size(), row.distinctTitles) << "service " << int{row.service} << " at " << first;
        }
    }
    const auto english = wire().newsOf(1);
    for (std::size_t first = 0; first + screenful <= english.size(); first += 7) {
        std::set<QString> wordings;
        for (int i = 0; i < screenful; ++i)
            wordings.insert(wordingOf(*english[first + i]));
        EXPECT_GE(wordings.size(), 30U) << "at " << first;
    }
}

// A title's figures are those of its story.
TEST(SampleTexts, FiguresOfTheHeadlineStandInTheStory) {
    const QRegularExpression resultTitle(QStringLiteral(
        "posts [a-z-]+ profit of (NT\\$[0-9.,]+ [mb]illion)|revenue (?:rises|falls) [0-9.]+% on year "
        "to (NT\\$[0-9.,]+ [mb]illion)"));
    int compared = 0;
    for (const NewsItem* item : wire().newsOf(1)) {
        const QRegularExpressionMatch match = resultTitle.match(item->title);
        if (!match.hasMatch() || item->story->isEmpty())
            continue;
        EXPECT_TRUE(item->story->contains(match.captured(match.lastCapturedIndex())))
            << item->title.toStdString() << '\n'
            << item->story->toStdString();
        ++compared;
    }
    EXPECT_GT(compared, 10);
}

TEST(SampleTexts, TheMainSymbolIsTheOneThatTheStoryNames) {
    for (unsigned char service : std::initializer_list<unsigned char>{16, 52, 122})
        for (const NewsItem* item : wire().newsOf(service))
            EXPECT_FALSE(item->related.empty()) << item->title.toStdString();
    for (const NewsItem* item : wire().newsOf(52)) {
        ASSERT_GE(item->related.size(), 2U);
        EXPECT_EQ(item->related[0].market, 52);
        EXPECT_EQ(item->related[1].market, 16);
        if (!item->story->isEmpty()) {
            EXPECT_TRUE(item->story->contains(item->related[0].code)) << item->story->toStdString();
            EXPECT_TRUE(item->story->contains(item->related[1].code)) << item->story->toStdString();
        }
    }
}

double contrast(const QColor& a, const QColor& b) {
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&linear](const QColor& colour) {
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const double brighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (brighter + 0.05) / (darker + 0.05);
}

TEST(SampleTexts, CategoryColoursAreReadableOnLightAndDarkAndNamesAreShort) {
    for (unsigned char service : std::initializer_list<unsigned char>{1, 2, 16, 22, 52, 122}) {
        std::set<QString> colours;
        for (const CategoryItem& category : wire().categories) {
            if (category.service != service)
                continue;
            const QColor colour(category.colour);
            EXPECT_GE(contrast(colour, QColor(Qt::white)), 3.0) << category.name.toStdString();
            EXPECT_GE(contrast(colour, QColor(0x1e, 0x1e, 0x1e)), 3.0) << category.name.toStdString();
            EXPECT_TRUE(colours.insert(category.colour).second) << category.name.toStdString();
            EXPECT_FALSE(category.name.contains(u' ') || category.name.contains(u','));
            EXPECT_LE(category.name.size(), 9);
        }
        EXPECT_GE(colours.size(), 8U);
        EXPECT_LE(colours.size(), 14U);
    }
}

}  // namespace
}  // namespace wirepane

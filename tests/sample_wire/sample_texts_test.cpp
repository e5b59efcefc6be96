// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/phrasebook.h"
#include "sample_wire/service_role.h"
#include "tests/sample_wire/collected_wire.h"
#include "tests/support/contrast.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace wirepane {
namespace {

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

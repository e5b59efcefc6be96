// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/printable_story.h"

#include "headline_list/cell_texts.h"
#include "story/story_text.h"

#include <algorithm>

using namespace wirepane;

void Linefeed(QString& story) {
    const auto isBreak = [](QChar c) { return c == u'\r' || c == u'\n'; };
    story.truncate(std::find_if(story.cbegin(), story.cend(), isBreak) - story.cbegin());
    vConvertStoryContent(story);
}

namespace wirepane {

QString datedStory(const CStory& story) {
    const QDateTime local = localTime(story.time);
    const QDate day = local.date();
    const QTime time = local.time();
    const bool known = local.isValid();
    return QString::asprintf("@@@@%4d/%02d/%2d %02d:%02d:%02d", known ? day.year() : 0,
                             known ? day.month() : 0, known ? day.day() : 0, known ? time.hour() : -1,
                             known ? time.minute() : -1, known ? time.second() : -1) +
           story.text;
}

QString printedStory(const CStory& story) {
    QString text = datedStory(story);
    Linefeed(text);
    return text;
}

QString lateStory(const CStory& story) {
    QString text = datedStory(story);
    vConvertStoryContent(text);
    return text;
}

QString savedStory(const CStory& story) {
    QString text = story.text;
    Linefeed(text);
    return text;
}

}  // namespace wirepane

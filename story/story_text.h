// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QString>

#include <cstdint>

namespace wirepane {

// The texts that the story displays show, and the rules behind them. Lines end with "\r\n". Times are seconds
// since 1970 and are shown in local time; a time outside any calendar shows as "0000/00/00 -1:-1:-1".

// Date, time and one text under them: "yyyy/mm/dd hh:mm:ss \r\n<text>". The form of titles and of what stands
// in place of an empty story.
QString datedText(std::int64_t time, const QString& text);

// How many characters the first of these lines has with its end, as texts count them that are shown.
inline constexpr int dateLineCharacters = 21;

// The blanks between a story's body and the break after it.
enum class BodyEnd : int {
    Answered = 1,  // the story came as an answer
    Shown = 2,     // the story was at hand when it was to be shown
};

// A story: "yyyy/mm/dd hh:mm:ss \r\n<body><blanks>\r\n\r\n<remark>".
QString storyText(std::int64_t time, const QString& body, BodyEnd end, const QString& remark);

}  // namespace wirepane

// Brings a story from wire form into lines: joins what transport wrapping broke at CR and LF, then makes each
// "@@@@" (from the left) a line break. Linear in the length.
void vConvertStoryContent(QString& story);

namespace wirepane {

// Two entries name the same news: service, local calendar day, number and both opaque values are equal. Times
// outside any calendar are all of one day.
bool isSameNews(const CHeadlineTable& a, const CHeadlineTable& b);

}  // namespace wirepane

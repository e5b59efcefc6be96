// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_text.h"

#include "headline_list/cell_texts.h"

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr QLatin1StringView paragraphMark{"@@@@"};
constexpr QLatin1StringView lineBreak{"\r\n"};

QString dateLine(std::int64_t time) {
    const QDateTime local = localTime(time);
    return local.isValid() ? local.toString(u"yyyy/MM/dd HH:mm:ss \r\n"_s) : u"0000/00/00 -1:-1:-1 \r\n"_s;
}

}  // namespace

namespace wirepane {

QString datedText(std::int64_t time, const QString& text) {
    return dateLine(time) + text;
}

QString storyText(std::int64_t time, const QString& body, BodyEnd end, const QString& remark) {
    const QString date = dateLine(time);
    const auto blanks = static_cast<int>(end);
    QString text;  // appended to: a sum would copy a long body once for each of its terms
    text.reserve(date.size() + body.size() + blanks + 2 * lineBreak.size() + remark.size());
    return text.append(date)
        .append(body)
        .append(QString(blanks, u' '))
        .append(lineBreak)
        .append(lineBreak)
        .append(remark);
}

}  // namespace wirepane

void vConvertStoryContent(QString& story) {
    story.removeIf([](QChar c) { return c == u'\r' || c == u'\n'; });
    // Built anew: replacing in place moves the rest of the text again and again.
    QString lines;
    lines.reserve(story.size());
    qsizetype from = 0;
    for (qsizetype mark = 0; (mark = story.indexOf(paragraphMark, from)) >= 0;
         from = mark + paragraphMark.size()) {
        lines += QStringView(story).sliced(from, mark - from);
        lines += lineBreak;
    }
    lines += QStringView(story).sliced(from);
    story = std::move(lines);
}

namespace wirepane {

bool isSameNews(const CHeadlineTable& a, const CHeadlineTable& b) {
    return a.service == b.service && a.sequence == b.sequence && a.second == b.second && a.last == b.last &&
           (a.time == b.time || localTime(a.time).date() == localTime(b.time).date());
}

}  // namespace wirepane

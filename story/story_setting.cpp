// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_setting.h"

#include "host/contract/colour_roles.h"
#include "host/contract/query/search_hits.h"
#include "host/controls/hit_grounds.h"
#include "story/story_reader.h"
#include "story/story_size.h"
#include "story/story_text.h"

#include <QPalette>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int sizeStep = 10;
constexpr double bodySize = 1.1;  // as a multiple of the font of views
constexpr double largeHeadline = 1.5 / bodySize;
constexpr double smallHeadline = 1.3 / bodySize;

// A line may end behind the dot, not within a part.
const QString betweenParts = u"\u00A0\u00A0\u00B7  "_s;

// What a back end calls the topic of news that has none.
const QString noTopic = u"\u2013"_s;

const QString linkToChanges = u"changes:"_s;

QString inOnePiece(QString text) {
    return text.replace(u' ', QChar(QChar::Nbsp));
}

MyRichEdit::Parts partsOf(StoryState state) {
    return {state == StoryState::Awaited ? 0 : dateLineCharacters, true};
}

QTextCharFormat formatOf(const ChangeMark& mark, const QPalette& palette) {
    constexpr int lightly = 48;  // of 255
    QTextCharFormat format;
    if (mark.isRemoved) {
        format.setFontStrikeOut(true);
        format.setForeground(roleColour(ColourRole::Weak, palette.color(QPalette::PlaceholderText)));
        return format;
    }
    QColor ground = roleColour(ColourRole::Accent, palette.color(QPalette::Link));
    ground.setAlpha(lightly);
    format.setFontUnderline(true);
    format.setBackground(ground);
    return format;
}

}  // namespace

int steppedStorySize(int size, int step) {
    return step == 0 ? plainStorySize
                     : std::clamp(size + step * sizeStep, smallestStorySize, largestStorySize);
}

TextLead leadOf(const StoryHead& head) {
    TextLead lead;
    lead.headline = head.headline;
    const auto add = [&lead](const QString& text, const QString& target) {
        if (text.isEmpty() || text == noTopic)
            return;
        if (!lead.particulars.empty())
            lead.particulars.push_back({betweenParts, {}});
        lead.particulars.push_back({inOnePiece(text), target});
    };
    for (const QString& part : {head.source, head.topic, head.time})
        add(part, {});
    for (const RelatedSymbol& related : head.symbols)
        add(u"%1 %2"_s.arg(related.symbol.code, related.name).trimmed(),
            u"%1:%2"_s.arg(related.symbol.market).arg(related.symbol.code));
    const auto remark = [&lead](const QString& text, const QString& target) {
        if (text.isEmpty())
            return;
        if (!lead.remarks.empty())
            lead.remarks.push_back({betweenParts, {}});
        lead.remarks.push_back({text, target});
    };
    remark(head.remark, {});
    remark(head.changes, linkToChanges);
    return lead;
}

bool isLinkToChanges(const QString& link) {
    return link == linkToChanges;
}

std::optional<CSymbolInfo> symbolOfLink(const QString& link) {
    const qsizetype colon = link.indexOf(u':');
    bool isNumber = false;
    const int market = QStringView(link).first(std::max<qsizetype>(0, colon)).toInt(&isNumber);
    if (!isNumber || market < 0 || market > std::numeric_limits<unsigned char>::max())
        return std::nullopt;
    return CSymbolInfo{static_cast<unsigned char>(market), link.sliced(colon + 1)};
}

QFont storyFont(QFont viewFont, const StorySetting& setting) {
    if (!setting.typeset)
        return viewFont;
    const double factor = bodySize * setting.size / plainStorySize;
    if (viewFont.pixelSize() > 0)
        viewFont.setPixelSize(std::max(1, qRound(viewFont.pixelSize() * factor)));
    else
        viewFont.setPointSizeF(viewFont.pointSizeF() * factor);
    return viewFont;
}

Typography storyTypography(bool withLargeHeadline, const QPalette& palette) {
    return {withLargeHeadline ? largeHeadline : smallHeadline,
            roleColour(ColourRole::Weak, palette.color(QPalette::PlaceholderText)),
            roleColour(ColourRole::Accent, palette.color(QPalette::Link))};
}

void putStory(MyRichEdit& edit, const StoryTexts& texts, StoryState state) {
    if (texts.head)
        edit.setLead(leadOf(*texts.head));
    if (!texts.story)
        return;
    edit.showText(*texts.story, partsOf(state));
    std::vector<MyRichEdit::Mark> marks;
    for (const ChangeMark& mark : texts.changes)
        marks.push_back({mark.from, mark.from + mark.length, formatOf(mark, edit.palette())});
    edit.setMarks(std::move(marks));
}

void markFound(MyRichEdit& edit, StoryReader& reader) {
    const auto hits = reader.hits(edit.shownText(), MyRichEdit::mostMarks);
    if (const auto match = hits ? std::nullopt : reader.mark(edit.shownText()))
        edit.setSelection(match->start, match->end);
    if (!hits || hits->empty())
        return;
    const HitGrounds grounds = hitGrounds();
    std::vector<MyRichEdit::Mark> marks;
    for (const SearchHit& hit : *hits) {
        QTextCharFormat format;
        format.setBackground(groundOf(grounds, hit.word));
        marks.push_back({static_cast<int>(hit.start), static_cast<int>(hit.start + hit.length), format});
    }
    edit.addMarks(std::move(marks));
    const auto first = static_cast<int>(hits->front().start);
    edit.setSelection(first, first);
}

}  // namespace wirepane

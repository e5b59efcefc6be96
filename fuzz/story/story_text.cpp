// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_text.h"

#include "fuzz/support/fuzz_input.h"
#include "output/byte_lines.h"
#include "output/page_layout.h"
#include "output/printable_story.h"
#include "story/keyword_match.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t someTime = 1072915200;

// The lines of a story in wire form, made the plain way.
QString inLines(QString story) {
    story.remove(u'\r').remove(u'\n');
    return story.replace("@@@@"_L1, "\r\n"_L1);
}

QString folded(const QString& text) {
    QString result = text;
    std::transform(text.begin(), text.end(), result.begin(), [](QChar c) { return c.toCaseFolded(); });
    return result;
}

std::optional<TextRange> lastMatch(const QString& text, const std::vector<QString>& keywords) {
    std::optional<TextRange> last;
    for (const QString& keyword : keywords) {
        if (keyword.isEmpty() || keyword.size() > text.size())
            continue;
        // Without a place to start from, one character would also be looked for behind the end.
        const auto start = int(folded(text).lastIndexOf(folded(keyword), text.size() - keyword.size()));
        if (start >= 0)
            last = TextRange{start, start + int(keyword.size())};
    }
    return last;
}

void promiseLines(const QString& wire) {
    QString shown = wire;
    vConvertStoryContent(shown);
    promise(shown == inLines(wire), "a story is brought into lines");
    const QString dated = storyText(someTime, shown, BodyEnd::Shown, u"remark"_s);
    promise(dated.size() == 22 + shown.size() + 2 + 4 + 6 && dated.contains(shown),
            "a story that is shown has its date before it and the remark behind");
}

void promisePrinted(const QString& wire) {
    const CStory story{someTime, wire, {}};
    const auto breakAt =
        std::find_if(wire.begin(), wire.end(), [](QChar c) { return c == u'\r' || c == u'\n'; });
    promise(savedStory(story) == inLines(wire.left(breakAt - wire.begin())),
            "what is saved ends where the first line break of the wire stands");
    promise(lateStory(story).endsWith(inLines(wire)) || wire.startsWith(u'@'), "a late story is not cut");
    QString all;
    for (const auto& page : bodyPages(lateStory(story))) {
        promise(!page.empty() && page.size() <= std::size_t(bodyLinesPerPage), "a page holds 49 lines");
        for (const QString& line : page) {
            promise(byteLength(line) <= bytesPerLine, "a line has at most 80 bytes");
            all += line;
        }
    }
    const auto textAlone = [](QString text) { return text.remove(u'\r').remove(u'\n'); };
    promise(textAlone(all) == textAlone(lateStory(story)), "no character is lost between lines and pages");
}

}  // namespace

// A story in wire form as it is shown, marked, printed and saved; its first two lines are keywords.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QString text = FuzzInput(bytes, size).text();
    promiseLines(text);
    promisePrinted(text);
    const std::vector<QString> keywords{text.section(u'\n', 0, 0), text.section(u'\n', 1, 1)};
    const QString searched = text.section(u'\n', 2);
    promise(lastKeywordMatch(searched, keywords) == lastMatch(searched, keywords),
            "the last match of the last keyword is marked");
    return 0;
}

}  // namespace wirepane

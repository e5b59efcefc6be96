// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/wire_form.h"

#include <QStringBuilder>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTitle = 500;
constexpr qsizetype titleFromStoryLength = 80;
constexpr QLatin1StringView paragraphMark("@@@@");

bool isLineBreak(char32_t c) {
    return c == U'\n' || c == U'\v' || c == U'\f' || c == 0x85 || c == 0x2028 || c == 0x2029;
}

bool isHidden(char32_t c) {
    const bool control = c < 0x20 || (c >= 0x7f && c < 0xa0);
    const bool directionOverride = (c >= 0x202a && c <= 0x202e) || (c >= 0x2066 && c <= 0x2069);
    return control || directionOverride || c == 0xfeff || QChar::isNonCharacter(c);
}

// Written without blanks between words. Korean is not: it has blanks.
bool isIdeographic(char32_t c) {
    return (c >= 0x2e80 && c < 0xa000) || (c >= 0xe000 && c < 0xfb00) || (c >= 0xfe30 && c < 0xfe50) ||
           (c >= 0xff00 && c < 0xfff0) || (c >= 0x20000 && c < 0x40000);
}

// The character at `at`, which goes behind it. A lone surrogate is the replacement character.
char32_t takeCharacter(QStringView text, qsizetype& at) {
    const QChar first = text.at(at++);
    if (!first.isSurrogate())
        return first.unicode();
    if (first.isHighSurrogate() && at < text.size() && text.at(at).isLowSurrogate())
        return QChar::surrogateToUcs4(first, text.at(at++));
    return QChar::ReplacementCharacter;
}

char32_t firstOf(QStringView text) {
    qsizetype at = 0;
    return takeCharacter(text, at);
}

char32_t lastOf(QStringView text) {
    qsizetype at = text.size() - (text.size() > 1 && text.back().isLowSurrogate() ? 2 : 1);
    return takeCharacter(text, at);
}

// Line breaks as LF, tabs as blanks, nothing hidden.
QString cleaned(QStringView text) {
    QString clean;
    clean.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const char32_t c = takeCharacter(text, at);
        if (c == U'\r') {
            if (!text.sliced(at).startsWith(u'\n'))
                clean += u'\n';
        } else if (isLineBreak(c)) {
            clean += u'\n';
        } else if (c == U'\t') {
            clean += u' ';
        } else if (!isHidden(c)) {
            clean += QChar::fromUcs4(c);
        }
    }
    return clean;
}

// The paragraph with no run of "@" in it that could be read as a mark, on its own or beside one.
QString markFree(const QString& paragraph) {
    QString free;
    free.reserve(paragraph.size());
    qsizetype run = 0;
    for (const QChar c : paragraph) {
        run = c == u'@' ? run + 1 : 0;
        if (run == 4) {
            free.insert(free.size() - 1, u' ');
            run = 2;
        }
        free += c;
    }
    return free;
}

class WireText {
public:
    void startParagraph() {
        if (paragraph.isEmpty())
            return;
        const QString next = markFree(paragraph);
        if (!wire.isEmpty()) {
            const bool apart = wire.endsWith(u'@');
            wire +=
                (apart ? u" "_s : QString()) + paragraphMark + (next.startsWith(u'@') ? u" "_s : QString());
        }
        wire += next;
        paragraph.clear();
    }

    void addLine(QStringView line) {
        if (!paragraph.isEmpty() && !isIdeographic(lastOf(paragraph)) && !isIdeographic(firstOf(line)))
            paragraph += u' ';
        paragraph += line;
    }

    QString take() {
        startParagraph();
        return std::move(wire);
    }

private:
    QString wire;
    QString paragraph;
};

// At most `limit` characters, of which the last is an ellipsis where something was left out; cut after a word
// when one ends in the last third.
QString shortened(const QString& text, qsizetype limit) {
    if (text.size() <= limit)
        return text;
    qsizetype cut = text.lastIndexOf(u' ', limit - 1);
    if (cut < limit * 2 / 3)
        cut = limit - 1;
    if (text.at(cut - 1).isHighSurrogate())
        --cut;
    return QStringView(text).first(cut).trimmed() % u'\u2026';
}

}  // namespace

QString wireForm(QStringView text) {
    const QString clean = cleaned(text);
    WireText wire;
    for (const QStringView line : QStringView(clean).tokenize(u'\n')) {
        const QStringView content = line.trimmed();
        if (content.isEmpty() || line.front().isSpace())
            wire.startParagraph();
        if (!content.isEmpty())
            wire.addLine(content);
    }
    return wire.take();
}

QString cleanLine(QStringView text) {
    return cleaned(text).simplified();
}

QString titleLine(QStringView text) {
    return shortened(cleanLine(text), longestTitle);
}

QString titleFromStory(QStringView story) {
    const qsizetype end = story.indexOf(paragraphMark);
    return shortened(titleLine(end < 0 ? story : story.first(end)), titleFromStoryLength);
}

}  // namespace wirepane

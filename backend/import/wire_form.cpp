// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/wire_form.h"

#include "backend/clean_text.h"
#include "backend/import/table_lines.h"

#include <QStringBuilder>

#include <algorithm>
#include <utility>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTitle = 500;
constexpr qsizetype titleFromStoryLength = 80;
constexpr QLatin1StringView paragraphMark("@@@@");

char32_t firstOf(QStringView text) {
    qsizetype at = 0;
    return takeCharacter(text, at);
}

char32_t lastOf(QStringView text) {
    qsizetype at = text.size() - (text.size() > 1 && text.back().isLowSurrogate() ? 2 : 1);
    return takeCharacter(text, at);
}

// Line breaks as LF, nothing hidden but tabs.
QString cleaned(QStringView text) {
    QString clean;
    clean.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype start = at;
        at = endOfPlainRun(text, start);
        clean += text.sliced(start, at - start);
        if (at == text.size())
            break;
        const char32_t c = takeCharacter(text, at);
        if (c == U'\r') {
            if (!text.sliced(at).startsWith(u'\n'))
                clean += u'\n';
        } else if (isLineBreak(c)) {
            clean += u'\n';
        } else if (c == U'\t' || !isHidden(c)) {
            clean += QChar::fromUcs4(c);
        }
    }
    return clean;
}

// The paragraph with no run of "@" in it that could be read as a mark, on its own or beside one.
QString markFree(const QString& paragraph) {
    if (!paragraph.contains(paragraphMark))
        return paragraph;
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
        const qsizetype start = paragraph.size();
        paragraph += line;
        std::replace(paragraph.begin() + start, paragraph.end(), QChar(u'\t'), QChar(u' '));
    }

    void addTable(const QStringList& lines) {
        for (const QString& line : lines) {
            startParagraph();
            paragraph = line;
        }
        if (!lines.isEmpty())
            startParagraph();
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
    const QList<QStringView> lines = QStringView(clean).split(u'\n');
    const std::vector<bool> isTable = tableLines(lines);
    WireText wire;
    QList<QStringView> table;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QStringView line = lines.at(i);
        const QStringView content = line.trimmed();
        if (isTable[std::size_t(i)]) {
            table += line;
            continue;
        }
        // Blank lines part what else stands in a text, but no table.
        if (content.isEmpty() && !table.isEmpty())
            continue;
        wire.addTable(tableText(std::exchange(table, {})));
        if (content.isEmpty() || line.front().isSpace())
            wire.startParagraph();
        if (!content.isEmpty())
            wire.addLine(content);
    }
    wire.addTable(tableText(table));
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

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/saved_text.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "output/byte_lines.h"
#include "output/code_page_950.h"

namespace wirepane {

namespace {

constexpr int hyphens = 80;
constexpr int linesPerStep = 500;  // a fraction of a millisecond

// Files hold the texts of every service as service 0 shows them.
QString converted(BKQuoteInterface& backEnd, const QString& text) {
    if (!backEnd.LangIsConvertToSimplified(0))
        return text;
    QString simplified;
    backEnd.LangConvertToSimplifiedChinese(text, simplified);
    return simplified;
}

void appendWholeTitle(QString& out, const QString& title) {
    for (const QStringView line : titleLines(title, true)) {
        out += line;
        out += u'\n';
    }
    out += u'\n';
}

// Its line feeds count as a part of it.
void appendTitle(QString& out, const QString& title) {
    const QString text = title + QStringLiteral("\n\n");
    const std::vector<QStringView> lines = titleLines(text, false);
    const bool whole = lines.front().size() == text.size();
    for (const QStringView line : lines) {
        out += line;
        if (!whole)
            out += u'\n';
    }
}

}  // namespace

NewsWriter::NewsWriter(BKQuoteInterface& newsBackEnd, OutputItems news, NewsFileType fileType)
    : backEnd(newsBackEnd), items(std::move(news)), type(fileType) {}

bool NewsWriter::step() {
    if (!rest.isEmpty())
        writeLines();
    else if (begun < items.size())
        beginItem();
    else
        return false;
    return true;
}

double NewsWriter::progress() const {
    if (items.empty())
        return 1;
    const double left = story.isEmpty() ? 0 : double(rest.size()) / double(story.size());
    return (double(begun) - left) / double(items.size());
}

void NewsWriter::beginItem() {
    const OutputItem& item = items[begun++];
    QString text = u' ' + langText(backEnd, keys::newsNumber) + u' ' + QString::number(item.entry.sequence) +
                   QStringLiteral("\n\n") + langText(backEnd, keys::newsTitle);
    const bool whole = item.wholeTitle && type == NewsFileType::Utf8;
    (whole ? appendWholeTitle : appendTitle)(text, converted(backEnd, item.title));
    put(text + langText(backEnd, keys::newsStory));
    story = converted(backEnd, item.story) + QStringLiteral("\n\n");
    rest = story;
}

void NewsWriter::writeLines() {
    QString text;
    for (int line = 0; line < linesPerStep && firstBytes(rest, bytesPerLine).size() < rest.size(); ++line) {
        text += takeLine(rest);
        text += QStringLiteral("\r\n");
    }
    if (firstBytes(rest, bytesPerLine).size() == rest.size()) {
        text += rest;
        text += QString(hyphens, u'-') + u'\n';
        rest = {};
    }
    put(text);
}

// Lines are whole characters: each piece becomes bytes by itself.
void NewsWriter::put(const QString& text) {
    if (!written)
        return;
    if (type == NewsFileType::Utf8) {
        written->bytes += text.toUtf8();
    } else if (const auto page = encodeCodePage950(text)) {
        written->bytes += page->bytes;
        written->replaced += page->replaced;
    } else {
        written.reset();
    }
}

std::optional<SavedText> writeNews(BKQuoteInterface& backEnd, const OutputItems& items, NewsFileType type) {
    NewsWriter writer(backEnd, items, type);
    while (writer.step())
        continue;
    return writer.take();
}

}  // namespace wirepane

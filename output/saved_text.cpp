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

void appendStory(QString& out, const QString& story) {
    const QString text = story + QStringLiteral("\n\n");
    QStringView rest = text;
    while (firstBytes(rest, bytesPerLine).size() < rest.size()) {
        out += takeLine(rest);
        out += QStringLiteral("\r\n");
    }
    out += rest;
}

}  // namespace

std::optional<SavedText> writeNews(BKQuoteInterface& backEnd, const OutputItems& items, NewsFileType type) {
    QString text;
    for (const OutputItem& item : items) {
        text += u' ' + langText(backEnd, keys::newsNumber) + u' ' + QString::number(item.entry.sequence) +
                QStringLiteral("\n\n");
        text += langText(backEnd, keys::newsTitle);
        const bool whole = item.wholeTitle && type == NewsFileType::Utf8;
        (whole ? appendWholeTitle : appendTitle)(text, converted(backEnd, item.title));
        text += langText(backEnd, keys::newsStory);
        appendStory(text, converted(backEnd, item.story));
        text += QString(hyphens, u'-') + u'\n';
    }
    if (type == NewsFileType::Utf8)
        return SavedText{text.toUtf8(), 0};
    const auto page = encodeCodePage950(text);
    if (!page)
        return std::nullopt;
    return SavedText{page->bytes, page->replaced};
}

}  // namespace wirepane

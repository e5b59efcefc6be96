// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_output.h"
#include "output/output_item.h"

#include <QByteArray>

#include <optional>

class BKQuoteInterface;

namespace wirepane {

// A saved file as its bytes.
struct SavedText {
    QByteArray bytes;
    int replaced = 0;  // characters that the file type lacks, each written as a white square
};

// Writes news as the bytes of a file, some lines at a time: the items one after the other: number, title,
// story, a line of hyphens; the labels in the language in force. Line ends are the platform's text mode's to
// translate.
class NewsWriter {
public:
    NewsWriter(BKQuoteInterface& backEnd, OutputItems items, NewsFileType type);

    // False: there is nothing left to write.
    bool step();
    // How much is done, from 0 to 1.
    double progress() const;
    // Nothing where this system cannot write the file type.
    std::optional<SavedText> take() { return std::move(written); }

private:
    void beginItem();
    void writeLines();
    void put(const QString& text);

    BKQuoteInterface& backEnd;
    const OutputItems items;
    const NewsFileType type;
    std::size_t begun = 0;  // items
    QString story;          // of the item that is being written
    QStringView rest;       // of the story
    std::optional<SavedText> written = SavedText();
};

// The same in one go.
std::optional<SavedText> writeNews(BKQuoteInterface& backEnd, const OutputItems& items, NewsFileType type);

}  // namespace wirepane

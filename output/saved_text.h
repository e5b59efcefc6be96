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

// The items one after the other: number, title, story, a line of hyphens; the labels in the language in
// force. Nothing where this system cannot write the file type. Line ends are the platform's text mode's to
// translate.
std::optional<SavedText> writeNews(BKQuoteInterface& backEnd, const OutputItems& items, NewsFileType type);

}  // namespace wirepane

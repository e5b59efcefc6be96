// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/source_formats.h"

#include <QByteArray>

#include <functional>
#include <vector>

namespace wirepane {

// The text can be shown and stored: no control characters, no direction overrides, no lone surrogates.
void promiseCleanText(QStringView text);

// The text is a story in wire form: "@@@@" between paragraphs none of which is empty, no line ends.
void promiseWireForm(QStringView story);

// What holds for items that any importer hands over.
void promiseItem(const StoreItem& item);

// What a reader made of a source of this size.
struct ReadingResult {
    std::vector<StoreItem> items;
    int rejections = 0;
};

// Runs `read` with a visitor and checks what holds for every reader: items are sound, a rejection has a place
// and a reason, the bytes read grow and stay within the source; and, in a second run, nothing is handed over
// once the visitor has said that it is enough.
ReadingResult promiseReading(qint64 size, const std::function<void(const ItemVisitor&)>& read);

// The same for a reader of whole files: what it refuses gives nothing. `size` is as much as the source may
// count as.
ReadingResult promiseFile(QByteArray source, qint64 size, const ReadOptions& options,
                          decltype(SourceFormat::read) read);

}  // namespace wirepane

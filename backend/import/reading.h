// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "backend/result.h"

#include <QString>

#include <functional>
#include <memory>

namespace wirepane {
struct Mapping;

// One item of a source as a reader hands it over: the item, or why it cannot be taken.
struct SourceItem {
    Result<StoreItem> content;
    Phrase place;          // where in the source: "line 12", "item 3 (urn:x:1)"
    qint64 bytesRead = 0;  // how much of the source has been read when it is handed over
    // What is left to be done until there is a content, on any thread, and how many characters that is about;
    // null: nothing. Only who asked for it is handed such items (ReadOptions::leavesRest).
    std::function<Result<StoreItem>()> rest = nullptr;
    qsizetype sizeOfRest = 0;

    void finish();
};

// "item 3", or "item 3 (urn:x:1)" where it has a name.
Phrase placeOfItem(qint64 number, const QString& name);

// Takes what a reader finds, one by one; false stops the reading.
using ItemVisitor = std::function<bool(SourceItem&&)>;

// What no source may exceed; tests make them smaller.
struct ReadLimits {
    // Bytes of one line of JSON with its end, of another record of JSON, or of one text in XML; characters of
    // a record of a table. A story of the most characters fits, however it is escaped; what does not is never
    // in memory as a whole.
    qint64 record = qint64(25) << 20;
    qint64 file = qint64(512) << 20;  // bytes of a source that is read as a whole; a larger one is refused
    qint64 atOnce = qint64(4) << 20;  // bytes of a file for which others can wait: some tenths of a second
};

struct ReadOptions {
    unsigned char service = 1;  // the service that news belongs to
    unsigned char market = 0;   // the market of symbols whose list does not name one; 0: see docs/formats.md
    QString sourceName;         // the file's name, without its folder
    ReadLimits limits;
    bool leavesRest = false;                 // items are handed over as soon as they are read
    std::shared_ptr<const Mapping> mapping;  // how to read tables of news; null: the format is recognised
};

}  // namespace wirepane

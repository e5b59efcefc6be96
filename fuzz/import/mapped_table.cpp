// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapped_table.h"

#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

#include <QBuffer>

namespace wirepane {

namespace {

constexpr const char* mappingFiles[] = {
    R"({"encodings": ["utf-8", "windows-950"], "separator": ";", "identity_prefix": "x:",
        "identity": ["id", "part"], "title": ["subject", "short"], "story": ["body", "more"],
        "lines": "numbered", "service": {"columns": ["desk"], "names": {"A": 3, "B": 4}, "otherwise": "5"},
        "time": {"date": ["day", "noted"], "date_form": "yMMdd", "clock": "hour", "clock_form": "HHmmss",
                 "years_from": 1911, "zone": "+08:00"},
        "category": {"columns": ["kind"], "names": {"1": "One"}, "otherwise": "Other"},
        "symbols": {"columns": ["code", "codes"], "separator": "/", "market": 16}})",
    R"({"identity": "id", "title": "subject", "story": "body", "lines": "kept", "time": {"date": "day"},
        "symbols": {"columns": "code"}})",
};

Mapping parsed(const char* file) {
    const Result<Mapping> mapping = Mapping::parse(file);
    promise(bool(mapping), "the mapping of this target is good");
    return mapping.value();
}

}  // namespace

// Tables of news read by a mapping; the first byte chooses which.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const Mapping mappings[] = {parsed(mappingFiles[0]), parsed(mappingFiles[1])};
    FuzzInput input(bytes, size);
    const Mapping& mapping = mappings[input.byte() % 2];
    QBuffer source;
    source.setData(input.bytes());
    source.open(QIODevice::ReadOnly);
    bool isRefused = false;
    const ReadingResult result = promiseReading(source.size(), [&](const ItemVisitor& visit) {
        source.seek(0);
        isRefused = !readMappedTable(source, mapping, {}, visit);
    });
    promise(!isRefused || (result.items.empty() && result.rejections == 0), "what is refused gives nothing");
    return 0;
}

}  // namespace wirepane

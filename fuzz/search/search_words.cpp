// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/words/search_words.h"

#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/slow_words.h"

#include <QList>
#include <QStringDecoder>

namespace wirepane {

namespace {

// Made before the first run, whose time is limited.
const CharacterFolding& folding = CharacterFolding::instance();

void promiseWords(const QByteArray& utf8) {
    WordReader reader(utf8);
    SlowWords slow(utf8);
    qsizetype end = 0;
    while (reader.next()) {
        promise(reader.start() >= end && reader.end() > reader.start() && reader.end() <= utf8.size(),
                "words stand one behind the other in the text");
        end = reader.end();
        promise(!reader.word().empty() && reader.word().size() <= WordReader::longestWordBytes,
                "a word has 1 to 60 characters");
        promise(slow.next() && slow.word() == reader.word() && slow.start() == reader.start() &&
                    slow.end() == reader.end(),
                "every road finds the same words at the same places");
    }
    promise(!slow.next(), "no road ends before the text");
}

void promiseFolding(const QString& text) {
    for (const uint character : text.toUcs4()) {
        const char32_t folded = folding.folded(character);
        promise(folding.folded(folded) == folded, "folding what is folded changes nothing");
        promise(folding.kind(character) == CharacterKind::Dropped ||
                    folding.kind(folded) == folding.kind(character),
                "a character is what its folded form is");
    }
}

}  // namespace

// Text as the search index takes it in, broken UTF-8 included, and keywords.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    promiseWords(input.bytes());
    const QString text = input.text();
    promiseWords(text.toUtf8());
    promiseFolding(text);
    const QString keyword = keywordText(text);
    promise(keywordText(keyword) == keyword, "what is searched for is a keyword");
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString valid = decoder(text.toUtf8());
    promise(valid.startsWith(keyword), "what is searched for is the start of it");
    return 0;
}

}  // namespace wirepane

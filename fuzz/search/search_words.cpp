// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_words.h"

#include "fuzz/support/fuzz_input.h"

using namespace wirepane;

namespace {

bool isWordByItself(std::string_view word) {
    WordReader reader(QByteArrayView(word.data(), qsizetype(word.size())));
    return reader.next() && reader.word() == word && !reader.next();
}

void promiseWords(const QByteArray& utf8) {
    WordReader reader(utf8);
    qsizetype end = 0;
    while (reader.next()) {
        promise(reader.start() >= end && reader.end() > reader.start() && reader.end() <= utf8.size(),
                "words stand one behind the other in the text");
        end = reader.end();
        promise(isWordByItself(reader.word()), "a word that was found is a word");
    }
}

void promiseFolding(const QString& text) {
    const CharacterFolding& folding = CharacterFolding::instance();
    for (const uint character : text.toUcs4()) {
        const char32_t folded = folding.folded(character);
        promise(folding.folded(folded) == folded, "folding what is folded changes nothing");
        promise(folding.kind(folded) == folding.kind(character), "a character is what its folded form is");
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
    const QStringList words = keywordWords(text);
    promise(words.size() <= mostKeywordWords, "a keyword has a bound number of words");
    promise(keywordWords(words.join(u' ')) == words, "the words of a keyword are a keyword");
    return 0;
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVarLengthArray>

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wirepane {

// Finds which of many phrases (phraseBetweenBlanks) stand in a text: each word of the text is looked up once,
// and with the next one where phrases begin so, however many phrases there are.
class PhraseFinder {
public:
    using Number = std::uint32_t;
    using Found = QVarLengthArray<Number, 64>;

    // Its number; the same for the same phrase. Only before find() is called.
    Number add(const QByteArray& phrase);
    std::size_t size() const { return phrases.size(); }

    // In `words` (wordsBetweenBlanks). Rising, each once.
    Found find(const QByteArray& words) const;

private:
    struct Begin {
        std::vector<Number> alone;  // phrases of this one word, or that begin with these two
        bool goesOn = false;        // phrases of more words begin with it
    };
    // Of a word between its blanks. One that begins no phrase mostly has a sign that none has that does:
    // cheaper to find out than by looking it up.
    static std::size_t signOf(std::string_view word);
    static constexpr std::size_t signCount = 1U << 16U;

    // Keys lie in `phrases`, whose bytes do not move.
    std::unordered_map<std::string_view, Begin> begins;
    std::unordered_map<std::string_view, Number> numbers;
    std::vector<QByteArray> phrases;
    std::vector<bool> signs;  // of the words that begin phrases; empty: there is none
};

}  // namespace wirepane

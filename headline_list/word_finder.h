// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <span>
#include <vector>

namespace wirepane {

// Finds which of many words stand anywhere in a text, in one pass over it: what the pass costs grows with the
// text and with the words found, hardly with the number of words looked for. Words and texts are compared by
// their code units, nothing is folded. Pure; may be read on several threads at once.
class WordFinder {
public:
    WordFinder() = default;
    // `words`: distinct, none empty, in rising order (operator< of QString). A word's number is its place
    // here.
    explicit WordFinder(std::span<const QString> words);

    // Calls found(number) for every place at which a word ends, in the order of the text; of words that end
    // at one place the longest comes first. When `found` returns true the search ends there, and Find too
    // returns true.
    template <class Found>
    bool find(QStringView text, Found found) const {
        std::uint32_t state = root;
        for (const QChar letter : text) {
            state = after(state, letter.unicode());
            for (std::uint32_t end = wordEnd(state); end != root; end = states[end].shorterWord) {
                if (found(states[end].word))
                    return true;
            }
        }
        return false;
    }

private:
    // The words make a tree, a state for every beginning of a word. States are numbered by their depth, and
    // the children of one lie side by side in the order of their letters, which `letters` holds.
    struct State {
        std::uint32_t firstChild = 0;
        std::uint32_t childCount = 0;
        std::uint32_t ending = root;       // of the longest shorter beginning that this one ends with
        std::uint32_t shorterWord = root;  // the longest word that this one ends with, itself left out
        std::uint32_t word = noWord;       // the word that this beginning is
    };
    static constexpr std::uint32_t root = 0;
    static constexpr std::uint32_t noWord = 0xFFFFFFFF;

    std::uint32_t child(std::uint32_t state, char16_t letter) const;
    std::uint32_t after(std::uint32_t state, char16_t letter) const;
    std::uint32_t wordEnd(std::uint32_t state) const {
        return state == root || states[state].word != noWord ? state : states[state].shorterWord;
    }
    void growTree(std::span<const QString> words);
    void linkEndings();

    std::vector<State> states;
    std::vector<char16_t> letters;  // by state: the last letter of its beginning
    std::vector<std::uint32_t>
        firstLetter;  // by letter: the state of the beginning that is this letter alone
};

}  // namespace wirepane

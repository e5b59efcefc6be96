// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/word_finder.h"

#include <algorithm>

namespace wirepane {

WordFinder::WordFinder(std::span<const QString> words) {
    if (words.empty())
        return;
    growTree(words);
    linkEndings();
}

// Words with one beginning lie side by side, so a state is a run of words and its depth.
void WordFinder::growTree(std::span<const QString> words) {
    struct Run {
        std::size_t from;
        std::size_t to;
        qsizetype depth;
    };
    std::vector<Run> runs{{0, words.size(), 0}};
    states.emplace_back();
    letters.push_back(u'\0');
    for (std::uint32_t state = root; state < states.size(); ++state) {
        auto [from, to, depth] = runs[state];
        if (words[from].size() == depth)
            states[state].word = static_cast<std::uint32_t>(from++);
        states[state].firstChild = static_cast<std::uint32_t>(states.size());
        while (from < to) {
            const char16_t letter = words[from].at(depth).unicode();
            std::size_t next = from + 1;
            while (next < to && words[next].at(depth).unicode() == letter)
                ++next;
            runs.push_back({from, next, depth + 1});
            states.emplace_back();
            letters.push_back(letter);
            from = next;
        }
        states[state].childCount = static_cast<std::uint32_t>(states.size()) - states[state].firstChild;
    }
    firstLetter.assign(0x10000, root);
    for (std::uint32_t i = 0; i < states[root].childCount; ++i)
        firstLetter[letters[states[root].firstChild + i]] = states[root].firstChild + i;
}

void WordFinder::linkEndings() {
    // In the order of depth: what a state links to is shallower, and linked before it.
    for (std::uint32_t state = root; state < states.size(); ++state) {
        const State& parent = states[state];
        for (std::uint32_t i = 0; i < parent.childCount; ++i) {
            State& linked = states[parent.firstChild + i];
            if (state != root)
                linked.ending = after(parent.ending, letters[parent.firstChild + i]);
            linked.shorterWord = wordEnd(linked.ending);
        }
    }
}

// The root: the state has no such child.
std::uint32_t WordFinder::child(std::uint32_t state, char16_t letter) const {
    if (state == root)
        return firstLetter[letter];
    const auto first = letters.begin() + states[state].firstChild;
    const auto last = first + states[state].childCount;
    const auto found = std::lower_bound(first, last, letter);
    return found != last && *found == letter ? static_cast<std::uint32_t>(found - letters.begin()) : root;
}

// The longest beginning of a word with which the text ends once `letter` has followed.
std::uint32_t WordFinder::after(std::uint32_t state, char16_t letter) const {
    if (states.empty())
        return root;
    for (;;) {
        const std::uint32_t next = child(state, letter);
        if (next != root || state == root)
            return next;
        state = states[state].ending;
    }
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/phrase_finder.h"

#include <algorithm>
#include <cstring>

namespace wirepane {

namespace {

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace

std::size_t PhraseFinder::signOf(std::string_view word) {
    constexpr std::uint64_t mixing = 0x9e3779b97f4a7c15;
    constexpr int highest = 48;
    std::uint64_t head = 0;
    std::memcpy(&head, word.data(), std::min(word.size(), sizeof(head)));
    return static_cast<std::size_t>(((head ^ (std::uint64_t(word.size()) << 56U)) * mixing) >> highest);
}

PhraseFinder::Number PhraseFinder::add(const QByteArray& phrase) {
    if (const auto known = numbers.find(viewOf(phrase)); known != numbers.end())
        return known->second;
    const auto number = static_cast<Number>(phrases.size());
    const std::string_view text = viewOf(phrases.emplace_back(phrase));
    numbers.emplace(text, number);
    const std::size_t firstEnd = text.find(' ', 1) + 1;
    signs.resize(signCount);
    signs[signOf(text.substr(0, firstEnd))] = true;
    if (firstEnd == text.size()) {
        begins[text].alone.push_back(number);
    } else {
        begins[text.substr(0, firstEnd)].goesOn = true;
        begins[text.substr(0, text.find(' ', firstEnd) + 1)].alone.push_back(number);
    }
    return number;
}

PhraseFinder::Found PhraseFinder::find(const QByteArray& words) const {
    Found found;
    if (signs.empty())
        return found;
    const std::string_view text = viewOf(words);
    const auto take = [&](const Begin& begin, std::size_t at) {
        for (const Number number : begin.alone) {
            if (text.substr(at).starts_with(viewOf(phrases[number])))
                found.push_back(number);
        }
    };
    for (std::size_t at = 0; at + 1 < text.size();) {
        const std::size_t end = text.find(' ', at + 1);
        const std::string_view word = text.substr(at, end + 1 - at);
        const auto one = signs[signOf(word)] ? begins.find(word) : begins.end();
        if (one != begins.end()) {
            take(one->second, at);
            const std::size_t secondEnd = one->second.goesOn ? text.find(' ', end + 1) : text.npos;
            if (secondEnd != text.npos) {
                if (const auto two = begins.find(text.substr(at, secondEnd + 1 - at)); two != begins.end())
                    take(two->second, at);
            }
        }
        at = end;
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/fact_words.h"

#include <QHash>

#include <algorithm>

namespace wirepane {

namespace {

constexpr char16_t firstIdeograph = 0x2E80;

bool isIdeograph(QChar character) {
    return character.unicode() >= firstIdeograph && character.isLetter();
}

}  // namespace

FactWords::FactWords(QStringView title) {
    const auto add = [this](QStringView word) {
        hashes.push_back(static_cast<std::uint32_t>(qHash(word.toString().toCaseFolded())));
    };
    for (qsizetype i = 0; i < title.size();) {
        if (!title[i].isLetter()) {
            ++i;
        } else if (isIdeograph(title[i])) {
            if (i + 1 < title.size() && isIdeograph(title[i + 1]))
                add(title.sliced(i, 2));
            ++i;
        } else {
            const qsizetype from = i;
            while (i < title.size() && title[i].isLetter() && !isIdeograph(title[i]))
                ++i;
            add(title.sliced(from, i - from));
        }
    }
    std::sort(hashes.begin(), hashes.end());
    hashes.erase(std::unique(hashes.begin(), hashes.end()), hashes.end());
}

bool FactWords::areLike(const FactWords& other) const {
    const FactWords& fewer = hashes.size() < other.hashes.size() ? *this : other;
    const FactWords& more = &fewer == this ? other : *this;
    return fewer.hashes.empty() == more.hashes.empty() &&
           std::includes(more.hashes.begin(), more.hashes.end(), fewer.hashes.begin(), fewer.hashes.end());
}

}  // namespace wirepane

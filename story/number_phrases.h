// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <vector>

namespace wirepane {

// A number in a text with what belongs to it: its sign, its separators and the words that say of how many it
// speaks ("5.35 billion", "53.5億", "-1,200", "3.2％").
struct NumberPhrase {
    qsizetype from = 0;
    qsizetype length = 0;
    double value = 0;      // with its words: 5.35 billion is 5,350,000,000
    bool isShare = false;  // in per cent

    // Whether both say the same, however they are written.
    bool saysAs(const NumberPhrase& other) const;
};

// In their order. Digits of full width count as digits; numbers in Chinese numerals alone are words.
std::vector<NumberPhrase> numberPhrases(QStringView text);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

// What a check has found broken.
class Findings {
public:
    // Notes the sentence unless the duty is kept. Result: whether it is.
    bool Expect(bool kept, const QString& sentence) {
        if (!kept)
            sentences.push_back(sentence);
        return kept;
    }
    std::vector<QString> Take() { return std::move(sentences); }

private:
    std::vector<QString> sentences;
};

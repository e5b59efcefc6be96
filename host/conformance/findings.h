// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace wirepane {

// What a check has found broken.
class Findings {
public:
    // Notes the sentence unless the duty is kept. Result: whether it is.
    bool expect(bool kept, const QString& sentence) {
        if (!kept)
            sentences.push_back(sentence);
        return kept;
    }
    std::vector<QString> takeAll() { return std::move(sentences); }

private:
    std::vector<QString> sentences;
};

}  // namespace wirepane

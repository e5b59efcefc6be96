// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace wirepane {

// The words of a text as docs/store.md tells them ("What a search finds"). It shares nothing with the
// program's own splitter: what both find alike is what the page promises.
class PlainWords {
public:
    PlainWords();
    ~PlainWords();
    PlainWords(const PlainWords&) = delete;
    PlainWords& operator=(const PlainWords&) = delete;

    // In their order, folded; a line end is the word "\n".
    QStringList of(const QString& text) const;

private:
    class Folding;
    std::unique_ptr<Folding> folding;
};

}  // namespace wirepane

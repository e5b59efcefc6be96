// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/rehearsal.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QString>

#include <vector>

namespace wirepane {

// Counts what titles say, to find what a query might exclude: of the titles that it wants each, of the others
// a sample.
class TitleWords {
public:
    // What is in one of these phrases (phraseBetweenBlanks) is named already.
    explicit TitleWords(std::vector<QByteArray> namedPhrases) : named(std::move(namedPhrases)) {}

    void add(const QString& title, bool isHit);
    // The most frequent first.
    std::vector<Rehearsal::Word> mostOfHits() const;

private:
    static constexpr int sampledOf = 32;

    struct Count {
        QString text;  // as it stood first
        int hits = 0;
        int others = 0;
        int lastTitle = 0;  // that it was counted in
    };
    // The phrase stands in the title as `first` and `second`.
    void count(const QByteArray& phrase, QByteArrayView first, QByteArrayView second, bool isHit);
    bool isNamed(const QByteArray& phrase) const;

    const std::vector<QByteArray> named;
    QHash<QByteArray, Count> counts;
    int titles = 0;
    int hitTitles = 0;
    int sampled = 0;
    int skipped = 0;
};

}  // namespace wirepane

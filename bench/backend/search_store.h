// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace wirepane::bench {

inline constexpr int searchServices = 8;
inline constexpr QStringView commonWord = u"copper";    // in a quarter of the stories
inline constexpr QStringView rareWord = u"molybdenum";  // in 50 stories
inline constexpr int rareStories = 50;

// A store of headlines with stories of about 1,200 characters, English and Chinese by turns, over a year and
// the services 1 to 8, made once in a run and past the writer.
// How the news came: as it was published, as a wire brings it, or in no order of time, as imports do.
enum class Coming { AsPublished, InNoOrder };

class SearchStore {
public:
    static const SearchStore& of(int stories, Coming coming = Coming::InNoOrder);

    SearchStore(int stories, Coming coming);
    const QString& path() const { return file; }
    // What the index takes up, as a share of the text in UTF-8.
    double indexOfText() const { return share; }

private:
    QTemporaryDir folder;
    QString file;
    double share = 0;
};

// A story of a vocabulary of some thousand words, the same for the same number.
QString englishStory(int number);
// The same of some thousand Chinese characters.
QString chineseStory(int number);

}  // namespace wirepane::bench

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

class TRVCfgIO2;

namespace wirepane {

// A search that the user has given a name.
struct SavedSearch {
    QString name;  // as nameOfSavedSearch gives it
    CSearch condition;

    bool operator==(const SavedSearch&) const = default;
};
// In the order in which they were saved. Names differ in more than the case of their letters.
using SavedSearches = std::vector<SavedSearch>;
inline constexpr int mostSavedSearches = 200;

// A typed name as it is kept: one line without blanks at its ends, 80 characters at most; empty: it is none.
QString nameOfSavedSearch(const QString& typed);
// -1: there is none of this name.
int savedSearchNamed(const SavedSearches& searches, const QString& name);
// Puts it in the place of the one of its name, else behind all others. False: there are too many.
bool saveSearch(SavedSearches& searches, SavedSearch search);

// Why a file of searches is refused, as a whole.
struct SavedSearchesFault {
    enum class Kind {
        NotText,     // it is no UTF-8
        NoName,      // nothing stands before the tab, or there is none
        NoSearch,    // what stands behind it is no condition
        WrongQuery,  // the query has a fault: `found` says which
        NameTwice,   // a line before it has the name `found`
        TooMany,
    };
    Kind kind = Kind::NoName;
    int line = 0;  // counted from 1
    QString found;
};
// The sentence about it, with the line.
QString textOf(const SavedSearchesFault& fault);

// As a text file, in UTF-8: in each line a name, a tab and the condition's text, which says its language.
// Empty lines and those that begin with '#' say nothing.
QByteArray fileOfSavedSearches(const SavedSearches& searches);
std::variant<SavedSearches, SavedSearchesFault> readSavedSearches(const QByteArray& file);

// What a host's settings keep for all its views; damaged ones are left out.
SavedSearches storedSavedSearches(const TRVCfgIO2& store);
void storeSavedSearches(TRVCfgIO2& store, const SavedSearches& searches);

// The part of a condition that is dated today, as a query.
CSearch ofToday(const CSearch& condition);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <QString>

#include <cstdint>
#include <vector>

// A key set: one standing condition of the relation-search list, saying which headlines it wants.
class CNewsKey {
public:
    // Methods: every keyword must hit; one hit suffices, as for any other number.
    static constexpr std::int32_t all = 1;
    static constexpr std::int32_t any = 2;
    static constexpr std::int32_t everyNewsType = -999;  // as the only news type: all of them

    CNewsKey() = default;
    CNewsKey(std::int32_t itsMethod, std::vector<std::int32_t> itsNewsTypes, std::vector<QString> itsKeywords)
        : method(itsMethod), newsTypes(std::move(itsNewsTypes)), keywords(std::move(itsKeywords)) {}
    CNewsKey(const CNewsKey&) = default;
    CNewsKey& operator=(const CNewsKey&) = default;
    CNewsKey(CNewsKey&&) = default;
    CNewsKey& operator=(CNewsKey&&) = default;
    virtual ~CNewsKey() = default;

    // A key set in query form: every method holds, because the query says it all.
    bool isQuery() const { return language == wirepane::SearchLanguage::Query; }
    // The text of a query; empty for others.
    QString query() const { return isQuery() && !keywords.empty() ? keywords.front() : QString(); }

    // The method as it works: one of the two.
    std::int32_t knownMethod() const { return method == all ? all : any; }

    std::int32_t method = all;
    std::vector<std::int32_t> newsTypes;  // category ids
    std::vector<QString> keywords;  // as stored; titles are compared in upper case, keywords are not folded
    std::vector<QString> remarks;   // travel with the record; neither stored nor compared
    // Of a query the only keyword is its text, and the method says nothing.
    wirepane::SearchLanguage language = wirepane::SearchLanguage::Plain;
};

// Two key sets want the same: language, method, news types in order and keywords in order
// are equal.
inline bool operator==(const CNewsKey& a, const CNewsKey& b) {
    return a.method == b.method && a.newsTypes == b.newsTypes && a.keywords == b.keywords &&
           a.language == b.language;
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

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

    // The method as it works: one of the two.
    std::int32_t knownMethod() const { return method == all ? all : any; }

    std::int32_t method = all;
    std::vector<std::int32_t> newsTypes;  // category ids
    std::vector<QString> keywords;  // as stored; titles are compared in upper case, keywords are not folded
    std::vector<QString> remarks;   // travel with the record; neither stored nor compared
};

// Two key sets want the same: method, news types in order and keywords in order are equal.
inline bool operator==(const CNewsKey& a, const CNewsKey& b) {
    return a.method == b.method && a.newsTypes == b.newsTypes && a.keywords == b.keywords;
}

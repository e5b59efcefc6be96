// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "backend/result.h"
#include "host/contract/search_control.h"

#include <QString>

#include <map>
#include <vector>

namespace wirepane {
class Database;

// All symbols of the store, in memory: by market in the order of their codes, and searched by code and name.
// Full-width letters and digits, and upper and lower case, are alike in a search. Interface thread only.
class SymbolTable : public SearchControl {
public:
    // Reads the table anew.
    Done load(Database& database);
    // Adds a symbol, or replaces the one of its market and code.
    void put(const SymbolItem& symbol);

    // The markets that have symbols, ascending.
    std::vector<unsigned char> markets() const;
    // Null when there is no such symbol.
    const SymbolItem* find(unsigned char market, const QString& code) const;
    // Up to `limit` symbols whose code begins with the text, or whose name contains it: an exact code first,
    // then codes, then names; within each by market and code. An empty text finds nothing.
    std::vector<SymbolItem> search(const QString& text, std::size_t limit) const;

    // Every symbol of a service, whatever the kind: the store keeps no other than those that news may name.
    bool GetSymbolsByService(unsigned char service, std::vector<QString>& codes, std::vector<QString>& names,
                             int kind) override;
    // Up to 200 candidates. The market stands before a code that several markets have.
    bool FindSearchList(const QString& typed, std::vector<QString>& candidates) override;

private:
    struct Entry {
        SymbolItem symbol;
        QString foldedCode;
        QString foldedName;
    };
    std::map<unsigned char, std::map<QString, Entry>> byMarket;
};

}  // namespace wirepane

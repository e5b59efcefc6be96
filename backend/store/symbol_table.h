// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "backend/result.h"
#include "host/contract/search_control.h"

#include <QHash>
#include <QString>

#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace wirepane {
class Database;

// All symbols of the store, in memory: by market in the order of their codes, and searched by code and name.
// Searches look through the names in both languages; full-width letters and digits, upper and lower case,
// Traditional and Simplified Chinese are alike in them. Interface thread only.
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
    // The name that a symbol goes by: its own, converted where that is asked for, or the English one where
    // that is preferred and known.
    QString nameOf(const SymbolItem& symbol) const;
    // At first: false. Result: whether that is another choice.
    bool setPrefersEnglish(bool on) { return std::exchange(prefersEnglish, on) != on; }
    // The symbols whose name depends on it.
    std::vector<CSymbolUpdateInfo> withTwoNames() const;
    // How the own names of symbols are written; nothing, as at first: as the store has them. A name is
    // converted once.
    void convertNames(std::function<QString(const QString&)> conversion);
    // The symbols whose name depends on it, whatever the conversion.
    std::vector<CSymbolUpdateInfo> all() const;
    // Up to `limit` symbols whose code is the text, in any form in which codes are written, or begins with
    // it, or one of whose names contains it. First those that are meant most likely: the exact code, its
    // other forms, exact names, codes that begin so, names that do, other names; within each by market and
    // code. An empty text finds nothing.
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
        QString foldedEnglishName;
    };
    std::map<unsigned char, std::map<QString, Entry>> byMarket;
    bool prefersEnglish = false;
    std::function<QString(const QString&)> convert;
    mutable QHash<QString, QString> converted;
};

}  // namespace wirepane

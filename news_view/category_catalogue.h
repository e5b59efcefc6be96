// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <map>
#include <vector>

class BKQuoteInterface;

namespace wirepane {
class IniFile;

// Category ids and their short names, both ways.
class CategoryCatalogue {
public:
    // The host's catalogue: section "CONFIG", lists "CatId" and "SHORTNAME". False, and the catalogue empty,
    // when the two differ in length.
    bool load(const IniFile& file);
    // Adds what the back end knows of one service; what is there already stays.
    void add(BKQuoteInterface& backEnd, unsigned char service);

    // The short name; null when the id is unknown.
    const QString* nameOf(int id) const;
    QStringList allNames() const;
    // The id of exactly this name; -1 when there is none.
    int idOf(const QString& name) const;

    bool operator==(const CategoryCatalogue&) const = default;

private:
    void add(const std::vector<QString>& ids, const std::vector<QString>& names);

    std::map<int, QString> names;
    std::map<QString, int> idsByName;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/category_catalogue.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace wirepane {

// An entry of the category combo.
struct OfferedCategory {
    QString id;  // decimal
    QString text;

    bool operator==(const OfferedCategory&) const = default;
};

// What the categories of each service are called: as the host's file says, and what it leaves out as the
// host's own lists say, those that fill the category combo. The file may have no room for all of them, and
// one may be new: the first name that is missed has the lists read at once, the next ones wait for learn, so
// that ids without a name do not cost a reading each. Warrants have a list of their own, whose
// ids are those of other categories, too.
class NewsCategories {
public:
    explicit NewsCategories(BKQuoteInterface& backEnd);

    // The services whose lists count, in this order; the warrant service may be among them.
    void setServices(std::vector<unsigned char> ids);
    // "NewsService.ini" of the host, as it stands now. False, and nothing is taken from it, when its lists
    // differ in length.
    bool loadFile();
    // Reads the list of the warrant service.
    void loadWarrants();

    // The short name; null when nobody knows the id. Valid until the next call.
    const QString* nameOf(unsigned char service, int id);
    // The names that have been read so far, without those of warrants.
    QStringList known() const { return file.allNames() + lists.allNames(); }
    // The id of exactly this name; -1 when there is none.
    int idOf(unsigned char service, const QString& name);

    // Reads the lists again when a name is still missed, and in any case when the host says that something
    // has changed. True when anything is called otherwise than at the last learn, or was not known then.
    bool learn(bool hostSaysSo);
    // What is missed from here on has the lists read at once again.
    void readAtNextMiss();

private:
    const QString* find(unsigned char service, int id) const;
    void readLists();

    BKQuoteInterface& backEnd;
    std::vector<unsigned char> services;
    CategoryCatalogue file;
    CategoryCatalogue lists;  // of all but the warrant service
    CategoryCatalogue warrants;
    bool everRead = false;
    bool readForMiss = false;  // since readAtNextMiss
    bool missed = false;       // although they had been read
    bool changed = false;
};

}  // namespace wirepane

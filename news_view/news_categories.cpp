// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/news_categories.h"

#include "host/contract/fixed_services.h"

#include <algorithm>
#include <utility>

NewsCategories::NewsCategories(BKQuoteInterface& newsBackEnd) : backEnd(newsBackEnd) {}

void NewsCategories::vSetServices(std::vector<unsigned char> ids) {
    services = std::move(ids);
}

bool NewsCategories::bLoadFile() {
    const CategoryCatalogue before = std::exchange(file, {});
    const bool loaded =
        file.bLoad(IniFile::load(backEnd.PathGetSysPath() + QStringLiteral("/NewsService.ini")));
    changed |= !(file == before);
    return loaded;
}

void NewsCategories::vLoadWarrants() {
    warrants = {};
    if (std::find(services.begin(), services.end(), warrantService) != services.end())
        warrants.vAdd(backEnd, warrantService);
}

void NewsCategories::readLists() {
    const std::pair before(std::exchange(lists, {}), std::exchange(warrants, {}));
    for (const unsigned char service : services)
        (service == warrantService ? warrants : lists).vAdd(backEnd, service);
    changed |= before != std::pair(lists, warrants);
    everRead = true;
    readForMiss = true;
}

const QString* NewsCategories::find(unsigned char service, int id) const {
    if (service == warrantService)
        return warrants.NameOf(id);
    const QString* name = file.NameOf(id);
    return name != nullptr ? name : lists.NameOf(id);
}

const QString* NewsCategories::NameOf(unsigned char service, int id) {
    const QString* name = find(service, id);
    if (name != nullptr)
        return name;
    if (!readForMiss) {
        readLists();
        name = find(service, id);
    }
    missed |= name == nullptr;
    return name;
}

int NewsCategories::IdOf(unsigned char service, const QString& name) {
    if (service == warrantService)
        return warrants.GetCategoryIDbyName(name);
    const int id = file.GetCategoryIDbyName(name);
    if (id >= 0)
        return id;
    if (!everRead)
        readLists();
    return lists.GetCategoryIDbyName(name);
}

bool NewsCategories::bLearn(bool hostSaysSo) {
    if (missed || hostSaysSo)
        readLists();
    return std::exchange(changed, false);
}

void NewsCategories::vReadAtNextMiss() {
    missed = false;
    readForMiss = false;
}

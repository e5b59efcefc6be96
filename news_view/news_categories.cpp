// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/news_categories.h"

#include "host/contract/bk_quote_interface.h"
#include "host/contract/fixed_services.h"
#include "host/contract/ini_file.h"

#include <algorithm>
#include <utility>

namespace wirepane {

NewsCategories::NewsCategories(BKQuoteInterface& newsBackEnd) : backEnd(newsBackEnd) {}

void NewsCategories::setServices(std::vector<unsigned char> ids) {
    services = std::move(ids);
}

bool NewsCategories::loadFile() {
    const CategoryCatalogue before = std::exchange(file, {});
    const bool loaded =
        file.load(IniFile::load(backEnd.PathGetSysPath() + QStringLiteral("/NewsService.ini")));
    changed |= !(file == before);
    return loaded;
}

void NewsCategories::loadWarrants() {
    warrants = {};
    if (std::find(services.begin(), services.end(), warrantService) != services.end())
        warrants.add(backEnd, warrantService);
}

void NewsCategories::readLists() {
    const std::pair before(std::exchange(lists, {}), std::exchange(warrants, {}));
    for (const unsigned char service : services)
        (service == warrantService ? warrants : lists).add(backEnd, service);
    changed |= before != std::pair(lists, warrants);
    everRead = true;
    readForMiss = true;
}

const QString* NewsCategories::find(unsigned char service, int id) const {
    if (service == warrantService)
        return warrants.nameOf(id);
    const QString* name = file.nameOf(id);
    return name != nullptr ? name : lists.nameOf(id);
}

const QString* NewsCategories::nameOf(unsigned char service, int id) {
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

int NewsCategories::idOf(unsigned char service, const QString& name) {
    if (service == warrantService)
        return warrants.idOf(name);
    const int id = file.idOf(name);
    if (id >= 0)
        return id;
    if (!everRead)
        readLists();
    return lists.idOf(name);
}

bool NewsCategories::learn(bool hostSaysSo) {
    if (missed || hostSaysSo)
        readLists();
    return std::exchange(changed, false);
}

void NewsCategories::readAtNextMiss() {
    missed = false;
    readForMiss = false;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/category_catalogue.h"

#include "host/contract/bk_quote_interface.h"
#include "host/contract/ini_file.h"

#include <QStringList>

namespace wirepane {

namespace {

constexpr qsizetype longestList = 1024;

std::vector<QString> listFrom(const IniFile& file, const QString& key) {
    QString text = file.text(QStringLiteral("CONFIG"), key, {}, longestList);
    text.replace(u',', u' ').replace(u'\n', u' ');
    const QStringList parts = text.split(u' ', Qt::SkipEmptyParts);
    return {parts.begin(), parts.end()};
}

}  // namespace

bool CategoryCatalogue::load(const IniFile& file) {
    *this = {};
    const std::vector<QString> ids = listFrom(file, QStringLiteral("CatId"));
    const std::vector<QString> texts = listFrom(file, QStringLiteral("SHORTNAME"));
    if (ids.size() == texts.size())
        add(ids, texts);
    return ids.size() == texts.size();
}

void CategoryCatalogue::add(BKQuoteInterface& backEnd, unsigned char service) {
    std::vector<QString> ids;
    std::vector<QString> texts;
    if (backEnd.bNewsAPI_GetNewsCatId(service, ids, texts) && ids.size() == texts.size())
        add(ids, texts);
}

void CategoryCatalogue::add(const std::vector<QString>& ids, const std::vector<QString>& texts) {
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const int id = ids[i].toInt();
        names.emplace(id, texts[i]);
        idsByName.emplace(texts[i], id);
    }
}

const QString* CategoryCatalogue::nameOf(int id) const {
    const auto found = names.find(id);
    return found == names.end() ? nullptr : &found->second;
}

QStringList CategoryCatalogue::allNames() const {
    QStringList all;
    for (const auto& [id, name] : names)
        all << name;
    return all;
}

int CategoryCatalogue::idOf(const QString& name) const {
    const auto found = idsByName.find(name);
    return found == idsByName.end() ? -1 : found->second;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/category_display.h"

#include "backend/database/statement.h"
#include "backend/store/embedded_back_end.h"
#include "host/contract/fixed_services.h"
#include "terminal/settings/terminal_settings.h"
#include "terminal/settings/topic_tones.h"

#include <algorithm>
#include <chrono>
#include <map>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::chrono::milliseconds busyTimeout{1000};
constexpr int mostCounted = 10'000;  // about 5 ms; 200,000 take 0.6 s

// How many of the headlines that came last have each category: few enough to count while the windows wait, in
// a store of any size. Empty when that cannot be read: the order is a matter of taste then.
std::map<std::int32_t, std::int64_t> categoryUse(const QString& storeFile) {
    std::map<std::int32_t, std::int64_t> use;
    const auto database = Database::openToRead(storeFile, busyTimeout);
    if (!database)
        return use;
    Statement count(*database.value(),
                    "SELECT category, count(*) FROM headlines WHERE service <> 52 AND "
                    "id > (SELECT max(id) FROM headlines) - ? GROUP BY category");
    Query rows(count, mostCounted);
    while (rows.next())
        use[rows.smallNumber(0)] = rows.number(1);
    return use;
}

void putMostUsedFirst(std::vector<CategoryName>& categories, const QString& storeFile) {
    auto use = categoryUse(storeFile);
    std::stable_sort(categories.begin(), categories.end(),
                     [&use](const CategoryName& a, const CategoryName& b) { return use[a.id] > use[b.id]; });
}

}  // namespace

CategoryDisplay::CategoryDisplay(EmbeddedBackEnd& embedded, const TerminalSettings& terminalSettings)
    : backEnd(embedded), settings(terminalSettings) {}

void CategoryDisplay::GetNewsCatColor(int categoryId, QColor& text, QColor& background) {
    text = colourOf(categoryId, 0);
    background = QColor();
}

void CategoryDisplay::warrantCatColor(int categoryId, QColor& text, QColor& background) {
    text = colourOf(categoryId, warrantService);
    background = QColor();
}

QColor CategoryDisplay::colourOf(int categoryId, unsigned char service) {
    const std::optional<StoredCategory> category = backEnd.category(categoryId, service);
    if (!category)
        return schemeColour(settings.scheme(), ColourRole::Weak);
    const QColor own(category->colour);
    return topicColour(settings.scheme(),
                       own.isValid() ? topicToneNear(own) : topicToneOfName(category->name));
}

std::vector<CategoryName> categoryNames(EmbeddedBackEnd& backEnd) {
    std::vector<unsigned char> services;
    backEnd.BKQNEWS_bGetAllNewsService(services);
    // News without a category has category 0: it shows a dash instead of the text for unknown categories.
    std::map<std::int32_t, QString> found{{0, u"\u2013"_s}};
    for (const unsigned char service : services) {
        std::vector<QString> ids;
        std::vector<QString> names;
        if (service == warrantService || !backEnd.bNewsAPI_GetNewsCatId(service, ids, names))
            continue;
        for (std::size_t i = 0; i < ids.size(); ++i)
            found.emplace(ids[i].toInt(), names[i]);
    }
    std::vector<CategoryName> result;
    result.reserve(found.size());
    for (const auto& [id, name] : found)
        result.push_back({id, name});
    // Counting takes its time: only where something must be left out.
    if (!categoryFileHoldsAll(result))
        putMostUsedFirst(result, backEnd.storePath());
    return result;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/first_found.h"

#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/query/newest_found.h"
#include "news_view/news_services.h"
#include "news_view/view_settings.h"
#include "search/search_desk.h"
#include "search/search_edit2.h"
#include "search/typed_query.h"

#include <utility>

namespace wirepane {

namespace {

constexpr std::size_t mostShown = 200;

}  // namespace

FirstFound::FirstFound(const CommonParts& commonParts, const SearchDesk& desk, Show showsTyped)
    : parts(commonParts), searches(desk), showTyped(std::move(showsTyped)) {}

bool FirstFound::isWanted() const {
    return parts.settings.options[ViewOption::SearchAsYouType];
}

void FirstFound::follow(SearchEdit2& box) {
    if (isWanted())
        connect(&box, &SearchEdit2::textEdited, this, &FirstFound::findTyped);
}

void FirstFound::findTyped(const QString& text) {
    stop();
    const bool isQuery = parts.settings.options[ViewOption::SearchQueries];
    const QString wanted = isQuery ? typedQuery(text) : text.trimmed();
    if (wanted.isEmpty())
        return;
    const bool isCut = isQuery && wanted.endsWith(u'*');
    find(searches.quickSearch(wanted, host_clock::now(),
                              isQuery ? SearchLanguage::Query : SearchLanguage::Plain),
         [this, isCut](Found found) {
             found.isAll &= !isCut;
             showTyped(found);
         });
}

void FirstFound::find(const CSearch& condition, Show show) {
    stop();
    auto* finder = dynamic_cast<NewestFound*>(&parts.backEnd);
    std::vector<unsigned char> services;
    for (const ServiceEntry& entry : parts.services.currentServices()) {
        if (entry.selected)
            services.push_back(entry.service);
    }
    if (!isWanted() || finder == nullptr || services.empty())
        return;
    const auto begun = std::chrono::steady_clock::now();
    asked = finder->findNewest(
        condition, services, mostShown,
        [condition, begun, show = std::move(show)](const std::vector<CHeadlineTable>& newest, bool isAll) {
            const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(
                std::chrono::steady_clock::now() - begun);
            show({condition, newest, isAll && newest.size() < mostShown, took});
        });
}

}  // namespace wirepane

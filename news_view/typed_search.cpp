// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/typed_search.h"

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

TypedSearch::TypedSearch(const CommonParts& commonParts, const SearchDesk& desk, Show shown)
    : parts(commonParts), searches(desk), show(std::move(shown)) {}

void TypedSearch::follow(SearchEdit2& box) {
    if (parts.settings.options[ViewOption::SearchAsYouType])
        connect(&box, &SearchEdit2::textEdited, this, &TypedSearch::find);
}

void TypedSearch::find(const QString& text) {
    stop();
    auto* finder = dynamic_cast<NewestFound*>(&parts.backEnd);
    const bool isQuery = parts.settings.options[ViewOption::SearchQueries];
    const QString wanted = isQuery ? typedQuery(text) : text.trimmed();
    std::vector<unsigned char> services;
    for (const ServiceEntry& entry : parts.services.currentServices()) {
        if (entry.selected)
            services.push_back(entry.service);
    }
    if (finder == nullptr || wanted.isEmpty() || services.empty())
        return;
    const CSearch condition = searches.quickSearch(wanted, host_clock::now(),
                                                   isQuery ? SearchLanguage::Query : SearchLanguage::Plain);
    const bool isCut = isQuery && wanted.endsWith(u'*');
    const auto begun = std::chrono::steady_clock::now();
    asked = finder->findNewest(
        condition, services, mostShown,
        [this, condition, begun, isCut](const std::vector<CHeadlineTable>& newest, bool isAll) {
            const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(
                std::chrono::steady_clock::now() - begun);
            show({condition, newest, isAll && newest.size() < mostShown && !isCut, took});
        });
}

}  // namespace wirepane

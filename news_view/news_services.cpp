// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/news_services.h"

#include "headline_list/list_index.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/fixed_services.h"
#include "host/views/quote_base_view.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr int sheetCount = 3;

QString checkKey(int sheet, unsigned char service) {
    return QString::asprintf("Sheet%dServiceCheck%d", sheet, service);
}

}  // namespace

void NewsServices::load(BKQuoteInterface& backEnd) {
    std::vector<unsigned char> services;
    backEnd.BKQNEWS_bGetAllNewsService(services);
    live.clear();
    warrantIndex = -1;
    for (const unsigned char service : services) {
        if (service == warrantService)
            warrantIndex = static_cast<int>(live.size());
        live.push_back({service, false, backEnd.BKQNEWS_cszGetCurrDateByService(service).toInt(), false});
    }
    saved = live;
    registered.assign(live.size(), false);
}

void NewsServices::vInitialNewsService(const TRVCfgIO2& reader, const ViewSettingPath& path,
                                       TRVQuoteBaseView& view) {
    bool anyStored = false;
    for (int sheet = 0; sheet < sheetCount; ++sheet) {
        for (ServiceEntry& entry : live) {
            bool checked = false;
            anyStored |= reader.GetViewInfo(path, checkKey(sheet, entry.service), checked);
            entry.selected |= checked;
        }
    }
    if (!anyStored) {
        for (ServiceEntry& entry : live)
            entry.selected = entry.service != warrantService;
    }
    saved = live;
    CheckRegisterService(view);
}

void NewsServices::save(TRVCfgIO2& writer, const ViewSettingPath& path) const {
    for (int sheet = 0; sheet < sheetCount; ++sheet) {
        for (const ServiceEntry& entry : saved)
            writer.setViewInfo(path, checkKey(sheet, entry.service), entry.selected);
    }
}

void NewsServices::selectInBoth(std::size_t index) {
    live.at(index).selected = true;
    saved.at(index).selected = true;
}

void NewsServices::showDate(std::size_t index, std::int32_t date) {
    live.at(index).date = date;
    saved.at(index).date = date;
}

void NewsServices::restoreSelection() {
    for (std::size_t i = 0; i < live.size(); ++i)
        live[i].selected = saved[i].selected;
}

void NewsServices::deselectRows() {
    for (ServiceEntry& entry : live)
        entry.selected = false;
}

int NewsServices::selectedCount() const {
    return static_cast<int>(
        std::count_if(live.begin(), live.end(), [](const ServiceEntry& entry) { return entry.selected; }));
}

void NewsServices::clearWarrantSelection() {
    if (warrantIndex >= 0)
        select(static_cast<std::size_t>(warrantIndex), false);
}

bool NewsServices::RegisterService(TRVQuoteBaseView& view, unsigned char service) {
    C_RegisterSymbol(&view, {CSymbolInfo{service, {}}}, {});
    return true;
}

bool NewsServices::UnRegisterService(TRVQuoteBaseView& view, unsigned char service) {
    C_RegisterSymbol(&view, {}, {CSymbolInfo{service, {}}});
    return true;
}

void NewsServices::CheckRegisterService(TRVQuoteBaseView& view) {
    for (std::size_t i = 0; i < live.size(); ++i) {
        if (live[i].selected == registered[i])
            continue;
        registered[i] = live[i].selected;
        if (live[i].selected)
            RegisterService(view, live[i].service);
        else
            UnRegisterService(view, live[i].service);
    }
}

std::vector<unsigned char> NewsServices::activeServices(ListIndex mode) const {
    std::vector<unsigned char> services;
    const FillServices which = kindOf(mode).fill;
    for (std::size_t i = 0; i < live.size(); ++i) {
        const bool wanted = which == FillServices::Every ||
                            (which == FillServices::Selected && live[i].selected) ||
                            (which == FillServices::WarrantOnly && static_cast<int>(i) == warrantIndex);
        if (wanted)
            services.push_back(live[i].service);
    }
    return services;
}

}  // namespace wirepane

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
    live.clear();
    saved.clear();
    registered.clear();
    warrantIndex = -1;
    append(backEnd);
}

// Those that are there keep their places, which are the numbers of their commands.
void NewsServices::append(BKQuoteInterface& backEnd) {
    std::vector<unsigned char> services;
    backEnd.BKQNEWS_bGetAllNewsService(services);
    for (const unsigned char service : services) {
        if (std::any_of(live.begin(), live.end(),
                        [service](const ServiceEntry& entry) { return entry.service == service; }))
            continue;
        if (service == warrantService)
            warrantIndex = static_cast<int>(live.size());
        live.push_back({service, false, backEnd.BKQNEWS_cszGetCurrDateByService(service).toInt(), false});
        saved.push_back(live.back());
        registered.push_back(false);
    }
}

bool NewsServices::addNew(BKQuoteInterface& backEnd, TRVQuoteBaseView& view, bool ticked, bool isSetAside) {
    const std::size_t before = live.size();
    append(backEnd);
    for (std::size_t i = before; i < live.size(); ++i) {
        saved[i].selected = registered[i] = ticked && live[i].service != warrantService;
        live[i].selected = registered[i] && !isSetAside;
        if (registered[i])
            RegisterService(view, live[i].service);
    }
    return live.size() > before;
}

void NewsServices::vInitialNewsService(const TRVCfgIO2& reader, const ViewSettingPath& path,
                                       TRVQuoteBaseView& view, bool ticksUnknown) {
    std::vector<bool> stored(live.size(), false);
    for (int sheet = 0; sheet < sheetCount; ++sheet) {
        for (std::size_t i = 0; i < live.size(); ++i) {
            bool checked = false;
            if (reader.GetViewInfo(path, checkKey(sheet, live[i].service), checked))
                stored[i] = true;
            live[i].selected |= checked;
        }
    }
    const bool anyStored = std::find(stored.begin(), stored.end(), true) != stored.end();
    for (std::size_t i = 0; i < live.size(); ++i) {
        if (!anyStored || (ticksUnknown && !stored[i]))
            live[i].selected = live[i].service != warrantService;
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

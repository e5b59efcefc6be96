// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/service_entry.h"

#include <functional>
#include <span>
#include <vector>

class BKQuoteInterface;
class TRVCfgIO2;
class TRVQuoteBaseView;

namespace wirepane {
enum class ListIndex : int;
struct ViewSettingPath;

// The view's news services: which there are, which the user has ticked, which are registered with the back
// end. Two copies of the list are kept: the live one, which a mode may change for its own purposes, and the
// saved one, which holds the user's choice.
class NewsServices {
public:
    // Reads the services and each one's current news date; nothing is ticked.
    void load(BKQuoteInterface& backEnd);
    // Puts those that the back end has got since then behind the others. Where they are ticked they are
    // registered; in the live list they are not while that is set aside. False: there are none.
    bool addNew(BKQuoteInterface& backEnd, TRVQuoteBaseView& view, bool ticked, bool isSetAside);

    const std::vector<ServiceEntry>& currentServices() const { return live; }
    const std::vector<ServiceEntry>& savedServices() const { return saved; }
    // The live list, for searches to note whom they wait for.
    std::span<ServiceEntry> liveServices() { return live; }
    // The index of the warrant service; -1 when there is none.
    int indexOfWarrants() const { return warrantIndex; }

    // Reads the user's choice: a service that is ticked on any of the sheets is ticked. When nothing was
    // stored, every service but the warrant service is; with `ticksUnknown` so is each of which nothing was
    // stored. Registers the ticked ones.
    void vInitialNewsService(const TRVCfgIO2& reader, const ViewSettingPath& path, TRVQuoteBaseView& view,
                             bool ticksUnknown = false);
    // Writes the saved copy.
    void save(TRVCfgIO2& writer, const ViewSettingPath& path) const;

    // Ticks or unticks in the live list.
    void select(std::size_t index, bool selected) { live.at(index).selected = selected; }
    // Ticks in both copies.
    void selectInBoth(std::size_t index);
    void copyToSaved() { saved = live; }
    // The news date at which a service stands, yyyymmdd, in both copies.
    void showDate(std::size_t index, std::int32_t date);
    // The ticks of the live list become those of the saved copy again.
    void restoreSelection();
    // Unticks every service of the live list.
    void deselectRows();
    int selectedCount() const;
    // The warrant service is never ticked by the user; its list ticks it for itself.
    void clearWarrantSelection();

    // Registers one service with the real-time distribution.
    static bool RegisterService(TRVQuoteBaseView& view, unsigned char service);
    static bool UnRegisterService(TRVQuoteBaseView& view, unsigned char service);
    // Brings registrations in line with the ticks.
    void CheckRegisterService(TRVQuoteBaseView& view);
    bool isRegistered(std::size_t index) const { return registered.at(index); }

    // The services that a mode looks at: the ticked ones, every one, or the warrant service alone.
    std::vector<unsigned char> activeServices(ListIndex mode) const;

private:
    void append(BKQuoteInterface& backEnd);

    std::vector<ServiceEntry> live;
    std::vector<ServiceEntry> saved;
    std::vector<bool> registered;
    int warrantIndex = -1;
};

}  // namespace wirepane

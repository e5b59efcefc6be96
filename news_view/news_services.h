// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/service_entry.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/cfg_io.h"

#include <functional>
#include <span>
#include <vector>

class TRVQuoteBaseView;

// The view's news services: which there are, which the user has ticked, which are registered with the back
// end. Two copies of the list are kept: the live one, which a mode may change for its own purposes, and the
// saved one, which holds the user's choice.
class NewsServices {
public:
    // Reads the services and each one's current news date; nothing is ticked.
    void vLoad(BKQuoteInterface& backEnd);

    const std::vector<ServiceEntry>& Entries() const { return live; }
    const std::vector<ServiceEntry>& Saved() const { return saved; }
    // The live list, for searches to note whom they wait for.
    std::span<ServiceEntry> vGetLive() { return live; }
    // The index of the warrant service; -1 when there is none.
    int iGetWarrantIndex() const { return warrantIndex; }

    // Reads the user's choice: a service that is ticked on any of the sheets is ticked. When nothing was
    // stored, every service but the warrant service is. Registers the ticked ones.
    void vInitialNewsService(const TRVCfgIO2& reader, const ViewSettingPath& path, TRVQuoteBaseView& view);
    // Writes the saved copy.
    void vSave(TRVCfgIO2& writer, const ViewSettingPath& path) const;

    // Ticks or unticks in the live list.
    void vSelect(std::size_t index, bool selected) { live.at(index).selected = selected; }
    // Ticks in both copies.
    void vSelectInBoth(std::size_t index);
    void vCopyToSaved() { saved = live; }
    // The news date at which a service stands, yyyymmdd, in both copies.
    void vSetDate(std::size_t index, std::int32_t date);
    // The ticks of the live list become those of the saved copy again.
    void vRestoreSelection();
    // Unticks every service of the live list.
    void vClearSelection();
    int iSelectedCount() const;
    // The warrant service is never ticked by the user; its list ticks it for itself.
    void vClearWarrantSelection();

    // Registers one service with the real-time distribution.
    static bool RegisterService(TRVQuoteBaseView& view, unsigned char service);
    static bool UnRegisterService(TRVQuoteBaseView& view, unsigned char service);
    // Brings registrations in line with the ticks.
    void CheckRegisterService(TRVQuoteBaseView& view);
    bool bIsRegistered(std::size_t index) const { return registered.at(index); }

    // The services that a mode looks at: the ticked ones, every one, or the warrant service alone.
    std::vector<unsigned char> ActiveServices(int mode) const;

private:
    std::vector<ServiceEntry> live;
    std::vector<ServiceEntry> saved;
    std::vector<bool> registered;
    int warrantIndex = -1;
};

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QString>

#include <vector>

// The host's search over its symbol table. Interface thread only.
class WIREPANE_CONTRACT_EXPORT SearchControl {
public:
    SearchControl() = default;
    SearchControl(const SearchControl&) = delete;
    SearchControl& operator=(const SearchControl&) = delete;
    virtual ~SearchControl();  // uninstalls itself when it is the installed one

    // The installed search; one that finds nothing before a host installs its own. Never null, not owned.
    static SearchControl* GetSearchObjInterface();
    static void setSearchObjInterface(SearchControl* search);

    // Replaces `codes` and `names` by the symbols of a service, pairwise; `kind` 1: those with news. False:
    // both empty.
    virtual bool GetSymbolsByService(unsigned char service, std::vector<QString>& codes,
                                     std::vector<QString>& names, int kind);
    // Replaces `candidates` by the symbols that typed text may mean, best first: "CODE NAME" each, or
    // "[MARKET]CODE NAME". The code holds no blank. False: none.
    virtual bool FindSearchList(const QString& typed, std::vector<QString>& candidates);
};

// True for the code of an ordinary security of the stock exchange (service 16): any but an index ("#...").
WIREPANE_CONTRACT_EXPORT bool bIsNormalTWSESymbolID(unsigned char service, const QString& code);

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/search_control.h"

#include "host/contract/fixed_services.h"

using namespace wirepane;

namespace {

SearchControl* installed = nullptr;

SearchControl& none() {
    static SearchControl search;
    return search;
}

}  // namespace

SearchControl::~SearchControl() {
    if (installed == this)
        installed = nullptr;
}

SearchControl* SearchControl::GetSearchObjInterface() {
    return installed != nullptr ? installed : &none();
}

void SearchControl::setSearchObjInterface(SearchControl* search) {
    installed = search;
}

bool SearchControl::GetSymbolsByService(unsigned char, std::vector<QString>& codes,
                                        std::vector<QString>& names, int) {
    codes.clear();
    names.clear();
    return false;
}

bool SearchControl::FindSearchList(const QString&, std::vector<QString>& candidates) {
    candidates.clear();
    return false;
}

bool bIsNormalTWSESymbolID(unsigned char service, const QString& code) {
    return service == stockExchangeService && !code.isEmpty() && !code.startsWith(u'#');
}

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/mode_loading.h"

#include "news_view/application_switches.h"
#include "news_view/mode_table.h"

#include <utility>

namespace wirepane {

ListIndex ModeLoading::loadingMode(ListIndex mode, const ApplicationSwitches& switches) {
    const bool both = switches.showNormalSearch && switches.showWarningSearch;
    const bool warningTerms = switches.showWarningSearch && mode == ListIndex::WarningTerm;
    return both || warningTerms ? ListIndex::Search : mode;
}

bool ModeLoading::takeLoad(ListIndex loading) {
    bool& wasShown = shown[static_cast<std::size_t>(loading)];
    switch (modeOf(loading).load) {
        case LoadRule::FirstSwitch:
            return takeOnce(wasShown);
        case LoadRule::EverySwitch:
            wasShown = true;
            return true;
        case LoadRule::Never:
            break;
    }
    return false;
}

bool ModeLoading::takeOnce(bool& done) {
    return !std::exchange(done, true);
}

}  // namespace wirepane

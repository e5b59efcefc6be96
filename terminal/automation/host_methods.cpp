// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/host_methods.h"

#include "terminal/session/session.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// A request is carried out as a whole or not at all: everything is read before anything is set.
struct Wanted {
    std::optional<SearchSwitches> switches;
    std::optional<ColourScheme> scheme;
    std::optional<QString> language;
    std::optional<std::int64_t> fontSize;
    std::optional<std::int64_t> popupPosition;
    std::optional<bool> linkNews;
    std::optional<bool> active;
};

// A switch may be given as 0 and 1, as it stands in the file, or as false and true.
bool switchFrom(Params& params, const QString& name, bool present) {
    if (params.value(name).isBool())
        return params.value(name).toBool();
    return params.optionalNumber(name, 0, 1).value_or(present ? 1 : 0) == 1;
}

std::optional<SearchSwitches> switchesFrom(Params& params, const SearchSwitches& present) {
    if (!params.has(u"switches"_s))
        return std::nullopt;
    Params switches(params.optionalObject(u"switches"_s));
    const SearchSwitches wanted{switchFrom(switches, u"ShowNormalSearch"_s, present.normalSearch),
                                switchFrom(switches, u"ShowWarningSearch"_s, present.warningSearch)};
    if (switches.error())
        params.fail(switches.error()->message);
    return wanted;
}

Wanted wantedFrom(Params& params, const SearchSwitches& present) {
    Wanted wanted;
    wanted.switches = switchesFrom(params, present);
    if (const auto name = params.optionalText(u"scheme"_s)) {
        wanted.scheme = schemeByName(*name);
        if (!wanted.scheme)
            params.fail(u"\"scheme\" is \"light\", \"dark\" or \"contrast\""_s);
    }
    wanted.language = params.optionalText(u"lang"_s);
    if (wanted.language && !Languages::codes().contains(*wanted.language))
        params.fail(u"\"lang\" is one of %1"_s.arg(Languages::codes().join(u", "_s)));
    wanted.fontSize =
        params.optionalNumber(u"fontSize"_s, TerminalSettings::smallestFont, TerminalSettings::largestFont);
    wanted.popupPosition = params.optionalNumber(u"popupPosition"_s);
    wanted.linkNews = params.optionalBool(u"linkNews"_s);
    wanted.active = params.optionalBool(u"active"_s);
    return wanted;
}

}  // namespace

void HostMethods::addTo(MethodTable& table) {
    table.add(u"host.set"_s, [this](Params& params) { return set(params); });
}

Answer HostMethods::set(Params& params) {
    const Wanted wanted = wantedFrom(params, session.settings().switches());
    if (params.error())
        return {};
    if (wanted.switches)
        session.settings().setSwitches(*wanted.switches);
    if (wanted.scheme)
        session.setScheme(*wanted.scheme);
    if (wanted.language)
        session.setLanguage(*wanted.language);
    if (wanted.fontSize)
        session.setFontSize(static_cast<int>(*wanted.fontSize));
    if (wanted.popupPosition)
        session.settings().setPopupPosition(static_cast<int>(*wanted.popupPosition));
    if (wanted.linkNews)
        session.settings().SYS_vSetIsLinkNews(*wanted.linkNews);
    if (wanted.active)
        session.setActive(*wanted.active);
    return {};
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/mark_methods.h"

#include "host/contract/reading_marks.h"
#include "terminal/automation/headline_params.h"
#include "terminal/session/session.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::array states{std::pair("new"_L1, ReadingState::New), std::pair("seen"_L1, ReadingState::Seen),
                            std::pair("read"_L1, ReadingState::Read)};

std::optional<ReadingState> stateFrom(Params& params) {
    const std::optional<QString> text = params.optionalText(u"state"_s);
    if (!text)
        return std::nullopt;
    const auto* const named =
        std::find_if(states.begin(), states.end(), [&](const auto& one) { return one.first == *text; });
    if (named != states.end())
        return named->second;
    params.fail(u"\"state\" knows no \"%1\""_s.arg(*text));
    return std::nullopt;
}

}  // namespace

void MarkMethods::addTo(MethodTable& table) {
    table.add(u"mark.get"_s, [this](Params& params) { return get(params); });
    table.add(u"mark.set"_s, [this](Params& params) { return set(params); });
}

Answer MarkMethods::get(Params& params) const {
    const HeadlineKey key = headlineFrom(params);
    if (params.error())
        return *params.error();
    const ReadingMark mark = session.backEnd().markOf(key);
    return QJsonObject{{u"state"_s, QString(states[static_cast<std::size_t>(mark.state)].first)},
                       {u"starred"_s, mark.isStarred},
                       {u"readBefore"_s, mark.wasRead},
                       {u"shown"_s, static_cast<qint64>(mark.shown)},
                       {u"opened"_s, static_cast<qint64>(mark.opened)}};
}

Answer MarkMethods::set(Params& params) const {
    const std::vector<HeadlineKey> keys = headlinesFrom(params);
    const MarkChange change{stateFrom(params), params.optionalBool(u"starred"_s)};
    if (!change.state && !change.isStarred)
        params.fail(u"\"state\" or \"starred\" is missing"_s);
    if (!session.backEnd().canMark())
        params.fail(u"the store can only be read: nothing is marked"_s, RpcCode::Refused);
    if (params.error())
        return *params.error();
    session.backEnd().changeMarks(keys, change);
    return QJsonObject();
}

}  // namespace wirepane

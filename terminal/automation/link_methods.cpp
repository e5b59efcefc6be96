// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/link_methods.h"

#include "terminal/automation/view_lookup.h"
#include "terminal/session/session.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr int lastByte = 255;
}

void LinkMethods::addTo(MethodTable& table) {
    table.add(u"view.link"_s, [this](Params& params) { return link(params); });
    table.add(u"symbol.change"_s, [this](Params& params) { return changeSymbol(params); });
}

Answer LinkMethods::link(Params& params) {
    OpenView* view = viewOf(params, session.workspace());
    const auto group = params.number(u"group"_s, 0, lastByte);
    if (view != nullptr && !params.error())
        session.workspace().link(*view, static_cast<unsigned char>(group));
    return {};
}

Answer LinkMethods::changeSymbol(Params& params) {
    const auto group = params.number(u"group"_s, 0, lastByte);
    const auto service = params.number(u"service"_s, 0, lastByte);
    const QString code = params.text(u"code"_s);
    const QString name = params.optionalText(u"name"_s).value_or(QString());
    if (!params.error())
        session.links().change(nullptr, static_cast<unsigned char>(group),
                               {static_cast<unsigned char>(service), code, name});
    return {};
}

}  // namespace wirepane

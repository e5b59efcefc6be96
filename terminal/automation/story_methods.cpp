// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/story_methods.h"

#include "terminal/automation/view_lookup.h"
#include "terminal/session/session.h"

using namespace Qt::StringLiterals;

namespace wirepane {

void StoryMethods::addTo(MethodTable& table) {
    table.add(u"story.state"_s, [this](Params& params) { return state(params); });
}

Answer StoryMethods::state(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    const QString where = params.text(u"where"_s);
    if (where != u"pane"_s && where != u"dialog"_s)
        params.fail(u"\"where\" must be \"pane\" or \"dialog\""_s);
    if (view == nullptr || params.error())
        return {};
    const QVariantMap shown = view->access->storyState(where == u"dialog"_s);
    if (shown.isEmpty())
        return RpcError{RpcCode::NotFound, u"view %1 has no story %2"_s.arg(view->number).arg(where)};
    return QJsonObject::fromVariantMap(shown);
}

}  // namespace wirepane

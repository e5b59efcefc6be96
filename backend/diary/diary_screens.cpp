// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/diary/diary_screens.h"

#include "backend/diary/diary_lines.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QStringList textsOf(const QJsonValue& list) {
    QStringList texts;
    for (const auto& text : list.toArray())
        texts.append(text.toString());
    return texts;
}

std::vector<QStringList> named(const QJsonValue& ids, const std::map<std::int64_t, QStringList>& known) {
    std::vector<QStringList> found;
    for (const auto& id : ids.toArray()) {
        const auto place = known.find(id.toInteger());
        found.push_back(place != known.end() ? place->second : QStringList());
    }
    return found;
}

}  // namespace

std::optional<DiaryScreen> DiaryScreens::take(const QJsonObject& entry) {
    namespace names = diary_names;
    const QString kind = entry.value(names::kind).toString();
    Session& session = sessions[entry.value(names::session).toString()];
    if (kind == "row"_L1) {
        session.rows[entry.value(names::id).toInteger()] = textsOf(entry.value(names::cells));
    } else if (kind == "story"_L1) {
        session.stories[entry.value(names::id).toInteger()] = {entry.value(names::title).toString(),
                                                               entry.value(names::text).toString()};
    }
    if (kind != "screen"_L1)
        return std::nullopt;
    return DiaryScreen{
        entry.value(names::moment).toInteger(), entry.value(names::user).toString(),
        entry.value(names::machine).toString(), entry.value(names::session).toString(),
        entry.value(names::view).toInt(),       entry.value(names::title).toString(),
        textsOf(entry.value(names::columns)),   named(entry.value(names::rows), session.rows),
        entry.value(names::focus).toInt(-1),    named(entry.value(names::stories), session.stories)};
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/diary_methods.h"

#include "terminal/session/session.h"

using namespace Qt::StringLiterals;

namespace wirepane {

void DiaryMethods::addTo(MethodTable& table) {
    table.add(u"diary.state"_s, [this](Params&) { return state(); });
    table.add(u"diary.choose"_s, [this](Params& params) { return choose(params); });
}

Answer DiaryMethods::state() const {
    const DiaryKeeper& diary = session.diary();
    return QJsonObject{{u"kept"_s, diary.isKept()},
                       {u"words"_s, session.settings().diary().hasWords},
                       {u"file"_s, diary.file()},
                       {u"entries"_s, static_cast<qint64>(diary.keptHead().count)},
                       {u"seal"_s, QString::fromLatin1(diary.keptHead().seal)}};
}

Answer DiaryMethods::choose(Params& params) const {
    DiaryChoices choices = session.settings().diary();
    choices.isKept = params.optionalBool(u"kept"_s).value_or(choices.isKept);
    choices.hasWords = params.optionalBool(u"words"_s).value_or(choices.hasWords);
    if (!params.error())
        session.setDiary(choices);
    return {};
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/headline_params.h"

#include "backend/news_item.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace wirepane {

HeadlineKey headlineFrom(Params& params) {
    constexpr std::int64_t lastService = 255;
    Params key(params.has(u"key"_s) ? params.optionalObject(u"key"_s) : params.all());
    const HeadlineKey read{key.number(u"time"_s, 0, lastNewsTime),
                           static_cast<std::int32_t>(key.number(u"seq"_s)),
                           static_cast<unsigned char>(key.number(u"service"_s, 1, lastService))};
    if (key.error())
        params.fail(key.error()->message);
    return read;
}

std::vector<HeadlineKey> headlinesFrom(Params& params) {
    if (!params.has(u"keys"_s))
        return {headlineFrom(params)};
    if (!params.value(u"keys"_s).isArray())
        params.fail(u"\"keys\" is no list of headlines"_s);
    const QJsonArray list = params.value(u"keys"_s).toArray();
    std::vector<HeadlineKey> keys;
    for (qsizetype place = 0; place < list.size() && !params.error(); ++place) {
        Params key(list[place].toObject());
        keys.push_back(headlineFrom(key));
        if (key.error())
            params.fail(u"\"keys\", %1: %2"_s.arg(place + 1).arg(key.error()->message));
    }
    return keys;
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/headline_params.h"

#include "backend/news_item.h"

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

}  // namespace wirepane

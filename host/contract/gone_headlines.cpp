// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/gone_headlines.h"

namespace wirepane {

GoneHeadlineReceiver::~GoneHeadlineReceiver() = default;

void tellGoneHeadline(NewsReceiver& receiver, const HeadlineKey& key) {
    if (auto* wants = dynamic_cast<GoneHeadlineReceiver*>(&receiver))
        wants->headlineGone(key);
}

void tellReplacedHeadline(NewsReceiver& receiver, const CHeadline& headline, const QString& categoryId,
                          const QString& symbolCode) {
    if (auto* wants = dynamic_cast<GoneHeadlineReceiver*>(&receiver))
        wants->headlineReplaced(&headline, categoryId, symbolCode);
}

}  // namespace wirepane

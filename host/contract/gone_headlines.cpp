// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/gone_headlines.h"

GoneHeadlineReceiver::~GoneHeadlineReceiver() = default;

void TellGoneHeadline(NewsReceiver& receiver, const HeadlineKey& key) {
    if (auto* wants = dynamic_cast<GoneHeadlineReceiver*>(&receiver))
        wants->vHeadlineGone(key);
}

void TellReplacedHeadline(NewsReceiver& receiver, const CHeadline& headline, const QString& categoryId,
                          const QString& symbolCode) {
    if (auto* wants = dynamic_cast<GoneHeadlineReceiver*>(&receiver))
        wants->vHeadlineReplaced(&headline, categoryId, symbolCode);
}

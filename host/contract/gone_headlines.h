// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/news_receiver.h"

namespace wirepane {

// Optional on both sides. A receiver that wants to know which headlines no longer exist implements this
// beside NewsReceiver; a back end that replaces headlines tells those that do.
//
// A headline that is replaced may get another key: its time or its day was wrong. Then its former key stands
// for nothing, and lists that still show it would wait for its title for ever. A back end tells of each such
// key once it no longer finds a headline for it: after RecvNewHeadLine for the headline that took its place,
// where that is pushed, so that lists know the two for one. Never of a key that still has a headline.
// Interface thread.
class WIREPANE_CONTRACT_EXPORT GoneHeadlineReceiver {
public:
    virtual ~GoneHeadlineReceiver();

    // There is no headline with this key any more.
    virtual void headlineGone(const HeadlineKey& key) = 0;
    // A headline may have been replaced, and is not pushed, because it belongs to another day than the one
    // whose news is: lists that have it ask again whether it belongs to them. With the arguments of
    // NewsReceiver::RecvNewHeadLine.
    virtual void headlineReplaced(const CHeadline* headline, const QString& categoryId,
                                  const QString& symbolCode) = 0;
};

// For back ends, inside ForEachReceiver: these tell a receiver that wants to know.
WIREPANE_CONTRACT_EXPORT void tellGoneHeadline(NewsReceiver& receiver, const HeadlineKey& key);
WIREPANE_CONTRACT_EXPORT void tellReplacedHeadline(NewsReceiver& receiver, const CHeadline& headline,
                                                   const QString& categoryId, const QString& symbolCode);

}  // namespace wirepane

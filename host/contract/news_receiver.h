// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"
#include "host/contract/search_condition.h"

#include <vector>

namespace wirepane {

// What the back end tells a view. Every call arrives on the interface thread; pointers are valid for the
// duration of the call only. Each operation does nothing unless a view overrides it.
class WIREPANE_CONTRACT_EXPORT NewsReceiver {
public:
    virtual ~NewsReceiver() = default;

    // A headline of the news day that its service is in has been published; it may be late. `categoryId` is
    // the decimal text of its category, `symbolCode` the code of its main symbol (empty: none).
    virtual void RecvNewHeadLine(const CHeadline*, const QString& categoryId, const QString& symbolCode);
    // The headlines of these entries can be had now. Told unasked to those that a look-up has missed.
    virtual void RespHeadLine(const std::vector<CHeadlineTable>&);
    // The story of this entry can be had now: it was missed, or asked for again. While this is told, a story
    // that is known not to exist is found and empty, so that views say so.
    virtual void RespStory(const CHeadlineTable&);
    // The story of this entry has changed.
    virtual void StoryUpdateNotify(const CHeadlineTable*);
    // One service has answered this search.
    virtual void RespSearchHeadLineTable(const CSearch&, unsigned char service);

    // A table has been sent again: by date, by category, by symbol. Also told unasked, with a status of 0, of
    // the tables that hold news of another day than its service is in; likewise RespSearchHeadLineTable.
    virtual void vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo*);
    virtual void vRecvCatHeadlineTableRecovery(const CHeadlineTableInfo*);
    virtual void vRecvSymHeadlineTableRecovery(const CHeadlineTableInfo*);
    // The related symbols of a headline have been sent again.
    virtual void vRecvNewsRelateSymbolListRecovery(const CNewsSymlistInfo*);
    // The connection to the source of news is lost, is back; what was missed is pushed afterwards.
    virtual void connectionChanged(bool connected);
    // A service has started a new news day: told before the first headline of it.
    virtual void vRecvNewMarketStatus(const CMarketStatus*);

    // Quotes: pushed, sent again for one symbol, sent again for several.
    virtual void vRecvNewMemory(const CQuoteMemory*);
    virtual void vRecvMemoryRecovery(const CQuoteMemory*);
    virtual void vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>&);

    // The host's symbol catalogue changed.
    virtual void vDoSymbolUpdate(const std::vector<CSymbolUpdateInfo>&);
};

}  // namespace wirepane

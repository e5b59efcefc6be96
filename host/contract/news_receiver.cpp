// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/news_receiver.h"

namespace wirepane {

void NewsReceiver::RecvNewHeadLine(const CHeadline*, const QString&, const QString&) {}
void NewsReceiver::RespHeadLine(const std::vector<CHeadlineTable>&) {}
void NewsReceiver::RespStory(const CHeadlineTable&) {}
void NewsReceiver::StoryUpdateNotify(const CHeadlineTable*) {}
void NewsReceiver::RespSearchHeadLineTable(const CSearch&, unsigned char) {}
void NewsReceiver::vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo*) {}
void NewsReceiver::vRecvCatHeadlineTableRecovery(const CHeadlineTableInfo*) {}
void NewsReceiver::vRecvSymHeadlineTableRecovery(const CHeadlineTableInfo*) {}
void NewsReceiver::vRecvNewsRelateSymbolListRecovery(const CNewsSymlistInfo*) {}
void NewsReceiver::connectionChanged(bool) {}
void NewsReceiver::vRecvNewMarketStatus(const CMarketStatus*) {}
void NewsReceiver::vRecvNewMemory(const CQuoteMemory*) {}
void NewsReceiver::vRecvMemoryRecovery(const CQuoteMemory*) {}
void NewsReceiver::vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>&) {}
void NewsReceiver::vDoSymbolUpdate(const std::vector<CSymbolUpdateInfo>&) {}

}  // namespace wirepane

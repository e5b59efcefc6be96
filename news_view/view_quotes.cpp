// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The quotes of the symbols that the shown headline is related to.
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "search/news_relate_symbol_quote_view.h"

void TRVNewsCtrlView::InitialNewsRelateQuoteView() {
    CNewsRelateSymbolQuoteView* quotes = builder.createQuotes(settingsPath);
    if (quotes == nullptr)
        return;
    // The other views of the group follow the user's choice; this one goes on showing its news.
    connect(quotes, &TRVQuoteBaseView::SendChangeSymbol, this,
            [this](unsigned char, unsigned char service, const QString& code) {
                emit SendChangeSymbol(GetLinkGroup(), service, code);
            });
    vSetComponentPos();
    if (bPaneShowsStories() && story.shownRow() >= 0)
        ChangeNewsSymbolList();
}

void TRVNewsCtrlView::vRecvNewsRelateSymbolListRecovery(const CNewsSymlistInfo* info) {
    if (info != nullptr)
        story.takeRelatedSymbols(*info);
}

void TRVNewsCtrlView::vReRegisterSymbols() {
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->vReRegisterSymbols();
}

void TRVNewsCtrlView::vUnregisterViewSymbol() {
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->vUnregisterViewSymbol();
}

void TRVNewsCtrlView::vRecvNewMemory(const CQuoteMemory* quote) {
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->vRecvNewMemory(quote);
}

void TRVNewsCtrlView::vRecvMemoryRecovery(const CQuoteMemory* quote) {
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->vRecvMemoryRecovery(quote);
}

void TRVNewsCtrlView::vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>& memories) {
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->vRecvMultiSymbolMemoryRecovery(memories);
}

QVariantList TRVNewsCtrlView::vQuoteState() const {
    QVariantList rows;
    CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes();
    if (quotes == nullptr)
        return rows;
    const QuoteTable& table = quotes->GetTable();
    for (int row = 0; row < table.size(); ++row) {
        QVariantList texts;
        for (int column = 0; column < quoteColumns; ++column)
            texts.append(TextOf(table.at(row), static_cast<QuoteColumn>(column)));
        rows.append(QVariant(texts));
    }
    return rows;
}

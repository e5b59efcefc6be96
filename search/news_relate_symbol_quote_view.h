// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/quote_list_base_view.h"

// The quotes of the symbols that the shown headline is related to. It hears the back end through its owner
// alone.
class CNewsRelateSymbolQuoteView : public QuoteListBaseView {
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNewsRelateSymbolQuoteView(QWidget* parent = nullptr);

    // Does not attach to the back end.
    void OnInitialUpdate() override;
    // Creates the list and withdraws the request that the next view opens with the news of the linked symbol.
    bool CreateView(QWidget* parent, const QString& name, int first, int second) override;
    // Lists the symbols of a headline. One without a market is that of the first market that has its code.
    void setSymbolList(const CNewsSymLst& list);

    // For hosts: the number of rows; where there are any, also the focused symbol.
    int GetCurrSymbolInfo(unsigned char& service, QString& code) override;
    void GetCaption(QString& caption) override;
    void vChangeCast() override;
    // Whether whoever places it draws the lines between it and what is beside it.
    void leaveEdges(bool left) { edgesLeft = left; }

protected:
    void OnDraw(QPainter& painter) override;
    void vLoadLanguageString() override;
    QString notice() const override;

private:
    QColor lineColour;
    bool edgesLeft = false;
};

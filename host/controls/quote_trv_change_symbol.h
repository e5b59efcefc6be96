// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QDialog>

#include <vector>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

// The symbol picker: the symbols of every market in a tree, and a line to search them by code and name. A
// double click or Enter on a symbol reports it to the picker's parent by the registered message
// "RVMSGCHANGESYMBOLBYSEARCH", whose first parameter points to a CSymbolInfo; the picker stays open.
// Modeless; the installed back end gives the symbols, which are read when their market is opened.
class WIREPANE_HOST_EXPORT QuoteTRVChangeSymbol : public QDialog {
    Q_OBJECT

public:
    // The controls, by number.
    static constexpr int searchEdit = 1;
    static constexpr int symbolTree = 2;
    static constexpr int chooseButton = 3;
    static constexpr int closeButton = 4;

    // `purpose` 1: for a search dialog. `parent` hears what is chosen.
    QuoteTRVChangeSymbol(QWidget* parent, int purpose);

    // Creates the controls, hidden. False when no back end is installed.
    bool Create();
    // The picker is, or is not, in front of the user: then its search line takes the keyboard.
    void vSetShowStatus(bool shown);
    // The symbols of a market have changed; `update` points to a CSymbolUpdateInfo, 0: any market.
    void vDoSymbolUpdateTreeNode(quintptr update);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Market {
        unsigned char id;
        QString name;
        bool read = false;
        std::vector<QString> codes;
        std::vector<QString> names;
    };
    void readMarkets();
    void readSymbols(Market& market);
    void fillTree();
    void fillMarket(QTreeWidgetItem* item);
    void showMatches(const QString& typed);
    QTreeWidgetItem* addMarket(const Market& market);
    QTreeWidgetItem* addSymbol(QTreeWidgetItem* under, const Market& market, std::size_t symbol);
    void chooseItem(const QTreeWidgetItem* item);

    std::vector<Market> markets;
    QLineEdit* search = nullptr;
    QTreeWidget* tree = nullptr;
};

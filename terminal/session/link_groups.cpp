// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/link_groups.h"

#include "terminal/frame/workspace.h"
#include "terminal/settings/terminal_settings.h"

#include <QScopedValueRollback>

namespace wirepane {

LinkGroups::LinkGroups(Workspace& openViews, TerminalSettings& terminalSettings)
    : workspace(openViews), settings(terminalSettings) {
    connect(&workspace, &Workspace::opened, this, [this](const OpenView* open) {
        tell(*open);
        watch(*open);
    });
    connect(&workspace, &Workspace::linked, this, [this](const OpenView* open) { tell(*open); });
}

void LinkGroups::recall(const std::map<unsigned char, SymbolItem>& symbols) {
    current = symbols;
    for (const auto& [group, symbol] : current) {
        settings.setCurrentSymbol(group, symbol.code);
        emit changed(group, symbol);
    }
}

void LinkGroups::watch(const OpenView& open) {
    // Only from now on: what a view settles on while it starts up is its own matter.
    const TRVQuoteBaseView* view = open.view;
    connect(view, &TRVQuoteBaseView::SendChangeSymbol, this,
            [this, view](unsigned char group, unsigned char service, const QString& code) {
                if (!telling && group != 0)
                    change(view, group, {service, code, {}});
                workspace.refreshTitles();
            });
}

void LinkGroups::tell(const OpenView& open) {
    const unsigned char group = open.view->linkedGroup();
    const auto found = current.find(group);
    if (group == 0 || found == current.end())
        return;
    const QScopedValueRollback<bool> guard(telling, true);
    open.view->ChangeSymbol(nullptr, group, found->second.market, found->second.code, found->second.name);
}

void LinkGroups::change(const QWidget* sender, unsigned char group, const SymbolItem& symbol) {
    current[group] = symbol;
    settings.setCurrentSymbol(group, symbol.code);
    {
        const QScopedValueRollback<bool> guard(telling, true);
        for (const auto& open : workspace.views()) {
            if (group != 0 && open->view != sender && open->view->linkedGroup() == group)
                open->view->ChangeSymbol(sender, group, symbol.market, symbol.code, symbol.name);
        }
    }
    emit changed(group, symbol);
    workspace.refreshTitles();
}

}  // namespace wirepane

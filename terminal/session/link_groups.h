// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"

#include <QObject>

#include <map>

class QWidget;

namespace wirepane {
struct OpenView;
class TerminalSettings;
class Workspace;

// The symbols of the link groups: whoever changes one, all views of the group follow.
class LinkGroups : public QObject {
    Q_OBJECT

public:
    // Neither is owned; both outlive this.
    LinkGroups(Workspace& workspace, TerminalSettings& settings);

    // Makes it the group's symbol and tells the views of the group. `sender` is the view that has it already;
    // null: none has. Group 0 is the host's own, which no view follows.
    void change(const QWidget* sender, unsigned char group, const SymbolItem& symbol);
    // What views take for the group's symbol when they open; tells nobody.
    void recall(const std::map<unsigned char, SymbolItem>& symbols);
    const std::map<unsigned char, SymbolItem>& symbols() const { return current; }

signals:
    void changed(unsigned char group, const wirepane::SymbolItem& symbol);

private:
    void watch(const OpenView& open);
    // Brings the group's symbol to a view that has just joined it.
    void tell(const OpenView& open);

    Workspace& workspace;
    TerminalSettings& settings;
    std::map<unsigned char, SymbolItem> current;
    bool telling = false;
};

}  // namespace wirepane

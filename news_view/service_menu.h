// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/common_parts.h"

#include <array>
#include <functional>
#include <memory>
#include <vector>

class QAction;

namespace wirepane {
class TickingMenu;
class ViewContext;

// The menu in which the user ticks the services whose news the lists hold. The warrant mode looks at no
// ticked service: there the menu does not open, and no tick changes. Interface thread only.
class ServiceMenu {
public:
    struct Calls {
        std::function<void(int)> command;
        std::function<void()> ticksChanged;  // lists are to be read anew, registrations brought in line
        std::function<bool()> staysOpen = [] { return false; };  // while ticking
        std::function<std::array<int, 256>()> counts = {};  // headlines of each service in the shown list
        // Takes up the services that have come; see NewsServices::addNew.
        std::function<bool(bool ticked, bool isSetAside)> takeNew = [](bool, bool) { return false; };
    };
    ServiceMenu(ViewContext& context, const CommonParts& parts, Calls calls);
    ~ServiceMenu();

    // The services are known: the menu gets one command for each. Once.
    void fill();
    // Services may have come: they get commands behind the others, and the lists hold their news where
    // `areTicked`. Nothing before fill().
    void addNew(bool areTicked);
    bool isFilled() const { return menu != nullptr; }
    // Under its button.
    void popUp();
    void tickAll();
    // Ticks or unticks the service of a command; the last ticked service stays ticked.
    void toggle(int command);
    // What is ticked, and whether that can be changed, has changed.
    void showTicks();

private:
    void addEntries();
    void showCounts();
    bool standsFast() const;
    void addWholeChoice();
    // Ticks those services that `isWanted` says, at least one.
    void choose(const std::function<bool(std::size_t)>& isWanted);

    ViewContext& context;
    const CommonParts parts;
    const Calls calls;
    std::unique_ptr<TickingMenu> menu;
    std::size_t entries = 0;     // services that are in the menu
    QAction* endLine = nullptr;  // of the menu, where it stays open; so are these
    QAction* all = nullptr;
    QAction* asBefore = nullptr;
    QAction* hint = nullptr;
    std::vector<bool> tickedBefore;  // when the menu opened
};

}  // namespace wirepane

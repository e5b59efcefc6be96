// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/service_menu.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/fixed_services.h"
#include "host/controls/ticking_menu.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/news_services.h"
#include "news_view/view_context.h"

#include <utility>

namespace wirepane {

ServiceMenu::ServiceMenu(ViewContext& viewContext, const CommonParts& commonParts, Calls given)
    : context(viewContext), parts(commonParts), calls(std::move(given)) {}

ServiceMenu::~ServiceMenu() = default;

void ServiceMenu::fill() {
    menu = std::make_unique<TickingMenu>();
    addEntries();
}

void ServiceMenu::addEntries() {
    const auto& services = parts.services.currentServices();
    for (; entries < services.size(); ++entries) {
        const int id = ids::firstServiceCommand + static_cast<int>(entries);
        const unsigned char service = services[entries].service;
        if (service == warrantService || id > ids::lastServiceCommand)
            continue;
        QString name;
        parts.backEnd.BKQNEWS_bGetFullNameByService(name, service);
        auto* action = new QAction(name.replace(u'&', QStringLiteral("&&")), menu.get());
        menu->insertAction(endLine, action);
        action->setCheckable(true);
        action->setData(id);
        QObject::connect(action, &QAction::triggered, &parts.window, [this, id] { calls.command(id); });
    }
}

void ServiceMenu::addNew(bool areTicked) {
    if (!isFilled() || !calls.takeNew(areTicked, standsFast()))
        return;
    addEntries();
    // The menu may be open.
    tickedBefore.resize(entries, areTicked);
    showTicks();
    if (areTicked && !standsFast())
        calls.ticksChanged();
}

void ServiceMenu::addWholeChoice() {
    endLine = menu->addSeparator();
    all = menu->addAction(QString());
    QObject::connect(all, &QAction::triggered, &parts.window, [this] { tickAll(); });
    asBefore = menu->addAction(QString());
    QObject::connect(asBefore, &QAction::triggered, &parts.window,
                     [this] { choose([this](std::size_t index) { return tickedBefore.at(index); }); });
    hint = menu->addAction(QString());
    hint->setEnabled(false);
    QObject::connect(menu.get(), &TickingMenu::onlyAsked, &parts.window, [this](const QAction* entry) {
        const auto only = static_cast<std::size_t>(entry->data().toInt() - ids::firstServiceCommand);
        choose([only](std::size_t index) { return index == only; });
    });
}

void ServiceMenu::tickAll() {
    choose([](std::size_t) { return true; });
}

void ServiceMenu::choose(const std::function<bool(std::size_t)>& isWanted) {
    if (standsFast())
        return;
    const auto& services = parts.services.currentServices();
    for (std::size_t i = 0; i < services.size(); ++i) {
        if (services[i].service != warrantService)
            parts.services.select(i, isWanted(i));
    }
    parts.services.copyToSaved();
    showTicks();
    calls.ticksChanged();
}

void ServiceMenu::popUp() {
    const QWidget* button = dlgItem(&parts.window, ids::serviceButton);
    if (button == nullptr || standsFast())
        return;
    // The menu is filled before the view knows its settings.
    if (calls.staysOpen()) {
        if (all == nullptr)
            addWholeChoice();
        all->setText(langText(parts.backEnd, keys::allServices));
        asBefore->setText(langText(parts.backEnd, keys::servicesAsBefore));
        tickedBefore.clear();
        for (const ServiceEntry& entry : parts.services.currentServices())
            tickedBefore.push_back(entry.selected);
        hint->setText(langText(parts.backEnd, keys::onlyThisService));
        showCounts();
        menu->stayOpen(langText(parts.backEnd, keys::onlyThis));
    }
    menu->popup(button->mapToGlobal(button->rect().bottomLeft()));
    // Where Space ticks, it has something to tick from the start.
    if (calls.staysOpen() && !menu->isEmpty())
        menu->setActiveAction(menu->actions().front());
}

// Beside each service, how many of its headlines the list has.
void ServiceMenu::showCounts() {
    const std::array<int, 256> counts = calls.counts();
    const auto& services = parts.services.currentServices();
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (!action->isCheckable())
            continue;
        const auto service = static_cast<std::size_t>(action->data().toInt() - ids::firstServiceCommand);
        const int count = counts[services.at(service).service];
        action->setText(action->text().section(u'\t', 0, 0) + u'\t' +
                        (count > 0 ? QString::number(count) : QString()));
    }
}

void ServiceMenu::toggle(int command) {
    const auto index = static_cast<std::size_t>(command - ids::firstServiceCommand);
    if (index >= parts.services.currentServices().size() || standsFast())
        return;
    const bool selected = parts.services.currentServices()[index].selected;
    const bool isLast = selected && parts.services.selectedCount() < 2;
    if (!isLast) {
        parts.services.select(index, !selected);
        parts.services.copyToSaved();
    }
    // Choosing an item has turned its check mark already: it is set to what holds, refused or not.
    showTicks();
    if (!isLast)
        calls.ticksChanged();
}

// The warrant mode has set the user's choice aside.
bool ServiceMenu::standsFast() const {
    return context.shownList() == ListIndex::Warrant;
}

void ServiceMenu::showTicks() {
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (!action->isCheckable())
            continue;
        const auto service = static_cast<std::size_t>(action->data().toInt() - ids::firstServiceCommand);
        action->setChecked(parts.services.savedServices().at(service).selected);
        action->setEnabled(!standsFast());
    }
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_desk.h"
#include "backend/store/embedded_back_end.h"
#include "headline_list/list_index.h"
#include "host/contract/cfg_io.h"
#include "host/controls/super_sheet_wnd.h"
#include "news_view/trv_news_ctrl_view.h"
#include "tests/endurance/week_wire.h"

#include <QWidget>

#include <array>
#include <memory>

namespace wirepane {

// What the three views of a desk are for, and what they look for.
namespace desk {
inline constexpr int searching = 0;  // all modes, ordinary searches
inline constexpr int relating = 1;   // key sets
inline constexpr int warning = 2;    // warning terms
inline constexpr int views = 3;

inline const QString warningWord = QStringLiteral("strike");
// What the ticked key sets want.
bool isRelated(std::int32_t category, const QString& title);
}  // namespace desk

// A terminal with three views, all that views can do switched on, and alert rules over one store. The
// installed back end is its own from here on.
class Desk {
public:
    // `systemFolder` is where the module looks for its own files.
    Desk(const QString& storePath, const QString& systemFolder);
    // The same views with the same settings, opened fresh.
    Desk(const Desk& other, const QString& systemFolder);
    ~Desk();

    wirepane::EmbeddedBackEnd& embeddedBackEnd() { return *backEnd; }
    // Those of the terminal that was opened first: it alone keeps them.
    const AlertDesk& alerts() const { return *alertDesk; }
    TRVNewsCtrlView& viewOf(int number) const { return *views.at(static_cast<std::size_t>(number)).view; }
    std::vector<HeadlineKey> keysOf(int view, int list) const;
    std::vector<unsigned char> tickedServices(int view) const;
    // The modes that a view has, and a switch to one.
    static std::vector<int> modesOf(int view);
    void goTo(int view, int mode);
    // The cells of a row of the current list, which is scrolled there as a reader does.
    QStringList textsOf(int view, int list, int row) const;

    // Installs its back end as that of the process.
    void install();
    // Lets everything come to rest: what is told, drawn, searched for.
    void settle();
    // Reads every list of every view anew, for what the wire has of its own on that day.
    void rebuildLists(const QDate& day);
    // Ticks every service but the warrants in every view.
    void tickAllServices();
    // Something that a user does a hundred times a day; something that reads whole lists.
    void doSomething(WeekWire& dice);
    void doSomethingBig(WeekWire& dice, const QDate& day);

private:
    struct Place {
        std::unique_ptr<QWidget> frame;
        std::unique_ptr<TRVNewsCtrlView> view;
        MemoryCfgIO settings;
    };
    void open(int number, const QString& systemFolder);
    void tickKeySets();
    void startAlerts();
    void readAndHold(TRVNewsCtrlView& view, WeekWire& dice);
    void search(const QString& word);
    void askEveryService(const CSearch& condition);
    void awaitSearches();
    void letOtherSearchesGo();

    std::unique_ptr<wirepane::EmbeddedBackEnd> backEnd;
    std::unique_ptr<AlertDesk> alertDesk;  // null: there is none
    std::array<Place, desk::views> views;
};

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

class BKQuoteInterface;

namespace wirepane {
class ControlSet;
class Outages;
class HeadlineLists;
class ListTip;
class ModeLoading;
class NewsServices;
enum class NewsType : int;

}  // namespace wirepane

class QWidget;

namespace wirepane {
struct ApplicationSwitches;
struct ViewSettings;

// What several owners of the news view's work stand on, and none of them owns. All of it outlives them; an
// owner includes of it what it uses.
struct CommonParts {
    BKQuoteInterface& backEnd;
    QWidget& window;  // the view, for what needs a parent
    NewsServices& services;
    HeadlineLists& lists;
    ControlSet& controls;
    ViewSettings& settings;
    const ApplicationSwitches& switches;
    ModeLoading& loading;
    Outages& outages;
    ListTip& tip;
    const NewsType& newsType;
};

}  // namespace wirepane

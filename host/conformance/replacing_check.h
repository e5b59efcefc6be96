// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/bk_quote_interface.h"

#include <QString>

#include <chrono>
#include <functional>
#include <vector>

namespace wirepane {

// Puts a back end that tells which keys are gone (GoneHeadlineReceiver) through its duties, and tells which
// it breaks: every key of its services' current days that loses its headline is told, once, when it has lost
// it, and after the headline that took its place.
//
// `replace` makes the back end replace some of its headlines, so that at least one of the current day of its
// service has another time or day then; what the back end tells later is awaited in the event loop,
// `patience` at most.
//
// Result: a sentence for each broken duty; empty: none was seen broken. Interface thread, with an application
// object, while no view is attached.
std::vector<QString> brokenDutiesOfReplacing(BKQuoteInterface& backEnd, const std::function<void()>& replace,
                                             std::chrono::milliseconds patience = std::chrono::seconds(10));

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace wirepane {

// The markets that the importers know. Each number is the id of the market's service.
constexpr unsigned char unknownMarket = 0;
constexpr unsigned char usMarket = 1;
constexpr unsigned char listedMarket = 16;           // the Taiwan exchange's listed companies
constexpr unsigned char overTheCounterMarket = 122;  // those traded over the counter

// The market of an exchange by its code (ISO 10383, or a usual short name), or unknownMarket.
unsigned char marketOfExchange(QStringView exchange);

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/fixed_services.h"

#include <QStringView>

namespace wirepane {

// The markets that the importers know. Each number is the id of the market's service.
constexpr unsigned char unknownMarket = 0;
constexpr unsigned char usMarket = 1;

// The market of an exchange by its code (ISO 10383, or a usual short name), or unknownMarket.
unsigned char marketOfExchange(QStringView exchange);

}  // namespace wirepane

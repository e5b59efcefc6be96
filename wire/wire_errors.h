// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::wire_errors {

// Why a wire cannot be followed; nothing of what it brought is applied then.
inline constexpr ErrorCode hole{
    "ERROR_WIRE_HOLE",
    u"The wire has a hole before row %1: service %2 stands at %3 there and at %4 here. Nothing was taken."};
inline constexpr ErrorCode otherEpoch{
    "ERROR_WIRE_OTHER_EPOCH",
    u"The wire was set back: it is of the epoch %1 now, and this store follows %2. Nothing was taken."};
inline constexpr ErrorCode wentBack{"ERROR_WIRE_WENT_BACK",
                                    u"The wire was set back: it ends at row %1, and this store has followed "
                                    u"it to row %2. Nothing was taken."};
inline constexpr ErrorCode unknownFormat{
    "ERROR_WIRE_UNKNOWN_FORMAT",
    u"The wire is written in form %1, which this version of the program does not know."};
inline constexpr ErrorCode unknownKind{
    "ERROR_WIRE_UNKNOWN_KIND", u"It is of the kind \"%1\", which this version of the program does not know."};
inline constexpr ErrorCode rowDamaged{"ERROR_WIRE_ROW_DAMAGED",
                                      u"It is damaged: nothing can be read from it."};
inline constexpr ErrorCode row{"ERROR_WIRE_ROW", u"row %1 of the wire"};
inline constexpr ErrorCode positionUnreadable{
    "ERROR_WIRE_POSITION_UNREADABLE", u"How far this store has followed the wire is not to be read: \"%1\"."};

// How a wire stands.
inline constexpr ErrorCode noBeat{"ERROR_WIRE_NO_BEAT",
                                  u"No ingest point of the wire has given a sign of life for %1 seconds."};

// Of the server and of what speaks with it; %1 is in its own words.
inline constexpr ErrorCode server{"ERROR_WIRE_SERVER", u"The wire's server says: %1"};
inline constexpr ErrorCode notMade{"ERROR_WIRE_NOT_MADE",
                                   u"There is no wire in this database; \"wirepane wire init\" makes one."};
inline constexpr ErrorCode madeAlready{"ERROR_WIRE_MADE_ALREADY",
                                       u"There is a wire in this database already."};
inline constexpr ErrorCode driverMissing{"ERROR_WIRE_DRIVER_MISSING",
                                         u"What speaks with a wire's server is not installed: %1"};
inline constexpr ErrorCode serviceName{
    "ERROR_WIRE_SERVICE_NAME",
    u"\"%1\" is no name of a wire: letters, digits, \".\", \"_\" and \"-\" are taken."};

// Of what is published.
inline constexpr ErrorCode noQuotes{"ERROR_WIRE_NO_QUOTES", u"Quotes do not travel by a wire."};

}  // namespace wirepane::wire_errors

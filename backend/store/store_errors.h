// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::store_errors {

// Why a file cannot be used as a news store; %1 names it.
inline constexpr ErrorCode empty{"ERROR_STORE_EMPTY", u"%1 is empty: there is no news store in it."};
inline constexpr ErrorCode notWritable{"ERROR_STORE_NOT_WRITABLE",
                                       u"%1 cannot be written to: the file or its folder is read-only."};
inline constexpr ErrorCode otherDatabase{"ERROR_STORE_OTHER_DATABASE",
                                         u"%1 is a database, but not a news store."};
inline constexpr ErrorCode newerVersion{
    "ERROR_STORE_NEWER_VERSION",
    u"%1 was written by a newer version of the program (store version %2; this one reads up to %3)."};
inline constexpr ErrorCode olderVersion{
    "ERROR_STORE_OLDER_VERSION",
    u"%1 is of version %2; the program brings it up to version %3 when it opens it."};

inline constexpr ErrorCode faultFound{
    "ERROR_STORE_FAULT_FOUND",
    u"A check in the background has found a fault in the store %1; \"wirepane check\" says which."};

// Of transactions.
inline constexpr ErrorCode nothingToKeep{"ERROR_STORE_NOTHING_TO_KEEP",
                                         u"Nothing was begun that could be kept."};
inline constexpr ErrorCode nothingBegun{"ERROR_STORE_NOTHING_BEGUN",
                                        u"Nothing was begun that the %1 could be part of."};
inline constexpr ErrorCode stopped{"ERROR_STORE_STOPPED", u"The program ends: nothing more is taken in."};
inline constexpr ErrorCode news{"ERROR_STORE_NEWS", u"news"};
inline constexpr ErrorCode story{"ERROR_STORE_STORY", u"story"};
inline constexpr ErrorCode position{"ERROR_STORE_POSITION", u"position"};
inline constexpr ErrorCode symbol{"ERROR_STORE_SYMBOL", u"symbol"};
inline constexpr ErrorCode category{"ERROR_STORE_CATEGORY", u"category"};
inline constexpr ErrorCode quote{"ERROR_STORE_QUOTE", u"quote"};

// Of items.
inline constexpr ErrorCode noHeadline{"ERROR_STORE_NO_HEADLINE", u"There is no headline with this key."};
inline constexpr ErrorCode withdrawsUnknown{"ERROR_STORE_WITHDRAWS_UNKNOWN",
                                            u"It withdraws news that is not in the store."};
inline constexpr ErrorCode beyondRetention{"ERROR_STORE_BEYOND_RETENTION",
                                           u"It is older than the news that this store keeps: since %1."};
inline constexpr ErrorCode changeUnreadable{
    "ERROR_STORE_CHANGE_UNREADABLE", u"What an import had kept of it in the store (row %1) is damaged."};
inline constexpr ErrorCode ofWireAlone{
    "ERROR_STORE_OF_WIRE_ALONE",
    u"This store follows a wire and takes news from there alone; publish it on the wire."};
inline constexpr ErrorCode newsOfItsOwn{
    "ERROR_STORE_NEWS_OF_ITS_OWN",
    u"This store has news of its own; a wire needs a store that has none, or follows it already."};
inline constexpr ErrorCode copyDiffers{"ERROR_STORE_COPY_DIFFERS",
                                       u"The store holds the news %1 otherwise than the wire does."};
inline constexpr ErrorCode newsGone{"ERROR_STORE_NEWS_GONE", u"The news is no longer in the store."};
inline constexpr ErrorCode noNumberLeft{"ERROR_STORE_NO_NUMBER_LEFT",
                                        u"No sequence number is left on its day."};
inline constexpr ErrorCode numberTaken{
    "ERROR_STORE_NUMBER_TAKEN",
    u"Its sequence number %1 belongs to another headline of that service and day."};
inline constexpr ErrorCode categoryHasId{
    "ERROR_STORE_CATEGORY_HAS_ID",
    u"The category \"%1\" has the id %2 already; it cannot have the id %3 too."};
inline constexpr ErrorCode tooLong{"ERROR_STORE_TOO_LONG",
                                   u"The %1 has %2 characters; at most %3 are taken."};
inline constexpr ErrorCode codeOfSymbol{"ERROR_STORE_CODE_OF_SYMBOL", u"code of a symbol"};
inline constexpr ErrorCode nameOfSymbol{"ERROR_STORE_NAME_OF_SYMBOL", u"name of the symbol"};
inline constexpr ErrorCode identity{"ERROR_STORE_IDENTITY", u"identity"};
inline constexpr ErrorCode title{"ERROR_STORE_TITLE", u"title"};
inline constexpr ErrorCode symbolWithoutCode{"ERROR_STORE_SYMBOL_WITHOUT_CODE", u"A symbol has no code."};
inline constexpr ErrorCode noService{"ERROR_STORE_NO_SERVICE", u"It belongs to no news service."};
inline constexpr ErrorCode noIdentity{"ERROR_STORE_NO_IDENTITY", u"It has no identity."};
inline constexpr ErrorCode titleEmpty{"ERROR_STORE_TITLE_EMPTY", u"The title is empty."};
inline constexpr ErrorCode timeOutOfRange{
    "ERROR_STORE_TIME_OUT_OF_RANGE",
    u"Its time (%1 seconds since 1970) does not lie within the years 1900 to 9999."};
inline constexpr ErrorCode tooManySymbols{"ERROR_STORE_TOO_MANY_SYMBOLS",
                                          u"It names %1 related symbols; at most %2 are taken."};
inline constexpr ErrorCode symbolWithoutMarket{"ERROR_STORE_SYMBOL_WITHOUT_MARKET",
                                               u"The symbol belongs to no market."};
inline constexpr ErrorCode categoryWithoutService{"ERROR_STORE_CATEGORY_WITHOUT_SERVICE",
                                                  u"The category belongs to no news service."};
inline constexpr ErrorCode categoryIdTooSmall{"ERROR_STORE_CATEGORY_ID_TOO_SMALL",
                                              u"The category has the id %1; ids count from 1 on."};
inline constexpr ErrorCode categoryWithoutName{"ERROR_STORE_CATEGORY_WITHOUT_NAME",
                                               u"The category has no name."};
inline constexpr ErrorCode noColour{"ERROR_STORE_NO_COLOUR",
                                    u"The colour \"%1\" is not of the form #rrggbb."};
inline constexpr ErrorCode quoteWithoutMarket{"ERROR_STORE_QUOTE_WITHOUT_MARKET",
                                              u"The quote belongs to no market."};
inline constexpr ErrorCode lastPriceOutOfRange{"ERROR_STORE_LAST_PRICE_OUT_OF_RANGE",
                                               u"The last price of %1 is not a number from 0 to %2."};
inline constexpr ErrorCode changeOutOfRange{
    "ERROR_STORE_CHANGE_OUT_OF_RANGE", u"The change of %1 is not a number, or larger than its last price."};
inline constexpr ErrorCode volumeOutOfRange{"ERROR_STORE_VOLUME_OUT_OF_RANGE",
                                            u"The volume of %1 is not a number from 0 to %2."};

}  // namespace wirepane::store_errors

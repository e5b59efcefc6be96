// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::network_errors {

// Of definitions of sources.
inline constexpr ErrorCode fieldWrong{"ERROR_NETWORK_FIELD_WRONG",
                                      u"The field “%1” of the source cannot be “%2”."};
inline constexpr ErrorCode noAddress{"ERROR_NETWORK_NO_ADDRESS",
                                     u"“%1” is no address that a source can have."};
inline constexpr ErrorCode secretInAddress{
    "ERROR_NETWORK_SECRET_IN_ADDRESS",
    u"The address holds a user name or password; they are kept with the secrets instead."};
inline constexpr ErrorCode authorisationIncomplete{
    "ERROR_NETWORK_AUTHORISATION_INCOMPLETE",
    u"The source's authorisation lacks the name of its secret or of its field."};
inline constexpr ErrorCode fileNotTyped{"ERROR_NETWORK_FILE_NOT_TYPED",
                                        u"A file is a source only where the user has typed its address."};

// Of the list of sources.
inline constexpr ErrorCode noSource{"ERROR_NETWORK_NO_SOURCE", u"There is no source “%1” in the list."};
inline constexpr ErrorCode listFull{"ERROR_NETWORK_LIST_FULL",
                                    u"The list holds %1 sources; no more can be added."};

}  // namespace wirepane::network_errors

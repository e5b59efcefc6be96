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

// Of requests; %1 is the host's name.
inline constexpr ErrorCode hostUnknown{
    "ERROR_NETWORK_HOST_UNKNOWN",
    u"The host %1 is not known: the name was misspelt, or there is no connection."};
inline constexpr ErrorCode privateAddress{
    "ERROR_NETWORK_PRIVATE_ADDRESS",
    u"%1 leads into a private network, where only an address that the user has typed may lead."};
inline constexpr ErrorCode refused{"ERROR_NETWORK_REFUSED", u"%1 does not take connections at this port."};
inline constexpr ErrorCode notReached{"ERROR_NETWORK_NOT_REACHED", u"%1 cannot be reached."};
inline constexpr ErrorCode proxyFails{"ERROR_NETWORK_PROXY_FAILS",
                                      u"%1 cannot be reached through the proxy of the system."};
inline constexpr ErrorCode quiet{"ERROR_NETWORK_QUIET", u"%1 has not answered in time."};
inline constexpr ErrorCode timedOut{"ERROR_NETWORK_TIMED_OUT",
                                    u"The answer of %1 was not complete after %2 seconds."};
inline constexpr ErrorCode cutOff{"ERROR_NETWORK_CUT_OFF",
                                  u"The answer of %1 broke off; nothing of it was taken."};
inline constexpr ErrorCode bodyTooLarge{"ERROR_NETWORK_BODY_TOO_LARGE",
                                        u"The answer is larger than %1 MiB; nothing of it was taken."};
inline constexpr ErrorCode redirectElsewhere{"ERROR_NETWORK_REDIRECT_ELSEWHERE",
                                             u"%1 sends on to an address that is none of the web's."};
inline constexpr ErrorCode redirectInClear{"ERROR_NETWORK_REDIRECT_IN_CLEAR",
                                           u"%1 sends on to %2 without encryption; that is not followed."};
inline constexpr ErrorCode redirectedTooOften{"ERROR_NETWORK_REDIRECTED_TOO_OFTEN",
                                              u"%1 sends on more than %2 times; it may be a loop."};
inline constexpr ErrorCode certificateExpired{
    "ERROR_NETWORK_CERTIFICATE_EXPIRED",
    u"The certificate of %1 expired on %2, or the clock of this machine is off."};
inline constexpr ErrorCode certificateNotYetValid{
    "ERROR_NETWORK_CERTIFICATE_NOT_YET_VALID",
    u"The certificate of %1 is valid from %2 on; the clock of this machine may be off."};
inline constexpr ErrorCode certificateOfOther{
    "ERROR_NETWORK_CERTIFICATE_OF_OTHER",
    u"Who answers for %1 shows the certificate of “%2”; nothing was asked of it."};
inline constexpr ErrorCode certificateNotTrusted{"ERROR_NETWORK_CERTIFICATE_NOT_TRUSTED",
                                                 u"The certificate of %1 comes from no authority that is "
                                                 u"trusted; a private one can be named with the source."};
inline constexpr ErrorCode tlsFailed{"ERROR_NETWORK_TLS_FAILED",
                                     u"No encrypted connection to %1 could be agreed on."};
inline constexpr ErrorCode notAuthorised{"ERROR_NETWORK_NOT_AUTHORISED",
                                         u"%1 wants a valid authorisation (status %2)."};
inline constexpr ErrorCode forbidden{
    "ERROR_NETWORK_FORBIDDEN",
    u"%1, or a firewall on the way, does not let this request through (status %2)."};
inline constexpr ErrorCode notThere{"ERROR_NETWORK_NOT_THERE",
                                    u"%1 has nothing at this address any more (status %2)."};
inline constexpr ErrorCode askedTooOften{"ERROR_NETWORK_ASKED_TOO_OFTEN",
                                         u"%1 was asked too often and wants to be asked later."};
inline constexpr ErrorCode signInNeeded{"ERROR_NETWORK_SIGN_IN_NEEDED",
                                        u"The network on the way to %1 wants somebody to sign in first."};
inline constexpr ErrorCode serverFails{"ERROR_NETWORK_SERVER_FAILS",
                                       u"%1 cannot answer at present (status %2)."};
inline constexpr ErrorCode strangeStatus{"ERROR_NETWORK_STRANGE_STATUS",
                                         u"%1 gives an answer that is no news (status %2)."};

// Of answers.
inline constexpr ErrorCode pageInstead{"ERROR_NETWORK_PAGE_INSTEAD",
                                       u"%1 gives a page for people instead of news: “%2”."};
inline constexpr ErrorCode portalInstead{
    "ERROR_NETWORK_PORTAL_INSTEAD",
    u"%1 leads to a page of %2 instead of news, as networks do where somebody has to sign in first."};
inline constexpr ErrorCode emptyAnswer{"ERROR_NETWORK_EMPTY_ANSWER", u"The answer of %1 is empty."};
inline constexpr ErrorCode emptyList{"ERROR_NETWORK_EMPTY_LIST",
                                     u"The list of %1 holds nothing any more; what was in it stays."};
inline constexpr ErrorCode nothingTaken{"ERROR_NETWORK_NOTHING_TAKEN",
                                        u"Of %1 {item|items} none can be taken, the first because: %2"};
inline constexpr ErrorCode clockOff{"ERROR_NETWORK_CLOCK_OFF",
                                    u"The clocks of %1 and of this machine are %2 minutes apart."};
inline constexpr ErrorCode mappingMissing{"ERROR_NETWORK_MAPPING_MISSING",
                                          u"The mapping “%1” of the source cannot be used: %2"};
inline constexpr ErrorCode noStream{"ERROR_NETWORK_NO_STREAM",
                                    u"%1 gives no stream of news at this address (%2)."};
inline constexpr ErrorCode streamBroke{"ERROR_NETWORK_STREAM_BROKE",
                                       u"The stream of %1 broke off; it is called again."};
inline constexpr ErrorCode eventTooLong{"ERROR_NETWORK_EVENT_TOO_LONG",
                                        u"The stream sent an event of more than %1 MiB; it was left out."};
inline constexpr ErrorCode tooFast{"ERROR_NETWORK_TOO_FAST",
                                   u"%1 sends faster than its news can be taken; it is called again."};
inline constexpr ErrorCode socketInClear{
    "ERROR_NETWORK_SOCKET_IN_CLEAR",
    u"%1 would be dialled without encryption; that needs an address that the user has typed."};
inline constexpr ErrorCode otherFormat{"ERROR_NETWORK_OTHER_FORMAT",
                                       u"The answer is %1, not what the source is said to give."};

}  // namespace wirepane::network_errors

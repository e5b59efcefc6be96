// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

// Why a file, or an item of it, cannot be taken in, and the words that these sentences are made with.
namespace wirepane::import_errors {

// Of a file as a whole.
inline constexpr ErrorCode fileMissing{"ERROR_IMPORT_FILE_MISSING", u"The file does not exist."};
inline constexpr ErrorCode noFile{"ERROR_IMPORT_NO_FILE", u"This is not a file."};
inline constexpr ErrorCode fileNotOpened{"ERROR_IMPORT_FILE_NOT_OPENED", u"The file cannot be opened: %1."};
inline constexpr ErrorCode fileNotReadToEnd{"ERROR_IMPORT_FILE_NOT_READ_TO_END",
                                            u"The file cannot be read to its end: %1."};
inline constexpr ErrorCode fileEmpty{"ERROR_IMPORT_FILE_EMPTY", u"The file is empty."};
inline constexpr ErrorCode fileTooLarge{
    "ERROR_IMPORT_FILE_TOO_LARGE",
    u"The file is larger than %1 bytes; only JSON with one record per line may be."};
inline constexpr ErrorCode noKnownEncoding{"ERROR_IMPORT_NO_KNOWN_ENCODING",
                                           u"The file is neither UTF-8 nor code page 950."};
inline constexpr ErrorCode noUtf16{"ERROR_IMPORT_NO_UTF_16", u"The file starts as UTF-16 but is not."};
inline constexpr ErrorCode unknownFormat{"ERROR_IMPORT_UNKNOWN_FORMAT",
                                         u"The file is of no known format (%1): it starts with %2."};
inline constexpr ErrorCode xmlWithoutElement{
    "ERROR_IMPORT_XML_WITHOUT_ELEMENT", u"The file looks like XML, but no element is found at its start."};
inline constexpr ErrorCode unknownXml{"ERROR_IMPORT_UNKNOWN_XML",
                                      u"The file is XML of a kind that is not known here: its root is <%1>."};
inline constexpr ErrorCode unknownXmlOf{
    "ERROR_IMPORT_UNKNOWN_XML_OF",
    u"The file is XML of a kind that is not known here: its root is <%1> of “%2”."};
inline constexpr ErrorCode unknownJson{
    "ERROR_IMPORT_UNKNOWN_JSON",
    u"The file is JSON of a kind that is not known here: a record has the fields %1."};
inline constexpr ErrorCode unknownEncoding{"ERROR_IMPORT_UNKNOWN_ENCODING",
                                           u"The file declares the encoding “%1”, which is not known here."};
inline constexpr ErrorCode xmlNotRead{"ERROR_IMPORT_XML_NOT_READ", u"The XML cannot be read: %1."};

// Of lists and lines of records.
inline constexpr ErrorCode lineTooLong{"ERROR_IMPORT_LINE_TOO_LONG", u"The line is longer than %1 bytes."};
inline constexpr ErrorCode listWithoutEnd{"ERROR_IMPORT_LIST_WITHOUT_END",
                                          u"The list has no end: “]” is missing."};
inline constexpr ErrorCode behindList{"ERROR_IMPORT_BEHIND_LIST",
                                      u"There is something behind the end of the list."};
inline constexpr ErrorCode messageEmpty{"ERROR_IMPORT_MESSAGE_EMPTY", u"The message holds no item."};
inline constexpr ErrorCode otherNewsml{"ERROR_IMPORT_OTHER_NEWSML", u"The <%1> is %2, not a news item."};
inline constexpr ErrorCode packageOfLinks{"ERROR_IMPORT_PACKAGE_OF_LINKS",
                                          u"a package of links to news items"};
inline constexpr ErrorCode loneConcept{"ERROR_IMPORT_LONE_CONCEPT", u"a concept"};
inline constexpr ErrorCode setOfConcepts{"ERROR_IMPORT_SET_OF_CONCEPTS", u"a set of concepts"};
inline constexpr ErrorCode planOfCoverage{"ERROR_IMPORT_PLAN_OF_COVERAGE", u"a plan of coverage"};
inline constexpr ErrorCode catalogueOfCodes{"ERROR_IMPORT_CATALOGUE_OF_CODES", u"a catalogue of code lists"};

// Of a record.
inline constexpr ErrorCode recordTooLong{"ERROR_IMPORT_RECORD_TOO_LONG",
                                         u"The record is longer than %1 bytes."};
inline constexpr ErrorCode recordNoObject{"ERROR_IMPORT_RECORD_NO_OBJECT",
                                          u"The record is not a JSON object."};
inline constexpr ErrorCode recordNoJson{"ERROR_IMPORT_RECORD_NO_JSON",
                                        u"The record is not valid JSON: %1 (at byte %2)."};
inline constexpr ErrorCode recordField{"ERROR_IMPORT_RECORD_FIELD", u"The field “%1” must be %2, not %3."};
inline constexpr ErrorCode trueOrFalse{"ERROR_IMPORT_TRUE_OR_FALSE", u"true or false"};
inline constexpr ErrorCode aNumber{"ERROR_IMPORT_A_NUMBER", u"a number"};
inline constexpr ErrorCode aText{"ERROR_IMPORT_A_TEXT", u"a text"};
inline constexpr ErrorCode aList{"ERROR_IMPORT_A_LIST", u"a list"};
inline constexpr ErrorCode anObject{"ERROR_IMPORT_AN_OBJECT", u"an object"};
inline constexpr ErrorCode nothing{"ERROR_IMPORT_NOTHING", u"nothing"};
inline constexpr ErrorCode recordWithoutUri{"ERROR_IMPORT_RECORD_WITHOUT_URI", u"The record has no “uri”."};
inline constexpr ErrorCode recordWithoutTitle{"ERROR_IMPORT_RECORD_WITHOUT_TITLE",
                                              u"The record has no title and no text to make one from."};
inline constexpr ErrorCode recordWithoutTime{
    "ERROR_IMPORT_RECORD_WITHOUT_TIME",
    u"The record has no time (“versioncreated”, “firstcreated” or “contentcreated”)."};
inline constexpr ErrorCode recordTimeUnread{"ERROR_IMPORT_RECORD_TIME_UNREAD",
                                            u"The record has no time that can be read: “%1” is “%2”."};
inline constexpr ErrorCode notForPublication{"ERROR_IMPORT_NOT_FOR_PUBLICATION",
                                             u"The record is not for publication: “%1” is “%2”."};
inline constexpr ErrorCode underEmbargo{"ERROR_IMPORT_UNDER_EMBARGO",
                                        u"The record is under embargo: “%1” is “%2”."};
inline constexpr ErrorCode identityTooLong{"ERROR_IMPORT_IDENTITY_TOO_LONG",
                                           u"The %1 is longer than %2 characters."};
inline constexpr ErrorCode uriOfRecord{"ERROR_IMPORT_URI_OF_RECORD", u"“uri” of the record"};
inline constexpr ErrorCode guidOfItem{"ERROR_IMPORT_GUID_OF_ITEM", u"“guid” of the item"};
inline constexpr ErrorCode identityOfEntry{"ERROR_IMPORT_IDENTITY_OF_ENTRY", u"entry's identity"};
inline constexpr ErrorCode identityOfRow{"ERROR_IMPORT_IDENTITY_OF_ROW", u"row's identity"};
inline constexpr ErrorCode entryWithoutTitle{"ERROR_IMPORT_ENTRY_WITHOUT_TITLE",
                                             u"The entry has no title and no text to make one from."};
inline constexpr ErrorCode entryWithoutDate{"ERROR_IMPORT_ENTRY_WITHOUT_DATE",
                                            u"Neither the entry nor its feed has a date that can be read."};
inline constexpr ErrorCode itemWithoutGuid{"ERROR_IMPORT_ITEM_WITHOUT_GUID", u"The item has no “guid”."};
inline constexpr ErrorCode itemWithoutHeadline{"ERROR_IMPORT_ITEM_WITHOUT_HEADLINE",
                                               u"The item has no headline and no text to make one from."};
inline constexpr ErrorCode itemWithoutTime{"ERROR_IMPORT_ITEM_WITHOUT_TIME",
                                           u"The item has no time (“versionCreated”)."};
inline constexpr ErrorCode itemTimeUnread{"ERROR_IMPORT_ITEM_TIME_UNREAD",
                                          u"The item has no time that can be read: “%1” is “%2”."};

// Of a row of a table.
inline constexpr ErrorCode quoteNotClosed{"ERROR_IMPORT_QUOTE_NOT_CLOSED",
                                          u"A quote is opened and never closed; nothing behind it is read."};
inline constexpr ErrorCode numberOutOfRange{"ERROR_IMPORT_NUMBER_OUT_OF_RANGE",
                                            u"“%1” is not a %2: it must be a number from %3 to %4."};
inline constexpr ErrorCode noPrice{"ERROR_IMPORT_NO_PRICE",
                                   u"“%1” is not a %2: it must be a number such as 12.5."};
inline constexpr ErrorCode market{"ERROR_IMPORT_MARKET", u"market"};
inline constexpr ErrorCode category{"ERROR_IMPORT_CATEGORY", u"category"};
inline constexpr ErrorCode categoryId{"ERROR_IMPORT_CATEGORY_ID", u"category id"};
inline constexpr ErrorCode service{"ERROR_IMPORT_SERVICE", u"service"};
inline constexpr ErrorCode lastPrice{"ERROR_IMPORT_LAST_PRICE", u"last price"};
inline constexpr ErrorCode change{"ERROR_IMPORT_CHANGE", u"change"};
inline constexpr ErrorCode volume{"ERROR_IMPORT_VOLUME", u"volume"};
inline constexpr ErrorCode noSymbolCode{"ERROR_IMPORT_NO_SYMBOL_CODE", u"“%1” is not a symbol code."};
inline constexpr ErrorCode symbolWithoutName{"ERROR_IMPORT_SYMBOL_WITHOUT_NAME",
                                             u"The symbol “%1” has no name."};
inline constexpr ErrorCode categoryWithoutName{"ERROR_IMPORT_CATEGORY_WITHOUT_NAME",
                                               u"The category %1 has no name."};
inline constexpr ErrorCode noColour{"ERROR_IMPORT_NO_COLOUR",
                                    u"“%1” is not a colour: it must be as “#rrggbb”."};

// Of a table of news, and of the mapping that describes it.
inline constexpr ErrorCode noMappedEncoding{"ERROR_IMPORT_NO_MAPPED_ENCODING",
                                            u"The file is in none of the encodings of the mapping."};
inline constexpr ErrorCode markupPage{"ERROR_IMPORT_MARKUP_PAGE",
                                      u"The file is a page of markup, not a table: it starts with “%1”."};
inline constexpr ErrorCode columnMissing{"ERROR_IMPORT_COLUMN_MISSING",
                                         u"The table has no column “%1”, which the mapping names."};
inline constexpr ErrorCode rowNoJson{"ERROR_IMPORT_ROW_NO_JSON",
                                     u"The row is not valid JSON: %1 (at byte %2)."};
inline constexpr ErrorCode rowNoObject{"ERROR_IMPORT_ROW_NO_OBJECT", u"The row is not a JSON object."};
inline constexpr ErrorCode rowWithoutIdentity{"ERROR_IMPORT_ROW_WITHOUT_IDENTITY",
                                              u"The row has nothing in the columns that identify it (%1)."};
inline constexpr ErrorCode rowWithoutService{"ERROR_IMPORT_ROW_WITHOUT_SERVICE",
                                             u"“%1” names no service: the mapping has no number for it."};
inline constexpr ErrorCode rowWithoutTitle{"ERROR_IMPORT_ROW_WITHOUT_TITLE",
                                           u"The row has no title and no text to make one from."};
inline constexpr ErrorCode rowWithoutDate{"ERROR_IMPORT_ROW_WITHOUT_DATE", u"The row has no date."};
inline constexpr ErrorCode rowTimeUnread{"ERROR_IMPORT_ROW_TIME_UNREAD",
                                         u"“%1” is not a time of the form that the mapping states."};
inline constexpr ErrorCode timeForm{"ERROR_IMPORT_TIME_FORM", u"“%1” is not a form of dates or times."};
inline constexpr ErrorCode timeFormAt{"ERROR_IMPORT_TIME_FORM_AT",
                                      u"“%1” is not a form of dates or times: look at “%2”."};
inline constexpr ErrorCode mappingNotOpened{"ERROR_IMPORT_MAPPING_NOT_OPENED",
                                            u"The mapping %1 cannot be opened: %2."};
inline constexpr ErrorCode mappingTooLarge{"ERROR_IMPORT_MAPPING_TOO_LARGE",
                                           u"The mapping %1 is larger than %2 bytes."};
inline constexpr ErrorCode mappingNoJson{"ERROR_IMPORT_MAPPING_NO_JSON",
                                         u"The mapping is not valid JSON: %1 (at byte %2)."};
inline constexpr ErrorCode mappingNoObject{"ERROR_IMPORT_MAPPING_NO_OBJECT",
                                           u"The mapping is not a JSON object."};
inline constexpr ErrorCode mappingFieldUnknown{"ERROR_IMPORT_MAPPING_FIELD_UNKNOWN",
                                               u"The mapping's “%1” is not known."};
inline constexpr ErrorCode mappingFieldUnusable{"ERROR_IMPORT_MAPPING_FIELD_UNUSABLE",
                                                u"The mapping's “%1” cannot be used: %2"};
inline constexpr ErrorCode mappingField{"ERROR_IMPORT_MAPPING_FIELD", u"The mapping's “%1” %2."};
inline constexpr ErrorCode mustBeTexts{"ERROR_IMPORT_MUST_BE_TEXTS",
                                       u"must be a text or a list of texts, none of them empty"};
inline constexpr ErrorCode mustHoldTexts{"ERROR_IMPORT_MUST_HOLD_TEXTS", u"must hold texts or numbers"};
inline constexpr ErrorCode noZone{"ERROR_IMPORT_NO_ZONE",
                                  u"is neither an offset such as “+08:00” nor a zone that is known here"};
inline constexpr ErrorCode mustNameColumn{"ERROR_IMPORT_MUST_NAME_COLUMN", u"must name a column"};
inline constexpr ErrorCode withClock{"ERROR_IMPORT_WITH_CLOCK", u"and “clock” must be there together"};
inline constexpr ErrorCode mustNameServices{"ERROR_IMPORT_MUST_NAME_SERVICES",
                                            u"must name services by numbers from 1 to 255"};
inline constexpr ErrorCode mustBeLines{"ERROR_IMPORT_MUST_BE_LINES",
                                       u"must be “wrapped”, “kept” or “numbered”"};
inline constexpr ErrorCode mustBeCharacter{"ERROR_IMPORT_MUST_BE_CHARACTER", u"must be one character"};
inline constexpr ErrorCode namesEncoding{"ERROR_IMPORT_NAMES_ENCODING",
                                         u"names “%1”, which is not known here"};
inline constexpr ErrorCode mustNameIdentity{"ERROR_IMPORT_MUST_NAME_IDENTITY",
                                            u"must name the columns that tell one item from another"};
inline constexpr ErrorCode mustNameTitle{"ERROR_IMPORT_MUST_NAME_TITLE",
                                         u"must name a column, unless “story” does"};

// Of the lines of a feed.
inline constexpr ErrorCode itemField{"ERROR_IMPORT_ITEM_FIELD", u"“%1” of the item %2."};
inline constexpr ErrorCode quoteField{"ERROR_IMPORT_QUOTE_FIELD", u"“%1” of the quote %2."};
inline constexpr ErrorCode symbolField{"ERROR_IMPORT_SYMBOL_FIELD", u"“%1” of the symbol %2."};
inline constexpr ErrorCode categoryField{"ERROR_IMPORT_CATEGORY_FIELD", u"“%1” of the category %2."};
inline constexpr ErrorCode holdsNoSymbol{"ERROR_IMPORT_HOLDS_NO_SYMBOL",
                                         u"has an entry that is no {market, code}"};

// What is wrong with a field of a JSON object.
inline constexpr ErrorCode isMissing{"ERROR_IMPORT_IS_MISSING", u"is missing"};
inline constexpr ErrorCode mustBeText{"ERROR_IMPORT_MUST_BE_TEXT", u"must be a text"};
inline constexpr ErrorCode mustBeAnyNumber{"ERROR_IMPORT_MUST_BE_ANY_NUMBER", u"must be a number"};
inline constexpr ErrorCode mustBeNumber{"ERROR_IMPORT_MUST_BE_NUMBER", u"must be a number from %1 to %2"};
inline constexpr ErrorCode mustBeTrueOrFalse{"ERROR_IMPORT_MUST_BE_TRUE_OR_FALSE", u"must be true or false"};
inline constexpr ErrorCode mustBeList{"ERROR_IMPORT_MUST_BE_LIST", u"must be a list"};
inline constexpr ErrorCode mustBeObject{"ERROR_IMPORT_MUST_BE_OBJECT", u"must be an object"};

// What is wrong with JSON, in the words of its parser.
inline constexpr ErrorCode jsonObjectWithoutEnd{"ERROR_IMPORT_JSON_OBJECT_WITHOUT_END",
                                                u"unterminated object"};
inline constexpr ErrorCode jsonNameSeparator{"ERROR_IMPORT_JSON_NAME_SEPARATOR", u"missing name separator"};
inline constexpr ErrorCode jsonListWithoutEnd{"ERROR_IMPORT_JSON_LIST_WITHOUT_END", u"unterminated array"};
inline constexpr ErrorCode jsonValueSeparator{"ERROR_IMPORT_JSON_VALUE_SEPARATOR",
                                              u"missing value separator"};
inline constexpr ErrorCode jsonValue{"ERROR_IMPORT_JSON_VALUE", u"illegal value"};
inline constexpr ErrorCode jsonNumberEnd{"ERROR_IMPORT_JSON_NUMBER_END", u"invalid termination by number"};
inline constexpr ErrorCode jsonNumber{"ERROR_IMPORT_JSON_NUMBER", u"illegal number"};
inline constexpr ErrorCode jsonEscape{"ERROR_IMPORT_JSON_ESCAPE", u"invalid escape sequence"};
inline constexpr ErrorCode jsonUtf8{"ERROR_IMPORT_JSON_UTF_8", u"invalid UTF8 string"};
inline constexpr ErrorCode jsonTextWithoutEnd{"ERROR_IMPORT_JSON_TEXT_WITHOUT_END", u"unterminated string"};
inline constexpr ErrorCode jsonObjectMissing{"ERROR_IMPORT_JSON_OBJECT_MISSING",
                                             u"object is missing after a comma"};
inline constexpr ErrorCode jsonTooDeep{"ERROR_IMPORT_JSON_TOO_DEEP", u"too deeply nested document"};
inline constexpr ErrorCode jsonTooLarge{"ERROR_IMPORT_JSON_TOO_LARGE", u"too large document"};
inline constexpr ErrorCode jsonBehindEnd{"ERROR_IMPORT_JSON_BEHIND_END",
                                         u"garbage at the end of the document"};

// Where something stands in a file.
inline constexpr ErrorCode atLine{"ERROR_IMPORT_AT_LINE", u"line %1"};
inline constexpr ErrorCode atLineNamed{"ERROR_IMPORT_AT_LINE_NAMED", u"line %1 (%2)"};
inline constexpr ErrorCode atItem{"ERROR_IMPORT_AT_ITEM", u"item %1"};
inline constexpr ErrorCode atItemNamed{"ERROR_IMPORT_AT_ITEM_NAMED", u"item %1 (%2)"};
inline constexpr ErrorCode atRow{"ERROR_IMPORT_AT_ROW", u"row %1"};
inline constexpr ErrorCode atRowNamed{"ERROR_IMPORT_AT_ROW_NAMED", u"row %1 (%2)"};
inline constexpr ErrorCode atEnd{"ERROR_IMPORT_AT_END", u"the end"};

}  // namespace wirepane::import_errors

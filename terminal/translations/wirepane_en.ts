<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="ERROR_COMMANDS_FILES_NOT_READ">
        <source></source>
        <translation>%1 of %2 {file|files} could not be read.</translation>
    </message>
    <message id="ERROR_COMMANDS_FILE_REJECTED">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="ERROR_COMMANDS_IMPORT_STOPPED">
        <source></source>
        <translation>Stopped. The files taken in so far are kept; the same command goes on with the rest.</translation>
    </message>
    <message id="ERROR_COMMANDS_IMPORT_TOTALS">
        <source></source>
        <translation>%1 taken in, %2 already there, %3 rejected</translation>
    </message>
    <message id="ERROR_COMMANDS_ITEM_REJECTED">
        <source></source>
        <translation>%1: %2: %3</translation>
    </message>
    <message id="ERROR_COMMANDS_NOTHING_RECENT">
        <source></source>
        <translation>None of this news lies within the last 255 days. To see it, start the terminal with --now %1, or read as of that moment (Ctrl+G in the terminal).</translation>
    </message>
    <message id="ERROR_DATABASE_BACKUP_EXISTS">
        <source></source>
        <translation>%1 is there already; name another file for the backup.</translation>
    </message>
    <message id="ERROR_DATABASE_DAMAGED">
        <source></source>
        <translation>%1 is damaged (%2).</translation>
    </message>
    <message id="ERROR_DATABASE_DISK_FULL">
        <source></source>
        <translation>%1 cannot grow: the disk is full (%2).</translation>
    </message>
    <message id="ERROR_DATABASE_IN_USE">
        <source></source>
        <translation>%1 is being used by another program (%2).</translation>
    </message>
    <message id="ERROR_DATABASE_LOG_NEEDED">
        <source></source>
        <translation>%1 cannot be read without its log %2, for which its folder must be writable; copy both to one that is.</translation>
    </message>
    <message id="ERROR_DATABASE_MEMORY_IS_NO_FILE">
        <source></source>
        <translation>The news store is a file; ":memory:" names none.</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_ON_DISK">
        <source></source>
        <translation>%1 cannot be brought to its disk.</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_OPENED">
        <source></source>
        <translation>%1 cannot be opened (%2).</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_READ_OR_WRITTEN">
        <source></source>
        <translation>%1 cannot be read or written (%2).</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_USED">
        <source></source>
        <translation>%1 cannot be used (%2).</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_WRITTEN">
        <source></source>
        <translation>%1 cannot be written to (%2).</translation>
    </message>
    <message id="ERROR_DATABASE_NO_DATABASE">
        <source></source>
        <translation>%1 is not a news store, or is damaged at its start (%2).</translation>
    </message>
    <message id="ERROR_DATABASE_NO_FILE_NAMED">
        <source></source>
        <translation>No file is named for the news store.</translation>
    </message>
    <message id="ERROR_DATABASE_NO_MEMORY">
        <source></source>
        <translation>%1 cannot be opened: there is no memory left.</translation>
    </message>
    <message id="ERROR_DATABASE_ONLY_READ">
        <source></source>
        <translation>%1 can only be read: no news is taken in.</translation>
    </message>
    <message id="ERROR_DATABASE_SINGLE_BYTE">
        <source></source>
        <translation>%1 is not a news store (it holds a single byte).</translation>
    </message>
    <message id="ERROR_DATABASE_TAKEN_AWAY">
        <source></source>
        <translation>%1 was moved or deleted while it was open: no news is taken in until it is back or the program is started again.</translation>
    </message>
    <message id="ERROR_DIARY_HEAD_NOT_KEPT">
        <source></source>
        <translation>The store cannot keep how far the diary %1 goes: %2.</translation>
    </message>
    <message id="ERROR_DIARY_NOT_OPENED">
        <source></source>
        <translation>The diary %1 cannot be opened: %2.</translation>
    </message>
    <message id="ERROR_DIARY_NOT_READ">
        <source></source>
        <translation>The diary %1 cannot be read: %2.</translation>
    </message>
    <message id="ERROR_DIARY_NOT_WRITTEN">
        <source></source>
        <translation>The diary %1 cannot be written: %2.</translation>
    </message>
    <message id="ERROR_FEED_AT_POSITION">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_FEED_GREETING_NOT_FIRST">
        <source></source>
        <translation>A greeting can only be the first line.</translation>
    </message>
    <message id="ERROR_FEED_LINE_OVER">
        <source></source>
        <translation>The line is longer than %1 MiB.</translation>
    </message>
    <message id="ERROR_FEED_MORE_REJECTED">
        <source></source>
        <translation>and more: %1 items were rejected.</translation>
    </message>
    <message id="ERROR_FEED_PROGRAM_ENDED">
        <source></source>
        <translation>%1 has ended: %2</translation>
    </message>
    <message id="ERROR_FEED_REJECTED_AT">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_FILE_TOO_LARGE">
        <source></source>
        <translation>The file is larger than %1 bytes.</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_FOLDER_LINKED">
        <source></source>
        <translation>The spool folder %1 cannot be used: %2 in it is a link.</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_FOLDER_NOT_MADE">
        <source></source>
        <translation>The spool folder %1 cannot be used: the folder %2 in it cannot be made.</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_LINK">
        <source></source>
        <translation>This is a link; only files are taken.</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_NOT_MOVED">
        <source></source>
        <translation>%1 cannot be moved to the folder %2. It is left as it is and not taken again.</translation>
    </message>
    <message id="ERROR_FEED_UNKNOWN_LINE">
        <source></source>
        <translation>The line holds no record of a known kind, and no greeting with a source.</translation>
    </message>
    <message id="ERROR_FRAME_UNKNOWN_VIEW">
        <source></source>
        <translation>The news module cannot make a view of the class %1.</translation>
    </message>
    <message id="ERROR_IMPORT_AN_OBJECT">
        <source></source>
        <translation>an object</translation>
    </message>
    <message id="ERROR_IMPORT_AT_END">
        <source></source>
        <translation>the end</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ITEM">
        <source></source>
        <translation>item %1</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ITEM_NAMED">
        <source></source>
        <translation>item %1 (%2)</translation>
    </message>
    <message id="ERROR_IMPORT_AT_LINE">
        <source></source>
        <translation>line %1</translation>
    </message>
    <message id="ERROR_IMPORT_AT_LINE_NAMED">
        <source></source>
        <translation>line %1 (%2)</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ROW">
        <source></source>
        <translation>row %1</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ROW_NAMED">
        <source></source>
        <translation>row %1 (%2)</translation>
    </message>
    <message id="ERROR_IMPORT_A_LIST">
        <source></source>
        <translation>a list</translation>
    </message>
    <message id="ERROR_IMPORT_A_NUMBER">
        <source></source>
        <translation>a number</translation>
    </message>
    <message id="ERROR_IMPORT_A_TEXT">
        <source></source>
        <translation>a text</translation>
    </message>
    <message id="ERROR_IMPORT_BEHIND_LIST">
        <source></source>
        <translation>There is something behind the end of the list.</translation>
    </message>
    <message id="ERROR_IMPORT_CATALOGUE_OF_CODES">
        <source></source>
        <translation>a catalogue of code lists</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY">
        <source></source>
        <translation>category</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY_FIELD">
        <source></source>
        <translation>“%1” of the category %2.</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY_ID">
        <source></source>
        <translation>category id</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY_WITHOUT_NAME">
        <source></source>
        <translation>The category %1 has no name.</translation>
    </message>
    <message id="ERROR_IMPORT_CHANGE">
        <source></source>
        <translation>change</translation>
    </message>
    <message id="ERROR_IMPORT_COLUMN_MISSING">
        <source></source>
        <translation>The table has no column “%1”, which the mapping names.</translation>
    </message>
    <message id="ERROR_IMPORT_ENTRY_WITHOUT_DATE">
        <source></source>
        <translation>Neither the entry nor its feed has a date that can be read.</translation>
    </message>
    <message id="ERROR_IMPORT_ENTRY_WITHOUT_TITLE">
        <source></source>
        <translation>The entry has no title and no text to make one from.</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_EMPTY">
        <source></source>
        <translation>The file is empty.</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_MISSING">
        <source></source>
        <translation>The file does not exist.</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_NOT_OPENED">
        <source></source>
        <translation>The file cannot be opened: %1.</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_NOT_READ_TO_END">
        <source></source>
        <translation>The file cannot be read to its end: %1.</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_TOO_LARGE">
        <source></source>
        <translation>The file is larger than %1 bytes; only JSON with one record per line may be.</translation>
    </message>
    <message id="ERROR_IMPORT_GUID_OF_ITEM">
        <source></source>
        <translation>“guid” of the item</translation>
    </message>
    <message id="ERROR_IMPORT_HOLDS_NO_SYMBOL">
        <source></source>
        <translation>has an entry that is no {market, code}</translation>
    </message>
    <message id="ERROR_IMPORT_IDENTITY_OF_ENTRY">
        <source></source>
        <translation>entry's identity</translation>
    </message>
    <message id="ERROR_IMPORT_IDENTITY_OF_ROW">
        <source></source>
        <translation>row's identity</translation>
    </message>
    <message id="ERROR_IMPORT_IDENTITY_TOO_LONG">
        <source></source>
        <translation>The %1 is longer than %2 characters.</translation>
    </message>
    <message id="ERROR_IMPORT_IS_MISSING">
        <source></source>
        <translation>is missing</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_FIELD">
        <source></source>
        <translation>“%1” of the item %2.</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_TIME_UNREAD">
        <source></source>
        <translation>The item has no time that can be read: “%1” is “%2”.</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_WITHOUT_GUID">
        <source></source>
        <translation>The item has no “guid”.</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_WITHOUT_HEADLINE">
        <source></source>
        <translation>The item has no headline and no text to make one from.</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_WITHOUT_TIME">
        <source></source>
        <translation>The item has no time (“versionCreated”).</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_BEHIND_END">
        <source></source>
        <translation>garbage at the end of the document</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_ESCAPE">
        <source></source>
        <translation>invalid escape sequence</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_LIST_WITHOUT_END">
        <source></source>
        <translation>unterminated array</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_NAME_SEPARATOR">
        <source></source>
        <translation>missing name separator</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_NUMBER">
        <source></source>
        <translation>illegal number</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_NUMBER_END">
        <source></source>
        <translation>invalid termination by number</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_OBJECT_MISSING">
        <source></source>
        <translation>object is missing after a comma</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_OBJECT_WITHOUT_END">
        <source></source>
        <translation>unterminated object</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_TEXT_WITHOUT_END">
        <source></source>
        <translation>unterminated string</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_TOO_DEEP">
        <source></source>
        <translation>too deeply nested document</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_TOO_LARGE">
        <source></source>
        <translation>too large document</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_UTF_8">
        <source></source>
        <translation>invalid UTF8 string</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_VALUE">
        <source></source>
        <translation>illegal value</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_VALUE_SEPARATOR">
        <source></source>
        <translation>missing value separator</translation>
    </message>
    <message id="ERROR_IMPORT_LAST_PRICE">
        <source></source>
        <translation>last price</translation>
    </message>
    <message id="ERROR_IMPORT_LINE_TOO_LONG">
        <source></source>
        <translation>The line is longer than %1 bytes.</translation>
    </message>
    <message id="ERROR_IMPORT_LIST_WITHOUT_END">
        <source></source>
        <translation>The list has no end: “]” is missing.</translation>
    </message>
    <message id="ERROR_IMPORT_LONE_CONCEPT">
        <source></source>
        <translation>a concept</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_FIELD">
        <source></source>
        <translation>The mapping's “%1” %2.</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_FIELD_UNKNOWN">
        <source></source>
        <translation>The mapping's “%1” is not known.</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_FIELD_UNUSABLE">
        <source></source>
        <translation>The mapping's “%1” cannot be used: %2</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_NOT_OPENED">
        <source></source>
        <translation>The mapping %1 cannot be opened: %2.</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_NO_JSON">
        <source></source>
        <translation>The mapping is not valid JSON: %1 (at byte %2).</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_NO_OBJECT">
        <source></source>
        <translation>The mapping is not a JSON object.</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_TOO_LARGE">
        <source></source>
        <translation>The mapping %1 is larger than %2 bytes.</translation>
    </message>
    <message id="ERROR_IMPORT_MARKET">
        <source></source>
        <translation>market</translation>
    </message>
    <message id="ERROR_IMPORT_MARKUP_PAGE">
        <source></source>
        <translation>The file is a page of markup, not a table: it starts with “%1”.</translation>
    </message>
    <message id="ERROR_IMPORT_MESSAGE_EMPTY">
        <source></source>
        <translation>The message holds no item.</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_ANY_NUMBER">
        <source></source>
        <translation>must be a number</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_CHARACTER">
        <source></source>
        <translation>must be one character</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_LINES">
        <source></source>
        <translation>must be “wrapped”, “kept” or “numbered”</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_LIST">
        <source></source>
        <translation>must be a list</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_NUMBER">
        <source></source>
        <translation>must be a number from %1 to %2</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_OBJECT">
        <source></source>
        <translation>must be an object</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_TEXT">
        <source></source>
        <translation>must be a text</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_TEXTS">
        <source></source>
        <translation>must be a text or a list of texts, none of them empty</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_TRUE_OR_FALSE">
        <source></source>
        <translation>must be true or false</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_HOLD_TEXTS">
        <source></source>
        <translation>must hold texts or numbers</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_COLUMN">
        <source></source>
        <translation>must name a column</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_IDENTITY">
        <source></source>
        <translation>must name the columns that tell one item from another</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_SERVICES">
        <source></source>
        <translation>must name services by numbers from 1 to 255</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_TITLE">
        <source></source>
        <translation>must name a column, unless “story” does</translation>
    </message>
    <message id="ERROR_IMPORT_NAMES_ENCODING">
        <source></source>
        <translation>names “%1”, which is not known here</translation>
    </message>
    <message id="ERROR_IMPORT_NOTHING">
        <source></source>
        <translation>nothing</translation>
    </message>
    <message id="ERROR_IMPORT_NOT_FOR_PUBLICATION">
        <source></source>
        <translation>The record is not for publication: “%1” is “%2”.</translation>
    </message>
    <message id="ERROR_IMPORT_NO_COLOUR">
        <source></source>
        <translation>“%1” is not a colour: it must be as “#rrggbb”.</translation>
    </message>
    <message id="ERROR_IMPORT_NO_FILE">
        <source></source>
        <translation>This is not a file.</translation>
    </message>
    <message id="ERROR_IMPORT_NO_KNOWN_ENCODING">
        <source></source>
        <translation>The file is neither UTF-8 nor code page 950.</translation>
    </message>
    <message id="ERROR_IMPORT_NO_MAPPED_ENCODING">
        <source></source>
        <translation>The file is in none of the encodings of the mapping.</translation>
    </message>
    <message id="ERROR_IMPORT_NO_PRICE">
        <source></source>
        <translation>“%1” is not a %2: it must be a number such as 12.5.</translation>
    </message>
    <message id="ERROR_IMPORT_NO_SYMBOL_CODE">
        <source></source>
        <translation>“%1” is not a symbol code.</translation>
    </message>
    <message id="ERROR_IMPORT_NO_UTF_16">
        <source></source>
        <translation>The file starts as UTF-16 but is not.</translation>
    </message>
    <message id="ERROR_IMPORT_NO_ZONE">
        <source></source>
        <translation>is neither an offset such as “+08:00” nor a zone that is known here</translation>
    </message>
    <message id="ERROR_IMPORT_NUMBER_OUT_OF_RANGE">
        <source></source>
        <translation>“%1” is not a %2: it must be a number from %3 to %4.</translation>
    </message>
    <message id="ERROR_IMPORT_OTHER_NEWSML">
        <source></source>
        <translation>The &lt;%1&gt; is %2, not a news item.</translation>
    </message>
    <message id="ERROR_IMPORT_PACKAGE_OF_LINKS">
        <source></source>
        <translation>a package of links to news items</translation>
    </message>
    <message id="ERROR_IMPORT_PLAN_OF_COVERAGE">
        <source></source>
        <translation>a plan of coverage</translation>
    </message>
    <message id="ERROR_IMPORT_QUOTE_FIELD">
        <source></source>
        <translation>“%1” of the quote %2.</translation>
    </message>
    <message id="ERROR_IMPORT_QUOTE_NOT_CLOSED">
        <source></source>
        <translation>A quote is opened and never closed; nothing behind it is read.</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_FIELD">
        <source></source>
        <translation>The field “%1” must be %2, not %3.</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_NO_JSON">
        <source></source>
        <translation>The record is not valid JSON: %1 (at byte %2).</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_NO_OBJECT">
        <source></source>
        <translation>The record is not a JSON object.</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_TIME_UNREAD">
        <source></source>
        <translation>The record has no time that can be read: “%1” is “%2”.</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_TOO_LONG">
        <source></source>
        <translation>The record is longer than %1 bytes.</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_WITHOUT_TIME">
        <source></source>
        <translation>The record has no time (“versioncreated”, “firstcreated” or “contentcreated”).</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_WITHOUT_TITLE">
        <source></source>
        <translation>The record has no title and no text to make one from.</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_WITHOUT_URI">
        <source></source>
        <translation>The record has no “uri”.</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_NO_JSON">
        <source></source>
        <translation>The row is not valid JSON: %1 (at byte %2).</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_NO_OBJECT">
        <source></source>
        <translation>The row is not a JSON object.</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_TIME_UNREAD">
        <source></source>
        <translation>“%1” is not a time of the form that the mapping states.</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_DATE">
        <source></source>
        <translation>The row has no date.</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_IDENTITY">
        <source></source>
        <translation>The row has nothing in the columns that identify it (%1).</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_SERVICE">
        <source></source>
        <translation>“%1” names no service: the mapping has no number for it.</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_TITLE">
        <source></source>
        <translation>The row has no title and no text to make one from.</translation>
    </message>
    <message id="ERROR_IMPORT_SERVICE">
        <source></source>
        <translation>service</translation>
    </message>
    <message id="ERROR_IMPORT_SET_OF_CONCEPTS">
        <source></source>
        <translation>a set of concepts</translation>
    </message>
    <message id="ERROR_IMPORT_SYMBOL_FIELD">
        <source></source>
        <translation>“%1” of the symbol %2.</translation>
    </message>
    <message id="ERROR_IMPORT_SYMBOL_WITHOUT_NAME">
        <source></source>
        <translation>The symbol “%1” has no name.</translation>
    </message>
    <message id="ERROR_IMPORT_TIME_FORM">
        <source></source>
        <translation>“%1” is not a form of dates or times.</translation>
    </message>
    <message id="ERROR_IMPORT_TIME_FORM_AT">
        <source></source>
        <translation>“%1” is not a form of dates or times: look at “%2”.</translation>
    </message>
    <message id="ERROR_IMPORT_TRUE_OR_FALSE">
        <source></source>
        <translation>true or false</translation>
    </message>
    <message id="ERROR_IMPORT_UNDER_EMBARGO">
        <source></source>
        <translation>The record is under embargo: “%1” is “%2”.</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_ENCODING">
        <source></source>
        <translation>The file declares the encoding “%1”, which is not known here.</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_FORMAT">
        <source></source>
        <translation>The file is of no known format (%1): it starts with %2.</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_JSON">
        <source></source>
        <translation>The file is JSON of a kind that is not known here: a record has the fields %1.</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_XML">
        <source></source>
        <translation>The file is XML of a kind that is not known here: its root is &lt;%1&gt;.</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_XML_OF">
        <source></source>
        <translation>The file is XML of a kind that is not known here: its root is &lt;%1&gt; of “%2”.</translation>
    </message>
    <message id="ERROR_IMPORT_URI_OF_RECORD">
        <source></source>
        <translation>“uri” of the record</translation>
    </message>
    <message id="ERROR_IMPORT_VOLUME">
        <source></source>
        <translation>volume</translation>
    </message>
    <message id="ERROR_IMPORT_WITH_CLOCK">
        <source></source>
        <translation>and “clock” must be there together</translation>
    </message>
    <message id="ERROR_IMPORT_XML_NOT_READ">
        <source></source>
        <translation>The XML cannot be read: %1.</translation>
    </message>
    <message id="ERROR_IMPORT_XML_WITHOUT_ELEMENT">
        <source></source>
        <translation>The file looks like XML, but no element is found at its start.</translation>
    </message>
    <message id="ERROR_LINES_FOLDER_HELD">
        <source></source>
        <translation>its folder is not there, or another program holds it</translation>
    </message>
    <message id="ERROR_LINES_FOLDER_NOT_MADE">
        <source></source>
        <translation>The folder %1 for local sockets cannot be made: %2.</translation>
    </message>
    <message id="ERROR_LINES_FOLDER_NOT_OWN">
        <source></source>
        <translation>The folder %1 for local sockets is not this user's alone.</translation>
    </message>
    <message id="ERROR_LINES_NO_SOCKET">
        <source></source>
        <translation>there is something of this name that is no socket</translation>
    </message>
    <message id="ERROR_LINES_PATH_TOO_LONG">
        <source></source>
        <translation>the path is longer than %1 bytes</translation>
    </message>
    <message id="ERROR_LINES_SOCKET_IN_USE">
        <source></source>
        <translation>it is in use by another program</translation>
    </message>
    <message id="ERROR_LINES_SOCKET_NOT_OPENED">
        <source></source>
        <translation>The local socket %1 cannot be opened: %2.</translation>
    </message>
    <message id="ERROR_LINES_SOCKET_OF_OTHER">
        <source></source>
        <translation>it belongs to another user</translation>
    </message>
    <message id="ERROR_LINES_SYSTEM_SAYS">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_NETWORK_ASKED_TOO_OFTEN">
        <source></source>
        <translation>%1 was asked too often and wants to be asked later.</translation>
    </message>
    <message id="ERROR_NETWORK_AUTHORISATION_INCOMPLETE">
        <source></source>
        <translation>The source's authorisation lacks the name of its secret or of its field.</translation>
    </message>
    <message id="ERROR_NETWORK_BODY_TOO_LARGE">
        <source></source>
        <translation>The answer is larger than %1 MiB; nothing of it was taken.</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_EXPIRED">
        <source></source>
        <translation>The certificate of %1 expired on %2, or the clock of this machine is off.</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_NOT_TRUSTED">
        <source></source>
        <translation>The certificate of %1 comes from no authority that is trusted; a private one can be named with the source.</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_NOT_YET_VALID">
        <source></source>
        <translation>The certificate of %1 is valid from %2 on; the clock of this machine may be off.</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_OF_OTHER">
        <source></source>
        <translation>Who answers for %1 shows the certificate of “%2”; nothing was asked of it.</translation>
    </message>
    <message id="ERROR_NETWORK_CLOCK_OFF">
        <source></source>
        <translation>The clocks of %1 and of this machine are %2 minutes apart.</translation>
    </message>
    <message id="ERROR_NETWORK_CUT_OFF">
        <source></source>
        <translation>The answer of %1 broke off; nothing of it was taken.</translation>
    </message>
    <message id="ERROR_NETWORK_EMPTY_ANSWER">
        <source></source>
        <translation>The answer of %1 is empty.</translation>
    </message>
    <message id="ERROR_NETWORK_EMPTY_LIST">
        <source></source>
        <translation>The list of %1 holds nothing any more; what was in it stays.</translation>
    </message>
    <message id="ERROR_NETWORK_EVENT_TOO_LONG">
        <source></source>
        <translation>The stream sent an event of more than %1 MiB; it was left out.</translation>
    </message>
    <message id="ERROR_NETWORK_FIELD_WRONG">
        <source></source>
        <translation>The field “%1” of the source cannot be “%2”.</translation>
    </message>
    <message id="ERROR_NETWORK_FILE_NOT_TYPED">
        <source></source>
        <translation>A file is a source only where the user has typed its address.</translation>
    </message>
    <message id="ERROR_NETWORK_FORBIDDEN">
        <source></source>
        <translation>%1, or a firewall on the way, does not let this request through (status %2).</translation>
    </message>
    <message id="ERROR_NETWORK_HOST_UNKNOWN">
        <source></source>
        <translation>The host %1 is not known: the name was misspelt, or there is no connection.</translation>
    </message>
    <message id="ERROR_NETWORK_LIST_FULL">
        <source></source>
        <translation>The list holds %1 sources; no more can be added.</translation>
    </message>
    <message id="ERROR_NETWORK_MAPPING_MISSING">
        <source></source>
        <translation>The mapping “%1” of the source cannot be used: %2</translation>
    </message>
    <message id="ERROR_NETWORK_NOTHING_TAKEN">
        <source></source>
        <translation>Of %1 {item|items} none can be taken, the first because: %2</translation>
    </message>
    <message id="ERROR_NETWORK_NOT_AUTHORISED">
        <source></source>
        <translation>%1 wants a valid authorisation (status %2).</translation>
    </message>
    <message id="ERROR_NETWORK_NOT_REACHED">
        <source></source>
        <translation>%1 cannot be reached.</translation>
    </message>
    <message id="ERROR_NETWORK_NOT_THERE">
        <source></source>
        <translation>%1 has nothing at this address any more (status %2).</translation>
    </message>
    <message id="ERROR_NETWORK_NO_ADDRESS">
        <source></source>
        <translation>“%1” is no address that a source can have.</translation>
    </message>
    <message id="ERROR_NETWORK_NO_SOURCE">
        <source></source>
        <translation>There is no source “%1” in the list.</translation>
    </message>
    <message id="ERROR_NETWORK_NO_STREAM">
        <source></source>
        <translation>%1 gives no stream of news at this address (%2).</translation>
    </message>
    <message id="ERROR_NETWORK_OTHER_FORMAT">
        <source></source>
        <translation>The answer is %1, not what the source is said to give.</translation>
    </message>
    <message id="ERROR_NETWORK_PAGE_INSTEAD">
        <source></source>
        <translation>%1 gives a page for people instead of news: “%2”.</translation>
    </message>
    <message id="ERROR_NETWORK_PORTAL_INSTEAD">
        <source></source>
        <translation>%1 leads to a page of %2 instead of news, as networks do where somebody has to sign in first.</translation>
    </message>
    <message id="ERROR_NETWORK_PRIVATE_ADDRESS">
        <source></source>
        <translation>%1 leads into a private network, where only an address that the user has typed may lead.</translation>
    </message>
    <message id="ERROR_NETWORK_PROXY_FAILS">
        <source></source>
        <translation>%1 cannot be reached through the proxy of the system.</translation>
    </message>
    <message id="ERROR_NETWORK_QUIET">
        <source></source>
        <translation>%1 has not answered in time.</translation>
    </message>
    <message id="ERROR_NETWORK_REDIRECTED_TOO_OFTEN">
        <source></source>
        <translation>%1 sends on more than %2 times; it may be a loop.</translation>
    </message>
    <message id="ERROR_NETWORK_REDIRECT_ELSEWHERE">
        <source></source>
        <translation>%1 sends on to an address that is none of the web's.</translation>
    </message>
    <message id="ERROR_NETWORK_REDIRECT_IN_CLEAR">
        <source></source>
        <translation>%1 sends on to %2 without encryption; that is not followed.</translation>
    </message>
    <message id="ERROR_NETWORK_REFUSED">
        <source></source>
        <translation>%1 does not take connections at this port.</translation>
    </message>
    <message id="ERROR_NETWORK_SECRET_IN_ADDRESS">
        <source></source>
        <translation>The address holds a user name or password; they are kept with the secrets instead.</translation>
    </message>
    <message id="ERROR_NETWORK_SERVER_FAILS">
        <source></source>
        <translation>%1 cannot answer at present (status %2).</translation>
    </message>
    <message id="ERROR_NETWORK_SIGN_IN_NEEDED">
        <source></source>
        <translation>The network on the way to %1 wants somebody to sign in first.</translation>
    </message>
    <message id="ERROR_NETWORK_SOCKET_IN_CLEAR">
        <source></source>
        <translation>%1 would be dialled without encryption; that needs an address that the user has typed.</translation>
    </message>
    <message id="ERROR_NETWORK_STRANGE_STATUS">
        <source></source>
        <translation>%1 gives an answer that is no news (status %2).</translation>
    </message>
    <message id="ERROR_NETWORK_STREAM_BROKE">
        <source></source>
        <translation>The stream of %1 broke off; it is called again.</translation>
    </message>
    <message id="ERROR_NETWORK_TIMED_OUT">
        <source></source>
        <translation>The answer of %1 was not complete after %2 seconds.</translation>
    </message>
    <message id="ERROR_NETWORK_TLS_FAILED">
        <source></source>
        <translation>No encrypted connection to %1 could be agreed on.</translation>
    </message>
    <message id="ERROR_NETWORK_TOO_FAST">
        <source></source>
        <translation>%1 sends faster than its news can be taken; it is called again.</translation>
    </message>
    <message id="ERROR_QUERY_CLOSE_BRACKET">
        <source></source>
        <translation>The bracket %2 at character %1 closes none that was opened.</translation>
    </message>
    <message id="ERROR_QUERY_DAY">
        <source></source>
        <translation>"%2" at character %1 is no day such as 2026-03-02, 2026-03, today or -3d.</translation>
    </message>
    <message id="ERROR_QUERY_EMPTY">
        <source></source>
        <translation>The query is empty.</translation>
    </message>
    <message id="ERROR_QUERY_FIELD_VALUE">
        <source></source>
        <translation>The field "%2" at character %1 lacks its value directly behind the colon, or does not take this one.</translation>
    </message>
    <message id="ERROR_QUERY_FIELD_WITHIN">
        <source></source>
        <translation>The field "%2" at character %1 cannot stand within title: or story:.</translation>
    </message>
    <message id="ERROR_QUERY_MISSING">
        <source></source>
        <translation>At character %1 something to look for is missing ("%2").</translation>
    </message>
    <message id="ERROR_QUERY_NEAR">
        <source></source>
        <translation>%2 at character %1 has to stand between two words or phrases.</translation>
    </message>
    <message id="ERROR_QUERY_NEAR_NUMBER">
        <source></source>
        <translation>"%2" at character %1 names no number of words from 0 to 1000, as in NEAR/5.</translation>
    </message>
    <message id="ERROR_QUERY_NOT_OF_HEADLINES">
        <source></source>
        <translation>"%2" at character %1 cannot be answered by a headline as it comes: key sets know words, phrases, what is excluded, title:, topic:, service: and symbol:.</translation>
    </message>
    <message id="ERROR_QUERY_OPEN_BRACKET">
        <source></source>
        <translation>The bracket %2 at character %1 is never closed.</translation>
    </message>
    <message id="ERROR_QUERY_OPEN_QUOTE">
        <source></source>
        <translation>The quotation mark %2 at character %1 is never closed.</translation>
    </message>
    <message id="ERROR_QUERY_OPERATOR_WORD">
        <source></source>
        <translation>"%2" at character %1 is no sign: a blank means "and", | "or", - "not". Put it in quotation marks to look for the word.</translation>
    </message>
    <message id="ERROR_QUERY_TOO_DEEP">
        <source></source>
        <translation>The bracket %2 at character %1 lies too deep: at most 20 within one another.</translation>
    </message>
    <message id="ERROR_QUERY_TOO_LONG">
        <source></source>
        <translation>The query is longer than %2 characters (character %1).</translation>
    </message>
    <message id="ERROR_QUERY_TOO_MANY">
        <source></source>
        <translation>The query asks for too much from character %1 on ("%2"): at most 200 texts and fields.</translation>
    </message>
    <message id="ERROR_QUERY_UNKNOWN_FIELD">
        <source></source>
        <translation>There is no field "%2" (character %1). Put it in quotation marks to look for the text.</translation>
    </message>
    <message id="ERROR_SESSION_CATEGORIES_NOT_CHANGED">
        <source></source>
        <translation>The categories of the store could not be changed: %1</translation>
    </message>
    <message id="ERROR_SESSION_FOLDER_NOT_MADE">
        <source></source>
        <translation>The folder %1 cannot be made.</translation>
    </message>
    <message id="ERROR_SESSION_GUIDE_MISSING">
        <source></source>
        <translation>The guide %1 is missing.</translation>
    </message>
    <message id="ERROR_SESSION_MODULE_NOT_FOUND">
        <source></source>
        <translation>The news module %1 was found neither in %2 nor in %3.</translation>
    </message>
    <message id="ERROR_SESSION_MODULE_NOT_LOADED">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_BROKE_OFF">
        <source></source>
        <translation>The sample wire broke off. %1</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_BROKE_OFF_SILENTLY">
        <source></source>
        <translation>The sample wire broke off.</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_NOT_STARTED">
        <source></source>
        <translation>The sample wire %1 cannot be started: %2</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_NOT_TAKEN">
        <source></source>
        <translation>The sample wire does not fit into this store: %1</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_STOPPED">
        <source></source>
        <translation>Stopped; nothing of the sample was kept.</translation>
    </message>
    <message id="ERROR_SESSION_SETTINGS_FOLDER_NOT_MADE">
        <source></source>
        <translation>The settings folder %1 cannot be made.</translation>
    </message>
    <message id="ERROR_SESSION_UNKNOWN_SOURCE">
        <source></source>
        <translation>There is no kind of source called "%1".</translation>
    </message>
    <message id="ERROR_SETTINGS_FILE_NOT_READ">
        <source></source>
        <translation>The settings are not saved: the file %1 could not be read.</translation>
    </message>
    <message id="ERROR_SETTINGS_FILE_NOT_WRITTEN">
        <source></source>
        <translation>The settings are not saved: the file %1 cannot be written.</translation>
    </message>
    <message id="ERROR_SETTINGS_FOLDER_NOT_MADE">
        <source></source>
        <translation>The settings are not saved: the folder %1 cannot be made.</translation>
    </message>
    <message id="ERROR_SETTINGS_MODULE_FILE_NOT_WRITTEN">
        <source></source>
        <translation>The file %1 cannot be written: %2.</translation>
    </message>
    <message id="ERROR_SOUND_NOT_READ">
        <source></source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message id="ERROR_SOUND_NO_WAVE">
        <source></source>
        <translation>%1 is no WAV file of plain samples (PCM of 8 or 16 bits).</translation>
    </message>
    <message id="ERROR_SOUND_TOO_LONG">
        <source></source>
        <translation>%1 is too long: a sound may last %2 seconds.</translation>
    </message>
    <message id="ERROR_SOURCES_KEYCHAIN_FAILED">
        <source></source>
        <translation>The keychain failed: %1</translation>
    </message>
    <message id="ERROR_SOURCES_KEYCHAIN_SILENT">
        <source></source>
        <translation>The keychain does not answer.</translation>
    </message>
    <message id="ERROR_SOURCES_NO_OPML">
        <source></source>
        <translation>This is no list of feeds: its root is &lt;%1&gt;.</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_NOT_OPENED">
        <source></source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_NOT_WRITTEN">
        <source></source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_TOO_LARGE">
        <source></source>
        <translation>A list of feeds may have %1 bytes; this one is larger.</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_WITHOUT_FEEDS">
        <source></source>
        <translation>The list names no feed that could be read.</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_MISSING">
        <source></source>
        <translation>There is no file %1 with the secret.</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_NOT_READ">
        <source></source>
        <translation>The file %1 with the secret cannot be read: %2.</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_NOT_REMOVED">
        <source></source>
        <translation>The file %1 with the secret cannot be removed: %2.</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_NOT_WRITTEN">
        <source></source>
        <translation>The file %1 for the secret cannot be written: %2.</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_OPEN">
        <source></source>
        <translation>Others may read or write the file %1 with the secret; it is used when it is the user's alone (mode 0600).</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_MISSING">
        <source></source>
        <translation>The keychain has no secret called %1.</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_STAYS">
        <source></source>
        <translation>The list is as you wish, but the former secret of %1 could not be removed: %2</translation>
    </message>
    <message id="ERROR_STORE_BEYOND_RETENTION">
        <source></source>
        <translation>It is older than the news that this store keeps: since %1.</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY">
        <source></source>
        <translation>category</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_HAS_ID">
        <source></source>
        <translation>The category "%1" has the id %2 already; it cannot have the id %3 too.</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_ID_TOO_SMALL">
        <source></source>
        <translation>The category has the id %1; ids count from 1 on.</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_WITHOUT_NAME">
        <source></source>
        <translation>The category has no name.</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_WITHOUT_SERVICE">
        <source></source>
        <translation>The category belongs to no news service.</translation>
    </message>
    <message id="ERROR_STORE_CHANGE_OUT_OF_RANGE">
        <source></source>
        <translation>The change of %1 is not a number, or larger than its last price.</translation>
    </message>
    <message id="ERROR_STORE_CODE_OF_SYMBOL">
        <source></source>
        <translation>code of a symbol</translation>
    </message>
    <message id="ERROR_STORE_EMPTY">
        <source></source>
        <translation>%1 is empty: there is no news store in it.</translation>
    </message>
    <message id="ERROR_STORE_FAULT_FOUND">
        <source></source>
        <translation>A check in the background has found a fault in the store %1; "wirepane check" says which.</translation>
    </message>
    <message id="ERROR_STORE_IDENTITY">
        <source></source>
        <translation>identity</translation>
    </message>
    <message id="ERROR_STORE_LAST_PRICE_OUT_OF_RANGE">
        <source></source>
        <translation>The last price of %1 is not a number from 0 to %2.</translation>
    </message>
    <message id="ERROR_STORE_NAME_OF_SYMBOL">
        <source></source>
        <translation>name of the symbol</translation>
    </message>
    <message id="ERROR_STORE_NEWER_VERSION">
        <source></source>
        <translation>%1 was written by a newer version of the program (store version %2; this one reads up to %3).</translation>
    </message>
    <message id="ERROR_STORE_NEWS">
        <source></source>
        <translation>news</translation>
    </message>
    <message id="ERROR_STORE_CHANGE_UNREADABLE">
        <source></source>
        <translation>What an import had kept of it in the store (row %1) is damaged.</translation>
    </message>
    <message id="ERROR_STORE_NEWS_GONE">
        <source></source>
        <translation>The news is no longer in the store.</translation>
    </message>
    <message id="ERROR_STORE_NOTHING_BEGUN">
        <source></source>
        <translation>Nothing was begun that the %1 could be part of.</translation>
    </message>
    <message id="ERROR_STORE_NOTHING_TO_KEEP">
        <source></source>
        <translation>Nothing was begun that could be kept.</translation>
    </message>
    <message id="ERROR_STORE_NOT_WRITABLE">
        <source></source>
        <translation>%1 cannot be written to: the file or its folder is read-only.</translation>
    </message>
    <message id="ERROR_STORE_NO_COLOUR">
        <source></source>
        <translation>The colour "%1" is not of the form #rrggbb.</translation>
    </message>
    <message id="ERROR_STORE_NO_HEADLINE">
        <source></source>
        <translation>There is no headline with this key.</translation>
    </message>
    <message id="ERROR_STORE_NO_IDENTITY">
        <source></source>
        <translation>It has no identity.</translation>
    </message>
    <message id="ERROR_STORE_NO_NUMBER_LEFT">
        <source></source>
        <translation>No sequence number is left on its day.</translation>
    </message>
    <message id="ERROR_STORE_NO_SERVICE">
        <source></source>
        <translation>It belongs to no news service.</translation>
    </message>
    <message id="ERROR_STORE_NUMBER_TAKEN">
        <source></source>
        <translation>Its sequence number %1 belongs to another headline of that service and day.</translation>
    </message>
    <message id="ERROR_STORE_OLDER_VERSION">
        <source></source>
        <translation>%1 is of version %2; the program brings it up to version %3 when it opens it.</translation>
    </message>
    <message id="ERROR_STORE_OTHER_DATABASE">
        <source></source>
        <translation>%1 is a database, but not a news store.</translation>
    </message>
    <message id="ERROR_STORE_POSITION">
        <source></source>
        <translation>position</translation>
    </message>
    <message id="ERROR_STORE_QUOTE">
        <source></source>
        <translation>quote</translation>
    </message>
    <message id="ERROR_STORE_QUOTE_WITHOUT_MARKET">
        <source></source>
        <translation>The quote belongs to no market.</translation>
    </message>
    <message id="ERROR_STORE_STOPPED">
        <source></source>
        <translation>The program ends: nothing more is taken in.</translation>
    </message>
    <message id="ERROR_STORE_STORY">
        <source></source>
        <translation>story</translation>
    </message>
    <message id="ERROR_STORE_SYMBOL">
        <source></source>
        <translation>symbol</translation>
    </message>
    <message id="ERROR_STORE_SYMBOL_WITHOUT_CODE">
        <source></source>
        <translation>A symbol has no code.</translation>
    </message>
    <message id="ERROR_STORE_SYMBOL_WITHOUT_MARKET">
        <source></source>
        <translation>The symbol belongs to no market.</translation>
    </message>
    <message id="ERROR_STORE_TIME_OUT_OF_RANGE">
        <source></source>
        <translation>Its time (%1 seconds since 1970) does not lie within the years 1900 to 9999.</translation>
    </message>
    <message id="ERROR_STORE_TITLE">
        <source></source>
        <translation>title</translation>
    </message>
    <message id="ERROR_STORE_TITLE_EMPTY">
        <source></source>
        <translation>The title is empty.</translation>
    </message>
    <message id="ERROR_STORE_TOO_LONG">
        <source></source>
        <translation>The %1 has %2 characters; at most %3 are taken.</translation>
    </message>
    <message id="ERROR_STORE_TOO_MANY_SYMBOLS">
        <source></source>
        <translation>It names %1 related symbols; at most %2 are taken.</translation>
    </message>
    <message id="ERROR_STORE_VOLUME_OUT_OF_RANGE">
        <source></source>
        <translation>The volume of %1 is not a number from 0 to %2.</translation>
    </message>
    <message id="ERROR_STORE_WITHDRAWS_UNKNOWN">
        <source></source>
        <translation>It withdraws news that is not in the store.</translation>
    </message>
    <message id="ERROR_TOUR_NOT_PRINTED">
        <source></source>
        <translation>The news was not printed and saved into %1.</translation>
    </message>
    <message id="ERROR_TOUR_PICTURE_NOT_WRITTEN">
        <source></source>
        <translation>The picture %1 cannot be written.</translation>
    </message>
    <message id="ERROR_TOUR_REFUSED">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_TOUR_STOPPED">
        <source></source>
        <translation>Stopped.</translation>
    </message>
    <message id="IDC_BASEVIEW-STRING_NO_DATA">
        <source></source>
        <translation>There is no news for this symbol.</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_CHOOSE">
        <source></source>
        <translation>&amp;Add</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_CLOSE">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_HINT">
        <source></source>
        <translation>Search by code or name</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_TITLE">
        <source></source>
        <translation>Choose a Symbol</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ADD_BUTTON">
        <source></source>
        <translation>&amp;Add ▸</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ADD_KEYSET">
        <source></source>
        <translation>Save as &amp;New Key Set</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ALERT_ME">
        <source></source>
        <translation>Alert &amp;Me…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ALL_NEWSTYPE">
        <source></source>
        <translation>All</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_AND_BUTTON">
        <source></source>
        <translation>All &amp;keywords</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSE">
        <source></source>
        <translation>Try &amp;on 30 Days…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_TITLE">
        <source></source>
        <translation>Tried on the Last 30 Days</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_RUNS">
        <source></source>
        <translation>Trying…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_FAILED">
        <source></source>
        <translation>The news cannot be read.</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_SUMMARY">
        <source></source>
        <translation>%1 of %2 headlines in 30 days</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BUSIEST">
        <source></source>
        <translation>Busiest hour: %1, %2</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BUDGET">
        <source></source>
        <translation>At &amp;most an hour:</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_OVER">
        <source></source>
        <translation>Hours with more: %1</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_WITHIN">
        <source></source>
        <translation>No hour had more.</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_DAY">
        <source></source>
        <translation>Day</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_COUNT">
        <source></source>
        <translation>Hits</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BROUGHT">
        <source></source>
        <translation>Brought by</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_EXCLUDED">
        <source></source>
        <translation>Without</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_SAVED">
        <source></source>
        <translation>Saved</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_TIME">
        <source></source>
        <translation>Time</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_HIT">
        <source></source>
        <translation>Headline</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_CLOSE">
        <source></source>
        <translation>&amp;Close</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_CAPITALS_NOTE">
        <source></source>
        <translation>Headlines are compared in capitals: write Latin letters so (CHIPS, not chips).</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_CONDITION">
        <source></source>
        <translation>Match</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_DELALL_BUTTON">
        <source></source>
        <translation>Remove A&amp;ll</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_DEL_BUTTON">
        <source></source>
        <translation>◂ &amp;Remove</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_DEL_KEY">
        <source></source>
        <translation>&amp;Forget Keyword</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_DEL_KEYSET">
        <source></source>
        <translation>&amp;Delete Ticked</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_EDIT_KEYSET">
        <source></source>
        <translation>Save Cha&amp;nges</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ERRMSG">
        <source></source>
        <translation>Select a warning term first.</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSKEY">
        <source></source>
        <translation>Add at least one keyword.</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSTYPE">
        <source></source>
        <translation>Tick at least one news type.</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_GROUP1">
        <source></source>
        <translation>Keywords</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_GROUP2">
        <source></source>
        <translation>Search for</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_HEADLINE_SEARCH">
        <source></source>
        <translation>&amp;Headlines</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_HEARLINE_AND_STORY_SEARCH">
        <source></source>
        <translation>&amp;Both</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_IDOK">
        <source></source>
        <translation>S&amp;earch</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_KEYSET_SELALL">
        <source></source>
        <translation>Tick all &amp;sets</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_KEYWORD_HINT">
        <source></source>
        <translation>Keyword, then Enter</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NEAR10FILTER">
        <source></source>
        <translation>Recent searches</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NEWSTYPE">
        <source></source>
        <translation>News types</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NEWS_SELALL">
        <source></source>
        <translation>All news &amp;types</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_OR_BUTTON">
        <source></source>
        <translation>An&amp;y keyword</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_PICKER">
        <source></source>
        <translation>Choose from all symbols</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_EXCLUDE_BUTTON">
        <source></source>
        <translation>E&amp;xclude ▸</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NONE_OF_THESE">
        <source></source>
        <translation>None of these keywords</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_QUERY_BUTTON">
        <source></source>
        <translation>&amp;Query</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_RANGE">
        <source></source>
        <translation>Look in</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_RELATION_TITLE">
        <source></source>
        <translation>Key Sets</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REQDELALL">
        <source></source>
        <translation>Remove all keywords from this search?</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REQDELALL_KEY">
        <source></source>
        <translation>Remove all keywords from this key set?</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REQDEL_KEY">
        <source></source>
        <translation>Key sets to delete: %1. Go on?</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SEARCH_CONTENTS">
        <source></source>
        <translation>Keywords</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SEARCH_METHOD">
        <source></source>
        <translation>Match</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SEARCH_SCOPE">
        <source></source>
        <translation>Look in</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_STORY_SEARCH">
        <source></source>
        <translation>&amp;Stories</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SYMBOL">
        <source></source>
        <translation>Symbols</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SYMBOL_HINT">
        <source></source>
        <translation>Code or name</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_TITLE">
        <source></source>
        <translation>Advanced Search</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_ADD">
        <source></source>
        <translation>&amp;Add…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_DEL">
        <source></source>
        <translation>&amp;Delete</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_EDIT">
        <source></source>
        <translation>Ed&amp;it…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_HINT">
        <source></source>
        <translation>Separated by blanks or commas</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_IDCANCEL">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_IDOK">
        <source></source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_ITEM_TITLE">
        <source></source>
        <translation>Warning Term</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_TITLE">
        <source></source>
        <translation>Warning Terms</translation>
    </message>
    <message id="IDS_DIALOG-STORY_NEXT_BUTTON">
        <source></source>
        <translation>&amp;Next</translation>
    </message>
    <message id="IDS_DIALOG-STORY_PREV_BUTTON">
        <source></source>
        <translation>Pre&amp;v</translation>
    </message>
    <message id="IDS_DIALOG-STORY_PRINT">
        <source></source>
        <translation>&amp;Print</translation>
    </message>
    <message id="IDS_DIALOG-STORY_SAVEAS">
        <source></source>
        <translation>&amp;Save As</translation>
    </message>
    <message id="IDS_DIALOG-STORY_TITLE">
        <source></source>
        <translation>News Story</translation>
    </message>
    <message id="IDS_MENU_8_1">
        <source></source>
        <translation>All News</translation>
    </message>
    <message id="IDS_MMSEXTENSION-MAINFRM_NEWSCTRLVIEW">
        <source></source>
        <translation>Symbol News</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BETWEEN_SOURCES">
        <source></source>
        <translation>, </translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_DEALS_SEARCH">
        <source></source>
        <translation>Advanced</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_PAGE_DOWN">
        <source></source>
        <translation>Next</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_PAGE_UP">
        <source></source>
        <translation>Prev</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_RELATION_SEARCH">
        <source></source>
        <translation>Key Sets</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_SEARCH">
        <source></source>
        <translation>Search</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_SHOW_TYPE">
        <source></source>
        <translation>Layout</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_WARNING_SEARCH">
        <source></source>
        <translation>Terms</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_CORRECTED">
        <source></source>
        <translation>Corrected</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_CORRECTED_AFTER_READING">
        <source></source>
        <translation>%1 s after you read it</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_CORRECTED_NUMBERS">
        <source></source>
        <translation>Corrected: %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_BEGIN_SEARCH">
        <source></source>
        <translation>Go to the Search Box</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_KEY_SETS">
        <source></source>
        <translation>Choose Key Sets…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_SERVICES">
        <source></source>
        <translation>Choose Services</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_TERMS">
        <source></source>
        <translation>Choose Warning Terms…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_DAY">
        <source></source>
        <translation>No news on %1.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_LOOK_UP_SYMBOL">
        <source></source>
        <translation>Look Up a Symbol</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_NOTHING">
        <source></source>
        <translation>There is no news here.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_NOT_FOUND">
        <source></source>
        <translation>Nothing found for %1.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_NO_SERVICE">
        <source></source>
        <translation>No news service is ticked.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_OF_SUBJECT">
        <source></source>
        <translation>No news of %1.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_QUOTED_WORD">
        <source></source>
        <translation>“%1”</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_QUOTES">
        <source></source>
        <translation>The quotes of the headline’s symbols stand here.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_READ_NEWEST">
        <source></source>
        <translation>Read the Newest</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_RELATION">
        <source></source>
        <translation>No news of today matches the ticked key sets.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_SEARCH">
        <source></source>
        <translation>Type a word to search for.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_SHOW_ALL_NEWS">
        <source></source>
        <translation>Show All News</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_SHOW_DAY">
        <source></source>
        <translation>Show %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_STORY">
        <source></source>
        <translation>The story of the chosen headline stands here.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_WARNING_TERM">
        <source></source>
        <translation>No news with the warning terms.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_LIST">
        <source></source>
        <translation>Export List…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_NOT_WRITTEN">
        <source></source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_RUNNING">
        <source></source>
        <translation>Writing the news of the list…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_STOPPED">
        <source></source>
        <translation>Stopped; no file was written.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_UNREADABLE">
        <source></source>
        <translation>%1 was not written: the news cannot be read.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_WRITTEN">
        <source></source>
        <translation>%1 headlines are in %2.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_AWAITED">
        <source></source>
        <translation>Searching…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_COUNT">
        <source></source>
        <translation>Found: %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_ENTER">
        <source></source>
        <translation>Enter finds all</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_NEWEST">
        <source></source>
        <translation>The newest %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_SINCE">
        <source></source>
        <translation>since %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_TAKE_OUT">
        <source></source>
        <translation>Search without %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_TOOK">
        <source></source>
        <translation>%1 ms</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_UNTIL">
        <source></source>
        <translation>until %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HIDE_CHANGES">
        <source></source>
        <translation>Hide Changes</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_KEY_SET">
        <source></source>
        <translation>No key set is ticked: this list takes no news. Press %1 to choose key sets.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_MATCH">
        <source></source>
        <translation>No news of today matches the ticked key sets yet. Press %1 to choose others.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_NEWS">
        <source></source>
        <translation>There is no news here. Press %1 to ask for it again.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_WARNING_TERM">
        <source></source>
        <translation>No warning term is chosen. Press %1 to choose one.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_WARRANT_NEWS">
        <source></source>
        <translation>There is no warrant news of this day.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_SEARCH">
        <source></source>
        <translation>Press %2 and type what to search for, or %1 to compose a search.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_WARNING_TERM">
        <source></source>
        <translation>Warning term: %2. Press %1 to search for it, or for another one.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARKET_EMERGING_BOARD">
        <source></source>
        <translation>Emerging Board</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARKET_HONG_KONG">
        <source></source>
        <translation>Hong Kong Stocks</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARKET_STOCK_EXCHANGE">
        <source></source>
        <translation>Taiwan Stocks</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_DATE">
        <source></source>
        <translation>Date</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_EARLIER_SEARCHES">
        <source></source>
        <translation>Earlier searches</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_MARKET">
        <source></source>
        <translation>Market</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_MODES">
        <source></source>
        <translation>News lists</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_SEARCH_TEXT">
        <source></source>
        <translation>Search text</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_STORY">
        <source></source>
        <translation>Story</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_SYMBOL">
        <source></source>
        <translation>Symbol</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NEWS_NO">
        <source></source>
        <translation>News No.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NEWS_STORY">
        <source></source>
        <translation>Story: </translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_AS_OF">
        <source></source>
        <translation>As of an earlier moment</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_BEFORE_BREAK">
        <source></source>
        <translation>Searched %1, before a break was made up for: search again</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_FILTERED">
        <source></source>
        <translation>Only what the key sets let through: show all</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_NARROWED">
        <source></source>
        <translation>Only news of %1: search all</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_NOTHING_NEW">
        <source></source>
        <translation>Nothing new from any source since %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_SILENT">
        <source></source>
        <translation>No sign of life from %1 since %2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_UNFILTERED">
        <source></source>
        <translation>Not looked through by key sets: do it now</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_DAYS">
        <source></source>
        <translation>On other days: %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_SERVICES">
        <source></source>
        <translation>In other services: %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_STORIES">
        <source></source>
        <translation>In stories too: %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_WITHOUT">
        <source></source>
        <translation>Without “%1”: %2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_ASK_DELETE">
        <source></source>
        <translation>Delete the search “%1”?</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_AS_ALERT">
        <source></source>
        <translation>Alert me…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_AS_KEY_SET">
        <source></source>
        <translation>Use as key set</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_AS_WARNING">
        <source></source>
        <translation>Use as warning term</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_DELETE">
        <source></source>
        <translation>Delete</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_EXPORT">
        <source></source>
        <translation>Export…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_FILES">
        <source></source>
        <translation>Saved searches (*.txt)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_FILE_FAILED">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_FULL">
        <source></source>
        <translation>There is room for %1 searches. Delete some first.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_IMPORT">
        <source></source>
        <translation>Import…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_MANAGE">
        <source></source>
        <translation>Manage saved searches</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NAME">
        <source></source>
        <translation>Name of the search:</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NAME_TWICE">
        <source></source>
        <translation>Line %1: a line before it is called “%2” as well. Nothing was imported.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NOT_TEXT">
        <source></source>
        <translation>Line %1 is no text in UTF-8. Nothing was imported.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NO_NAME">
        <source></source>
        <translation>Line %1 has no name and a tab in front of its search. Nothing was imported.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NO_SEARCH">
        <source></source>
        <translation>Line %1: what stands behind “%2” is no search. Nothing was imported.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_REPLACE">
        <source></source>
        <translation>A search is called “%1” already. Replace it?</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_SAVE">
        <source></source>
        <translation>Save this search…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_TODAY">
        <source></source>
        <translation>%1 today</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_TOO_MANY">
        <source></source>
        <translation>Line %1: there is room for %2 searches. Nothing was imported.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_WRONG_QUERY">
        <source></source>
        <translation>Line %1: %2 Nothing was imported.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SEVERAL_SOURCES">
        <source></source>
        <translation>Brought by %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SHOW_CHANGES">
        <source></source>
        <translation>Show Changes</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_COPY">
        <source></source>
        <translation>Copy</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_IN_WINDOW">
        <source></source>
        <translation>Open in Window</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_LARGER">
        <source></source>
        <translation>Larger Text</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_PIN">
        <source></source>
        <translation>Keep This Window Open</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_SEARCH">
        <source></source>
        <translation>Search for “%1”</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_SELECT_ALL">
        <source></source>
        <translation>Select All</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_SMALLER">
        <source></source>
        <translation>Smaller Text</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_AFTERDAYS">
        <source></source>
        <translation>The date lies in the future.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ALL_SERVICES">
        <source></source>
        <translation>All Services</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_BETWEEN_NAMES">
        <source></source>
        <translation>, </translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CATEGORY">
        <source></source>
        <translation>Topic</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CATEGORY_NEWS">
        <source></source>
        <translation>By Category</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CHARACTERS_REPLACED">
        <source></source>
        <translation>Characters without a place in code page 950 are white squares in %2 (%1 in all). To keep them, save as UTF-8 text.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CLEAR_SERVICE">
        <source></source>
        <translation>has started a new news day.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_DETAILED_NEWS_DATA">
        <source></source>
        <translation>News Details</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_DETAILED_STORY">
        <source></source>
        <translation>&amp;Open Story</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_FILE_FILTER">
        <source></source>
        <translation>Text file</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_FILE_FILTER_UTF8">
        <source></source>
        <translation>UTF-8 text file, keeps every character</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INSOMEDAYS">
        <source></source>
        <translation> days can be selected.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_PASTE">
        <source></source>
        <translation>Shift+Insert does not paste here.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_SEARCH">
        <source></source>
        <translation>Enter a keyword to search for.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_VALUE">
        <source></source>
        <translation>A search has no blanks.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALID_DATE1">
        <source></source>
        <translation>without news for this date.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_LARGEST_MOVE">
        <source></source>
        <translation>Largest move</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_LARGEST_MOVE_TIP">
        <source></source>
        <translation>How far the price has been from there since</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_LEFT_OUT">
        <source></source>
        <translation>Left out, as they have no story: %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS">
        <source></source>
        <translation>News</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWSPRINT">
        <source></source>
        <translation>News</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_CLASS_NOT_FOUND">
        <source></source>
        <translation>without news in this category.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_NOT_FOUND">
        <source></source>
        <translation>No news matches the search.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_SEARCHING">
        <source></source>
        <translation>Searching:</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_TITLE">
        <source></source>
        <translation>Title: </translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NOTHING_TO_PUT_OUT">
        <source></source>
        <translation>Nothing was put out: there is no story yet.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_CODE_PAGE">
        <source></source>
        <translation>this system cannot write code page 950; choose UTF-8 text</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_NEWS_STORY">
        <source></source>
        <translation>This headline has no story.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_SUCH_PAPER">
        <source></source>
        <translation>there is no paper called %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_OFFLINE_SINCE">
        <source></source>
        <translation>Offline since</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLYSELECT">
        <source></source>
        <translation>Only the last </translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLY_THIS">
        <source></source>
        <translation>Only This</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLY_THIS_SERVICE">
        <source></source>
        <translation>Space ticks, Shift+Space: only this</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRICE_THEN">
        <source></source>
        <translation>Price then</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRICE_THEN_TIP">
        <source></source>
        <translation>What the price was when the headline came, and its change since</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINTER_GONE">
        <source></source>
        <translation>the printer cannot be reached</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINT_FAILED">
        <source></source>
        <translation>The news could not be printed on %1: %2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARK_READ">
        <source></source>
        <translation>&amp;Mark Read</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARK_UNREAD">
        <source></source>
        <translation>Mark &amp;Unread</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARK_ALL_READ">
        <source></source>
        <translation>Mar&amp;k All Read</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTHING_MARKED">
        <source></source>
        <translation>Nothing is marked: the news store can only be read.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SHOW_PRICES">
        <source></source>
        <translation>Prices Since Headlines</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TURN_FOLD">
        <source></source>
        <translation>Fold or Unfold &amp;Burst</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOLDED_STATE">
        <source></source>
        <translation>%1 folded below</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_UNFOLDED_STATE">
        <source></source>
        <translation>%1 unfolded below</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HOLD_LIST">
        <source></source>
        <translation>Hold &amp;List</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HELD_LIST">
        <source></source>
        <translation>Held</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HELD_WAITING">
        <source></source>
        <translation>%1 waiting</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HELD_MATCHING">
        <source></source>
        <translation>%1 waiting, %2 match</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_LET_LIST_GO">
        <source></source>
        <translation>%1, let the list go on</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NEW_ABOVE">
        <source></source>
        <translation>%1 new</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_GO_TO_NEWEST">
        <source></source>
        <translation>%1: go to the newest</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_WITH_UNREAD">
        <source></source>
        <translation>%1, %2 unread</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STAR">
        <source></source>
        <translation>St&amp;ar</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STATE_UNREAD">
        <source></source>
        <translation>unread</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STATE_STARRED">
        <source></source>
        <translation>starred</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STATE_READ_BEFORE">
        <source></source>
        <translation>corrected since you read it</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINT_NEWS">
        <source></source>
        <translation>&amp;Print…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PS">
        <source></source>
        <translation>(End of story)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PUT_OUT_READY">
        <source></source>
        <translation>Print or Save Without What Is Missing (%1)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER">
        <source></source>
        <translation>Pending…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_CORRECTED">
        <source></source>
        <translation>Corrected; earlier versions: %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_SECONDS_AGO">
        <source></source>
        <translation>%1 s ago</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_MINUTES_AGO">
        <source></source>
        <translation>%1 min ago</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_HOURS_AGO">
        <source></source>
        <translation>%1 h ago</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_DAYS_AGO">
        <source></source>
        <translation>%1 days ago</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER_HEADLINELIST">
        <source></source>
        <translation>Reload &amp;Headlines</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER_STORY">
        <source></source>
        <translation>&amp;Reload Story</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_REINPUT">
        <source></source>
        <translation>The words AND and OR cannot be searched for. Enter other keywords.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RELATIONSEARCH_NEWS">
        <source></source>
        <translation>Relation Search</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_REPLASE_MESSAGE">
        <source></source>
        <translation>消息</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_REPLASE_NEWS">
        <source></source>
        <translation>讯息</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SAVE_AS_NEWS">
        <source></source>
        <translation>&amp;Save As…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SAVE_FAILED">
        <source></source>
        <translation>The news could not be saved in %1: %2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SEARCH_AS_TEXT">
        <source></source>
        <translation>Search for it as plain text?</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SEARCH_NEWS">
        <source></source>
        <translation>Search</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SELECT_NEWS_SERVICE">
        <source></source>
        <translation>Services</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SERVICES_AS_BEFORE">
        <source></source>
        <translation>As Before</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SHOW_CATEGORY">
        <source></source>
        <translation>&amp;Topic Column</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_STOP_WAITING">
        <source></source>
        <translation>Stop Waiting to Print or Save</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS">
        <source></source>
        <translation>By Symbol</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS_NOT_FOUND">
        <source></source>
        <translation>without news for this symbol.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TIME">
        <source></source>
        <translation>Time</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TITLE">
        <source></source>
        <translation>Headline</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TODAY">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PREVIEW">
        <source></source>
        <translation>Waiting to preview: %1 still to come</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_CAPTION">
        <source></source>
        <translation>Print Preview</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_MAKING">
        <source></source>
        <translation>Preparing the pages…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_PAGE">
        <source></source>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_PREVIOUS_PAGE">
        <source></source>
        <translation>Previous Page</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_NEXT_PAGE">
        <source></source>
        <translation>Next Page</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_SMALLER">
        <source></source>
        <translation>Zoom Out</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_LARGER">
        <source></source>
        <translation>Zoom In</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_FIT_WIDTH">
        <source></source>
        <translation>Fit &amp;Width</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_WHOLE_PAGE">
        <source></source>
        <translation>W&amp;hole Page</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_CLOSE">
        <source></source>
        <translation>&amp;Close</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINTING">
        <source></source>
        <translation>Printing: %1%</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SAVING">
        <source></source>
        <translation>Saving: %1%</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PRINT">
        <source></source>
        <translation>Waiting to print: %1 still to come</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_SAVE">
        <source></source>
        <translation>Waiting to save: %1 still to come</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAIT_FOR_UPDATE">
        <source></source>
        <translation>The story is being updated. Please wait.</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WARNINGSEARCH_NEWS">
        <source></source>
        <translation>Warning Terms</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WARRANT_NEWS">
        <source></source>
        <translation>Warrants</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_WITHDRAWN">
        <source></source>
        <translation>Withdrawn by its publisher at %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_WITHDRAWN_WHY">
        <source></source>
        <translation>Withdrawn by its publisher at %1: %2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TURN_CHANGES">
        <source></source>
        <translation>Show or Hide Changes</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_WITHDRAWN">
        <source></source>
        <translation>Withdrawn</translation>
    </message>
    <message id="IDS_QUOTE-LIST_CHANGE">
        <source></source>
        <translation>Change</translation>
    </message>
    <message id="IDS_QUOTE-LIST_CODE">
        <source></source>
        <translation>Code</translation>
    </message>
    <message id="IDS_QUOTE-LIST_LAST">
        <source></source>
        <translation>Last</translation>
    </message>
    <message id="IDS_QUOTE-LIST_NAME">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="IDS_QUOTE-LIST_PERCENT">
        <source></source>
        <translation>%</translation>
    </message>
    <message id="IDS_QUOTE-LIST_VOLUME">
        <source></source>
        <translation>Volume</translation>
    </message>
    <message id="IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE">
        <source></source>
        <translation>Related Symbols</translation>
    </message>
    <message id="IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE_NONE">
        <source></source>
        <translation>This headline names no symbols.</translation>
    </message>
    <message id="IDS_SINGLETON-STRING_FONTNAME">
        <source></source>
        <translation>Noto Sans Mono CJK TC</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_YESTERDAY">
        <source></source>
        <translation>Yesterday</translation>
    </message>
    <message id="TERMINAL_ALERTS_OPEN">
        <source></source>
        <translation>Open the alerts</translation>
    </message>
    <message id="TERMINAL_ALERTS_TITLE">
        <source></source>
        <translation>Alerts</translation>
    </message>
    <message id="TERMINAL_ALERT_ADD">
        <source></source>
        <translation>A&amp;dd</translation>
    </message>
    <message id="TERMINAL_ALERT_AN_HOUR">
        <source></source>
        <translation> an hour</translation>
    </message>
    <message id="TERMINAL_ALERT_BETWEEN_WORDS">
        <source></source>
        <translation>”, “</translation>
    </message>
    <message id="TERMINAL_ALERT_BUDGET">
        <source></source>
        <translation>&amp;Budget</translation>
    </message>
    <message id="TERMINAL_ALERT_CLOSE">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_HEADLINE">
        <source></source>
        <translation>Headline</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_OUTCOME">
        <source></source>
        <translation>What became of it</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_RULE">
        <source></source>
        <translation>Rule</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_TIME">
        <source></source>
        <translation>Time</translation>
    </message>
    <message id="TERMINAL_ALERT_COUNT">
        <source></source>
        <translation>%1 {alert|alerts}</translation>
    </message>
    <message id="TERMINAL_ALERT_DISCONNECTED">
        <source></source>
        <translation>Not told: not connected</translation>
    </message>
    <message id="TERMINAL_ALERT_DUPLICATE">
        <source></source>
        <translation>Not told: said within the hour</translation>
    </message>
    <message id="TERMINAL_ALERT_LATE">
        <source></source>
        <translation>Not told: it came late</translation>
    </message>
    <message id="TERMINAL_ALERT_LOOKS_FOR">
        <source></source>
        <translation>&amp;Looks for</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED">
        <source></source>
        <translation>The rule “%1” matched “%2” in the title.</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_AT">
        <source></source>
        <translation>matched %1</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_BOTH">
        <source></source>
        <translation>The rule “%1” matched “%2” in the title and “%3” in the story.</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_OTHER">
        <source></source>
        <translation>The rule “%1” matched the symbols, the topic or the service.</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_STORY">
        <source></source>
        <translation>The rule “%1” matched “%2” in the story.</translation>
    </message>
    <message id="TERMINAL_ALERT_MORE">
        <source></source>
        <translation>and %1 more</translation>
    </message>
    <message id="TERMINAL_ALERT_NONE">
        <source></source>
        <translation>No alert yet. What your rules match is listed here as it comes, with the reason.</translation>
    </message>
    <message id="TERMINAL_ALERT_NOTICE">
        <source></source>
        <translation>Told by the des&amp;ktop</translation>
    </message>
    <message id="TERMINAL_ALERT_NOT_TOLD">
        <source></source>
        <translation>%1.</translation>
    </message>
    <message id="TERMINAL_ALERT_NO_BUDGET">
        <source></source>
        <translation>no limit</translation>
    </message>
    <message id="TERMINAL_ALERT_ONLY_CONNECTED">
        <source></source>
        <translation>Only while &amp;connected</translation>
    </message>
    <message id="TERMINAL_ALERT_OVER_BUDGET">
        <source></source>
        <translation>%1 (more than %2 an hour)</translation>
    </message>
    <message id="TERMINAL_ALERT_PAUSE">
        <source></source>
        <translation>Not told: within the rule's pause</translation>
    </message>
    <message id="TERMINAL_ALERT_PAUSE_OF">
        <source></source>
        <translation>&amp;Pause between two</translation>
    </message>
    <message id="TERMINAL_ALERT_PUBLISHED">
        <source></source>
        <translation>Published %1</translation>
    </message>
    <message id="TERMINAL_ALERT_QUIET_FROM">
        <source></source>
        <translation>&amp;Quiet from</translation>
    </message>
    <message id="TERMINAL_ALERT_QUIET_HOURS">
        <source></source>
        <translation>Not told: quiet hours</translation>
    </message>
    <message id="TERMINAL_ALERT_QUIET_TO">
        <source></source>
        <translation>to</translation>
    </message>
    <message id="TERMINAL_ALERT_RECEIVED">
        <source></source>
        <translation>received %1</translation>
    </message>
    <message id="TERMINAL_ALERT_REHEARSE">
        <source></source>
        <translation>Tr&amp;y on 30 Days…</translation>
    </message>
    <message id="TERMINAL_ALERT_REMOVE">
        <source></source>
        <translation>Re&amp;move</translation>
    </message>
    <message id="TERMINAL_ALERT_RULES">
        <source></source>
        <translation>Alert rules</translation>
    </message>
    <message id="TERMINAL_ALERT_RULES_HELP">
        <source></source>
        <translation>Every headline that comes is tried with these rules, whatever a view shows. A rule that is not ticked is listed under the alerts and not told.</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_INCOMPLETE">
        <source></source>
        <translation>A rule needs a name and something to look for.</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_NAME">
        <source></source>
        <translation>&amp;Rule</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_OFF">
        <source></source>
        <translation>Not told: the rule is off</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_TWICE">
        <source></source>
        <translation>There are two rules called “%1”.</translation>
    </message>
    <message id="TERMINAL_ALERT_SECONDS">
        <source></source>
        <translation> seconds</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND">
        <source></source>
        <translation>S&amp;ound</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_CHIME">
        <source></source>
        <translation>Chime</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_CHOOSE">
        <source></source>
        <translation>Choose a Sound</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_DESKTOP">
        <source></source>
        <translation>The desktop’s</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_FILE">
        <source></source>
        <translation>File…</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_FILES">
        <source></source>
        <translation>Sounds (*.wav)</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_KNOCK">
        <source></source>
        <translation>Knock</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_NONE">
        <source></source>
        <translation>None</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_PING">
        <source></source>
        <translation>Ping</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_USE">
        <source></source>
        <translation>Use</translation>
    </message>
    <message id="TERMINAL_ALERT_STAYS">
        <source></source>
        <translation>Stays for</translation>
    </message>
    <message id="TERMINAL_ALERT_STORY">
        <source></source>
        <translation>Story of the alert</translation>
    </message>
    <message id="TERMINAL_ALERT_TAG">
        <source></source>
        <translation>&amp;Tag</translation>
    </message>
    <message id="TERMINAL_ALERT_TEST">
        <source></source>
        <translation>T&amp;est</translation>
    </message>
    <message id="TERMINAL_ALERT_TINT">
        <source></source>
        <translation>Colo&amp;ur in lists</translation>
    </message>
    <message id="TERMINAL_ALERT_TOAST">
        <source></source>
        <translation>S&amp;hown in the corner for</translation>
    </message>
    <message id="TERMINAL_ALERT_TOLD">
        <source></source>
        <translation>Told</translation>
    </message>
    <message id="TERMINAL_ALERT_TOLD_AT">
        <source></source>
        <translation>told %1</translation>
    </message>
    <message id="TERMINAL_ALERT_UNTIL_CLOSED">
        <source></source>
        <translation>until closed</translation>
    </message>
    <message id="TERMINAL_APP_TITLE">
        <source></source>
        <translation>Wirepane</translation>
    </message>
    <message id="TERMINAL_ARRANGE_COLUMNS">
        <source></source>
        <translation>&amp;Side by Side</translation>
    </message>
    <message id="TERMINAL_ARRANGE_ROWS">
        <source></source>
        <translation>&amp;One Above Another</translation>
    </message>
    <message id="TERMINAL_ARRANGE_TABS">
        <source></source>
        <translation>As &amp;Tabs</translation>
    </message>
    <message id="TERMINAL_AS_OF">
        <source></source>
        <translation>As of %1</translation>
    </message>
    <message id="TERMINAL_BLIND_BOTH">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="TERMINAL_BLIND_CUT_OFF">
        <source></source>
        <translation>Cut off from %1 to %2.</translation>
    </message>
    <message id="TERMINAL_BLIND_LATE">
        <source></source>
        <translation>%1 {headline|headlines} of that time came late, alerts among them: %2.</translation>
    </message>
    <message id="TERMINAL_BLIND_MISSING">
        <source></source>
        <translation>%1 {item|items} of %2 did not come, by its numbers: %3.</translation>
    </message>
    <message id="TERMINAL_BLIND_NOTHING">
        <source></source>
        <translation>No headline of that time has come since.</translation>
    </message>
    <message id="TERMINAL_BLIND_SOURCE">
        <source></source>
        <translation>No sign of life from %1 between %2 and %3.</translation>
    </message>
    <message id="TERMINAL_BREAKING_NEWS">
        <source></source>
        <translation>&amp;Breaking News Window</translation>
    </message>
    <message id="TERMINAL_CANCEL">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="TERMINAL_CLOSE_BUTTON">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="TERMINAL_CLOSE_VIEW">
        <source></source>
        <translation>&amp;Close View</translation>
    </message>
    <message id="TERMINAL_DATED_AHEAD">
        <source></source>
        <translation>%1 sends news that is dated ahead (%2): its clock or that of this computer is wrong.</translation>
    </message>
    <message id="TERMINAL_DUPLICATE_VIEW">
        <source></source>
        <translation>&amp;Duplicate View</translation>
    </message>
    <message id="TERMINAL_EMPTY_DESK">
        <source></source>
        <translation>No view is open. Ctrl+N opens one.</translation>
    </message>
    <message id="TERMINAL_EXCHANGE_ANNOUNCEMENTS">
        <source></source>
        <translation>Announcements of listed companies</translation>
    </message>
    <message id="TERMINAL_EXCHANGE_PUBLISHER">
        <source></source>
        <translation>the Taiwan Stock Exchange</translation>
    </message>
    <message id="TERMINAL_FEED_LATE">
        <source></source>
        <translation>Live – %1 {headline|headlines} came late</translation>
    </message>
    <message id="TERMINAL_FEED_LIVE">
        <source></source>
        <translation>Live</translation>
    </message>
    <message id="TERMINAL_FEED_OFFLINE_SINCE">
        <source></source>
        <translation>Offline since %1</translation>
    </message>
    <message id="TERMINAL_FEED_ONLY_READ">
        <source></source>
        <translation>Read-only</translation>
    </message>
    <message id="TERMINAL_FEED_RECONNECTING">
        <source></source>
        <translation>Reconnecting…</translation>
    </message>
    <message id="TERMINAL_FEED_SAMPLE">
        <source></source>
        <translation>Sample wire – invented news</translation>
    </message>
    <message id="TERMINAL_FLOAT_BUTTON">
        <source></source>
        <translation>Float or Dock</translation>
    </message>
    <message id="TERMINAL_FLOAT_VIEW">
        <source></source>
        <translation>&amp;Float or Dock View</translation>
    </message>
    <message id="TERMINAL_COMPACT_ROWS">
        <source></source>
        <translation>Compact &amp;Rows</translation>
    </message>
    <message id="TERMINAL_FONT_LARGER">
        <source></source>
        <translation>&amp;Larger Font</translation>
    </message>
    <message id="TERMINAL_FONT_SMALLER">
        <source></source>
        <translation>&amp;Smaller Font</translation>
    </message>
    <message id="TERMINAL_GO_TO_SYMBOL">
        <source></source>
        <translation>Go to S&amp;ymbol…</translation>
    </message>
    <message id="TERMINAL_GUIDE">
        <source></source>
        <translation>&amp;User's Guide</translation>
    </message>
    <message id="TERMINAL_GUIDE_TITLE">
        <source></source>
        <translation>User's Guide</translation>
    </message>
    <message id="TERMINAL_KEYS">
        <source></source>
        <translation>&amp;Keys</translation>
    </message>
    <message id="TERMINAL_KEYS_TITLE">
        <source></source>
        <translation>Keys</translation>
    </message>
    <message id="TERMINAL_ABOUT">
        <source></source>
        <translation>&amp;About Wirepane</translation>
    </message>
    <message id="TERMINAL_ABOUT_TEXT">
        <source></source>
        <translation>Wirepane %1
Reads the news of securities markets, live and from files.</translation>
    </message>
    <message id="TERMINAL_FILLING_SAMPLE">
        <source></source>
        <translation>Preparing today’s news of the sample wire, all of it invented.</translation>
    </message>
    <message id="TERMINAL_FIRST_STEPS">
        <source></source>
        <translation>%1 reads the next story    %2 searches    %3 imports news    %4 shows all keys</translation>
    </message>
    <message id="TERMINAL_FIRST_STEPS_HIDE">
        <source></source>
        <translation>Don’t Show Again</translation>
    </message>
    <message id="TERMINAL_HEADLINE_COUNT">
        <source></source>
        <translation>%1 {headline|headlines}</translation>
    </message>
    <message id="TERMINAL_MENU_ALERTS">
        <source></source>
        <translation>Alert &amp;History</translation>
    </message>
    <message id="TERMINAL_SETTINGS_ALERTS">
        <source></source>
        <translation>&amp;Alerts</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY">
        <source></source>
        <translation>&amp;Diary</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY_HELP">
        <source></source>
        <translation>The diary holds which rows and stories each view showed and when, what was opened, searched, marked, printed and saved, and which alerts were told and seen: with the moments of source, receipt and screen, your user name and the name of this machine. It stands in the file %1 and is kept until you delete that file; the terminal takes nothing out. Each entry is sealed with the one before, so that a later change shows.</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY_KEEP">
        <source></source>
        <translation>&amp;Keep a diary</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY_WORDS">
        <source></source>
        <translation>With the &amp;words that are searched for</translation>
    </message>
    <message id="TERMINAL_SOURCE_DELAYS_OF">
        <source></source>
        <translation>The last hour, %1 {headline|headlines}: half within, 99 of 100 within, longest</translation>
    </message>
    <message id="TERMINAL_SOURCE_TO_RECEIPT">
        <source></source>
        <translation>From publishing to receipt: %1, %2, %3</translation>
    </message>
    <message id="TERMINAL_SOURCE_TO_STORE">
        <source></source>
        <translation>From receipt to the store: %1, %2, %3</translation>
    </message>
    <message id="TERMINAL_TINT_BLUE">
        <source></source>
        <translation>Blue</translation>
    </message>
    <message id="TERMINAL_TINT_CYAN">
        <source></source>
        <translation>Cyan</translation>
    </message>
    <message id="TERMINAL_TINT_GREEN">
        <source></source>
        <translation>Green</translation>
    </message>
    <message id="TERMINAL_TINT_NONE">
        <source></source>
        <translation>None</translation>
    </message>
    <message id="TERMINAL_TINT_ORANGE">
        <source></source>
        <translation>Orange</translation>
    </message>
    <message id="TERMINAL_TINT_RED">
        <source></source>
        <translation>Red</translation>
    </message>
    <message id="TERMINAL_TINT_VIOLET">
        <source></source>
        <translation>Violet</translation>
    </message>
    <message id="TERMINAL_UNREAD_OF">
        <source></source>
        <translation>%1 unread</translation>
    </message>
    <message id="TERMINAL_HOURS_AGO">
        <source></source>
        <translation>%1 h ago</translation>
    </message>
    <message id="TERMINAL_IMPORT_ALL_KINDS">
        <source></source>
        <translation>News and tables</translation>
    </message>
    <message id="TERMINAL_IMPORT_ANY_FILE">
        <source></source>
        <translation>All files</translation>
    </message>
    <message id="TERMINAL_IMPORT_CANCELLED">
        <source></source>
        <translation>The import was cancelled. What was taken in before stays.</translation>
    </message>
    <message id="TERMINAL_IMPORT_COMPLETE">
        <source></source>
        <translation>The import is finished.</translation>
    </message>
    <message id="TERMINAL_IMPORT_FAILED">
        <source></source>
        <translation>The import failed.</translation>
    </message>
    <message id="TERMINAL_IMPORT_LEFT_OUT">
        <source></source>
        <translation>And %1 more {line|lines}, which “wirepane import” shows in a console.</translation>
    </message>
    <message id="TERMINAL_IMPORT_NEWS">
        <source></source>
        <translation>&amp;Import News…</translation>
    </message>
    <message id="TERMINAL_IMPORT_NOTHING_RECENT">
        <source></source>
        <translation>None of this news lies within the last 255 days: it is read as of its own time.</translation>
    </message>
    <message id="TERMINAL_IMPORT_NOT_STARTED">
        <source></source>
        <translation>The import could not be started.</translation>
    </message>
    <message id="TERMINAL_IMPORT_PARTIAL">
        <source></source>
        <translation>The import is finished, but not everything could be taken in.</translation>
    </message>
    <message id="TERMINAL_IMPORT_READ_AS_OF">
        <source></source>
        <translation>&amp;Read as of %3 %4 %1</translation>
    </message>
    <message id="TERMINAL_IMPORT_RUNNING">
        <source></source>
        <translation>Taking in news. If you cancel, what is in already stays.</translation>
    </message>
    <message id="TERMINAL_IMPORT_TITLE">
        <source></source>
        <translation>Import News</translation>
    </message>
    <message id="TERMINAL_INDEXING_STORE">
        <source></source>
        <translation>Making the search index of your news anew. This happens once after an update.</translation>
    </message>
    <message id="TERMINAL_LANGUAGE_EN">
        <source></source>
        <translation>English</translation>
    </message>
    <message id="TERMINAL_LANGUAGE_ZH_CN">
        <source></source>
        <translation>简体中文</translation>
    </message>
    <message id="TERMINAL_LANGUAGE_ZH_TW">
        <source></source>
        <translation>繁體中文</translation>
    </message>
    <message id="TERMINAL_LAST_HEADLINE">
        <source></source>
        <translation>last headline %1 · %2</translation>
    </message>
    <message id="TERMINAL_LINK_GROUP">
        <source></source>
        <translation>Group &amp;%1</translation>
    </message>
    <message id="TERMINAL_LINK_HINT">
        <source></source>
        <translation>Views of one group follow one symbol</translation>
    </message>
    <message id="TERMINAL_LINK_NONE">
        <source></source>
        <translation>&amp;Not Linked</translation>
    </message>
    <message id="TERMINAL_MENU_ARRANGE">
        <source></source>
        <translation>&amp;Arrange</translation>
    </message>
    <message id="TERMINAL_MENU_FILE">
        <source></source>
        <translation>&amp;File</translation>
    </message>
    <message id="TERMINAL_MENU_HELP">
        <source></source>
        <translation>&amp;Help</translation>
    </message>
    <message id="TERMINAL_MENU_LANGUAGE">
        <source></source>
        <translation>Lan&amp;guage</translation>
    </message>
    <message id="TERMINAL_MENU_LINK">
        <source></source>
        <translation>&amp;Link Group</translation>
    </message>
    <message id="TERMINAL_MENU_NEWS">
        <source></source>
        <translation>&amp;News</translation>
    </message>
    <message id="TERMINAL_MENU_SCHEME">
        <source></source>
        <translation>&amp;Colours</translation>
    </message>
    <message id="TERMINAL_MENU_VIEW">
        <source></source>
        <translation>&amp;View</translation>
    </message>
    <message id="TERMINAL_MENU_VIEWS">
        <source></source>
        <translation>&amp;Window</translation>
    </message>
    <message id="TERMINAL_MINUTES_AGO">
        <source></source>
        <translation>%1 min ago</translation>
    </message>
    <message id="TERMINAL_NEWS_DATE">
        <source></source>
        <translation>&amp;Date…</translation>
    </message>
    <message id="TERMINAL_NEWS_EARLIER_DAY">
        <source></source>
        <translation>&amp;Earlier Day</translation>
    </message>
    <message id="TERMINAL_NEWS_LATER_DAY">
        <source></source>
        <translation>La&amp;ter Day</translation>
    </message>
    <message id="TERMINAL_NEWS_LAYOUT">
        <source></source>
        <translation>Change &amp;Layout</translation>
    </message>
    <message id="TERMINAL_NEWS_NEXT_PAGE">
        <source></source>
        <translation>&amp;Next Story</translation>
    </message>
    <message id="TERMINAL_NEWS_MARK_READ">
        <source></source>
        <translation>&amp;Mark Read</translation>
    </message>
    <message id="TERMINAL_NEWS_MARK_UNREAD">
        <source></source>
        <translation>Mark &amp;Unread</translation>
    </message>
    <message id="TERMINAL_NEWS_STAR">
        <source></source>
        <translation>St&amp;ar</translation>
    </message>
    <message id="TERMINAL_NEWS_MARK_ALL_READ">
        <source></source>
        <translation>Mar&amp;k All Read</translation>
    </message>
    <message id="TERMINAL_NEWS_OPEN_IN_WINDOW">
        <source></source>
        <translation>Open in &amp;Window</translation>
    </message>
    <message id="TERMINAL_NEWS_PREVIOUS_PAGE">
        <source></source>
        <translation>&amp;Previous Story</translation>
    </message>
    <message id="TERMINAL_NEWS_SEARCH">
        <source></source>
        <translation>&amp;Search…</translation>
    </message>
    <message id="TERMINAL_NEWS_SERVICES">
        <source></source>
        <translation>Se&amp;rvices…</translation>
    </message>
    <message id="TERMINAL_NEWS_SOURCES">
        <source></source>
        <translation>S&amp;ources…</translation>
    </message>
    <message id="TERMINAL_NEWS_TODAY">
        <source></source>
        <translation>Toda&amp;y</translation>
    </message>
    <message id="TERMINAL_NEW_DAY">
        <source></source>
        <translation>A new day: %1</translation>
    </message>
    <message id="TERMINAL_NEW_SYMBOL_VIEW">
        <source></source>
        <translation>New Sy&amp;mbol View</translation>
    </message>
    <message id="TERMINAL_NEW_VIEW">
        <source></source>
        <translation>&amp;New View</translation>
    </message>
    <message id="TERMINAL_NEXT_VIEW">
        <source></source>
        <translation>Ne&amp;xt View</translation>
    </message>
    <message id="TERMINAL_NO_CHINESE_FONT">
        <source></source>
        <translation>No installed font has Chinese characters: they are shown as boxes. Install one, such as the package fonts-noto-cjk.</translation>
    </message>
    <message id="TERMINAL_NO_SOURCES">
        <source></source>
        <translation>No source is on</translation>
    </message>
    <message id="TERMINAL_NO_SOURCES_ADD">
        <source></source>
        <translation>Add One…</translation>
    </message>
    <message id="TERMINAL_PRESENT">
        <source></source>
        <translation>Present</translation>
    </message>
    <message id="TERMINAL_PREVIOUS_VIEW">
        <source></source>
        <translation>&amp;Previous View</translation>
    </message>
    <message id="TERMINAL_PRINT_NEWS">
        <source></source>
        <translation>&amp;Print News…</translation>
    </message>
    <message id="TERMINAL_PRINT_PREVIEW">
        <source></source>
        <translation>Print Pre&amp;view…</translation>
    </message>
    <message id="TERMINAL_QUIT">
        <source></source>
        <translation>&amp;Quit</translation>
    </message>
    <message id="TERMINAL_OWN_STORE">
        <source></source>
        <translation>Read My &amp;Own News</translation>
    </message>
    <message id="TERMINAL_SAMPLE_STORE">
        <source></source>
        <translation>Read the S&amp;ample Wire</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF">
        <source></source>
        <translation>&amp;Read As Of…</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_EXPLANATION">
        <source></source>
        <translation>The terminal shows the news as of this moment. What is dated later comes at its time.</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_NOW">
        <source></source>
        <translation>&amp;Present</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_READ">
        <source></source>
        <translation>&amp;Read</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_TITLE">
        <source></source>
        <translation>Read As Of</translation>
    </message>
    <message id="TERMINAL_RENAME_PROMPT">
        <source></source>
        <translation>Title (empty: what the view shows)</translation>
    </message>
    <message id="TERMINAL_RENAME_TITLE">
        <source></source>
        <translation>Rename View</translation>
    </message>
    <message id="TERMINAL_RENAME_VERB">
        <source></source>
        <translation>Rename</translation>
    </message>
    <message id="TERMINAL_RENAME_VIEW">
        <source></source>
        <translation>&amp;Rename View…</translation>
    </message>
    <message id="TERMINAL_RISING_GREEN">
        <source></source>
        <translation>Green</translation>
    </message>
    <message id="TERMINAL_RISING_RED">
        <source></source>
        <translation>Red</translation>
    </message>
    <message id="TERMINAL_SAVE_NEWS">
        <source></source>
        <translation>&amp;Save News As…</translation>
    </message>
    <message id="TERMINAL_SCHEME_CONTRAST">
        <source></source>
        <translation>&amp;High Contrast</translation>
    </message>
    <message id="TERMINAL_SCHEME_DARK">
        <source></source>
        <translation>&amp;Dark</translation>
    </message>
    <message id="TERMINAL_SCHEME_LIGHT">
        <source></source>
        <translation>&amp;Light</translation>
    </message>
    <message id="TERMINAL_SEARCH_BACKLOG">
        <source></source>
        <translation>Search lacks %1 {headline|headlines}: its index follows</translation>
    </message>
    <message id="TERMINAL_SEARCH_RENEWAL">
        <source></source>
        <translation>Searches follow earlier rules: the new index is %1 % made</translation>
    </message>
    <message id="TERMINAL_SECONDS_AGO">
        <source></source>
        <translation>%1 s ago</translation>
    </message>
    <message id="TERMINAL_SERVICES_COUNT">
        <source></source>
        <translation>%1 of %2 {service|services}</translation>
    </message>
    <message id="TERMINAL_SETTINGS">
        <source></source>
        <translation>S&amp;ettings…</translation>
    </message>
    <message id="TERMINAL_SETTINGS_BOTH_SEARCHES">
        <source></source>
        <translation>With both on, the lists of all news and of keyword sets no longer fill by themselves and take no live news. Leave one of them off unless you search only.</translation>
    </message>
    <message id="TERMINAL_SETTINGS_FONT">
        <source></source>
        <translation>&amp;Font size</translation>
    </message>
    <message id="TERMINAL_SETTINGS_GENERAL">
        <source></source>
        <translation>&amp;General</translation>
    </message>
    <message id="TERMINAL_SETTINGS_LANGUAGE">
        <source></source>
        <translation>&amp;Language</translation>
    </message>
    <message id="TERMINAL_SETTINGS_NEWS">
        <source></source>
        <translation>&amp;News</translation>
    </message>
    <message id="TERMINAL_SETTINGS_NORMAL_SEARCH">
        <source></source>
        <translation>&amp;Key sets</translation>
    </message>
    <message id="TERMINAL_SETTINGS_NORMAL_SEARCH_HELP">
        <source></source>
        <translation>Adds a tab with the news of the day that fit your keyword sets.</translation>
    </message>
    <message id="TERMINAL_SETTINGS_POINTS">
        <source></source>
        <translation> pt</translation>
    </message>
    <message id="TERMINAL_SETTINGS_REOPEN">
        <source></source>
        <translation>A change opens your views anew.</translation>
    </message>
    <message id="TERMINAL_SETTINGS_RISING">
        <source></source>
        <translation>&amp;Rising quotes</translation>
    </message>
    <message id="TERMINAL_SETTINGS_SAVE">
        <source></source>
        <translation>&amp;Save</translation>
    </message>
    <message id="TERMINAL_SETTINGS_SCHEME">
        <source></source>
        <translation>&amp;Colours</translation>
    </message>
    <message id="TERMINAL_SETTINGS_TITLE">
        <source></source>
        <translation>Settings</translation>
    </message>
    <message id="TERMINAL_SETTINGS_WARNING_SEARCH">
        <source></source>
        <translation>&amp;Warning terms</translation>
    </message>
    <message id="TERMINAL_SETTINGS_WARNING_SEARCH_HELP">
        <source></source>
        <translation>Adds a tab with the news that contain your warning terms.</translation>
    </message>
    <message id="TERMINAL_SHOWN_DAY">
        <source></source>
        <translation>Showing %1</translation>
    </message>
    <message id="TERMINAL_SHOW_TODAY">
        <source></source>
        <translation>Show Today</translation>
    </message>
    <message id="TERMINAL_SOURCES_ADD">
        <source></source>
        <translation>&amp;Add…</translation>
    </message>
    <message id="TERMINAL_SOURCES_COUNT">
        <source></source>
        <translation>%1 on</translation>
    </message>
    <message id="TERMINAL_SOURCES_COUNT_FAULTY">
        <source></source>
        <translation>%1 on · %2 with a fault</translation>
    </message>
    <message id="TERMINAL_SOURCES_DELAY">
        <source></source>
        <translation>Delay</translation>
    </message>
    <message id="TERMINAL_SOURCES_EXPORT">
        <source></source>
        <translation>E&amp;xport…</translation>
    </message>
    <message id="TERMINAL_SOURCES_EXPORT_TITLE">
        <source></source>
        <translation>Export a List of Feeds</translation>
    </message>
    <message id="TERMINAL_SOURCES_IMPORT">
        <source></source>
        <translation>&amp;Import OPML…</translation>
    </message>
    <message id="TERMINAL_SOURCES_IMPORTED">
        <source></source>
        <translation>%1 added, paused; %2 in the list already; %3 left out. Look at each, then resume it.</translation>
    </message>
    <message id="TERMINAL_SOURCES_IMPORT_TITLE">
        <source></source>
        <translation>Import a List of Feeds</translation>
    </message>
    <message id="TERMINAL_SOURCES_LAST">
        <source></source>
        <translation>Last</translation>
    </message>
    <message id="TERMINAL_SOURCES_NEXT">
        <source></source>
        <translation>Next</translation>
    </message>
    <message id="TERMINAL_SOURCES_ON">
        <source></source>
        <translation>On</translation>
    </message>
    <message id="TERMINAL_SOURCES_PASTE">
        <source></source>
        <translation>Paste an address: a feed, a page, or a file</translation>
    </message>
    <message id="TERMINAL_SOURCES_SILENT">
        <source></source>
        <translation>No source answers</translation>
    </message>
    <message id="TERMINAL_SOURCES_SOURCE">
        <source></source>
        <translation>Source</translation>
    </message>
    <message id="TERMINAL_SOURCES_STALE">
        <source></source>
        <translation>Nothing new for longer than usual</translation>
    </message>
    <message id="TERMINAL_SOURCES_STATE">
        <source></source>
        <translation>State</translation>
    </message>
    <message id="TERMINAL_SOURCES_TITLE">
        <source></source>
        <translation>Sources</translation>
    </message>
    <message id="TERMINAL_SOURCES_TODAY">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS">
        <source></source>
        <translation>A&amp;ccess</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_BASIC">
        <source></source>
        <translation>user:password</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_BEARER">
        <source></source>
        <translation>token (bearer)</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_HEADER">
        <source></source>
        <translation>own header</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_NONE">
        <source></source>
        <translation>none</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADAPTS">
        <source></source>
        <translation>adapts</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADD">
        <source></source>
        <translation>&amp;Add</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADDRESS">
        <source></source>
        <translation>Address</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADD_TITLE">
        <source></source>
        <translation>Add a Source</translation>
    </message>
    <message id="TERMINAL_SOURCE_ANY_AGE">
        <source></source>
        <translation>any age</translation>
    </message>
    <message id="TERMINAL_SOURCE_AUTHORISATION">
        <source></source>
        <translation>Sign-in</translation>
    </message>
    <message id="TERMINAL_SOURCE_AUTHORITY">
        <source></source>
        <translation>Certificate of an own authority</translation>
    </message>
    <message id="TERMINAL_SOURCE_BROWSE">
        <source></source>
        <translation>Choose a File</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY">
        <source></source>
        <translation>Category</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY_ALWAYS">
        <source></source>
        <translation>always:</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY_OTHERWISE">
        <source></source>
        <translation>where an item has none:</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY_OWN">
        <source></source>
        <translation>that of each item</translation>
    </message>
    <message id="TERMINAL_SOURCE_CERTIFICATE">
        <source></source>
        <translation>Client certificate</translation>
    </message>
    <message id="TERMINAL_SOURCE_CERTIFICATE_KEY">
        <source></source>
        <translation>Its key</translation>
    </message>
    <message id="TERMINAL_SOURCE_CONNECTING">
        <source></source>
        <translation>Connecting…</translation>
    </message>
    <message id="TERMINAL_SOURCE_DAYS_SUFFIX">
        <source></source>
        <translation> days</translation>
    </message>
    <message id="TERMINAL_SOURCE_DOWN">
        <source></source>
        <translation>Move down (Alt+Down)</translation>
    </message>
    <message id="TERMINAL_SOURCE_EDIT">
        <source></source>
        <translation>&amp;Edit…</translation>
    </message>
    <message id="TERMINAL_SOURCE_EDIT_TITLE">
        <source></source>
        <translation>Edit the Source</translation>
    </message>
    <message id="TERMINAL_SOURCE_EVERY">
        <source></source>
        <translation>every %1 s</translation>
    </message>
    <message id="TERMINAL_SOURCE_FAILED">
        <source></source>
        <translation>Failed since %1: %2</translation>
    </message>
    <message id="TERMINAL_SOURCE_FIELD">
        <source></source>
        <translation>Name of header or parameter</translation>
    </message>
    <message id="TERMINAL_SOURCE_GENERAL">
        <source></source>
        <translation>&amp;General</translation>
    </message>
    <message id="TERMINAL_SOURCE_GREATEST_AGE">
        <source></source>
        <translation>Oldest news taken</translation>
    </message>
    <message id="TERMINAL_SOURCE_INTERVAL">
        <source></source>
        <translation>Asked every</translation>
    </message>
    <message id="TERMINAL_SOURCE_IN_MINUTES">
        <source></source>
        <translation>in %1 min</translation>
    </message>
    <message id="TERMINAL_SOURCE_IN_SECONDS">
        <source></source>
        <translation>in %1 s</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND">
        <source></source>
        <translation>What it is</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND_AUTO">
        <source></source>
        <translation>recognised</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND_EVENTS">
        <source></source>
        <translation>server-sent events</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND_TABLE">
        <source></source>
        <translation>table by mapping</translation>
    </message>
    <message id="TERMINAL_SOURCE_LINKS">
        <source></source>
        <translation>Feeds of this page</translation>
    </message>
    <message id="TERMINAL_SOURCE_MAPPING">
        <source></source>
        <translation>Mapping</translation>
    </message>
    <message id="TERMINAL_SOURCE_NOT_ASKED">
        <source></source>
        <translation>Not asked yet</translation>
    </message>
    <message id="TERMINAL_SOURCE_NOT_READ">
        <source></source>
        <translation>No terminal reads it at the moment</translation>
    </message>
    <message id="TERMINAL_SOURCE_OWN_SERVICE">
        <source></source>
        <translation>Its own, named after it</translation>
    </message>
    <message id="TERMINAL_SOURCE_PAUSE">
        <source></source>
        <translation>&amp;Pause</translation>
    </message>
    <message id="TERMINAL_SOURCE_PAUSED">
        <source></source>
        <translation>Paused</translation>
    </message>
    <message id="TERMINAL_SOURCE_PROXIES">
        <source></source>
        <translation>The system’s proxy is used where there is one. Through a proxy only names can be checked: it is the proxy that finds the machine behind a name.</translation>
    </message>
    <message id="TERMINAL_SOURCE_READY_MADE">
        <source></source>
        <translation>ready made · %1</translation>
    </message>
    <message id="TERMINAL_SOURCE_READ_TERMS">
        <source></source>
        <translation>Off. Read the publisher’s terms first.</translation>
    </message>
    <message id="TERMINAL_SOURCE_REMOVE">
        <source></source>
        <translation>Re&amp;move</translation>
    </message>
    <message id="TERMINAL_SOURCE_REMOVE_QUESTION">
        <source></source>
        <translation>Remove “%1”? The news that it brought stays.</translation>
    </message>
    <message id="TERMINAL_SOURCE_RESUME">
        <source></source>
        <translation>&amp;Resume</translation>
    </message>
    <message id="TERMINAL_SOURCE_SAVE">
        <source></source>
        <translation>&amp;Save</translation>
    </message>
    <message id="TERMINAL_SOURCE_SECONDS_SUFFIX">
        <source></source>
        <translation> s</translation>
    </message>
    <message id="TERMINAL_SOURCE_SECRET">
        <source></source>
        <translation>Secret</translation>
    </message>
    <message id="TERMINAL_SOURCE_SECRET_KEPT">
        <source></source>
        <translation>kept with the secrets; empty leaves it</translation>
    </message>
    <message id="TERMINAL_SOURCE_SERVICE">
        <source></source>
        <translation>News service</translation>
    </message>
    <message id="TERMINAL_SOURCE_STALE">
        <source></source>
        <translation>Nothing new since %1</translation>
    </message>
    <message id="TERMINAL_SOURCE_STREAM">
        <source></source>
        <translation>stream</translation>
    </message>
    <message id="TERMINAL_SOURCE_TERMS_QUESTION">
        <source></source>
        <translation>%1 is published by %2. Once it is on, this terminal asks %3 for it again and again. Please read the publisher’s terms first: %4</translation>
    </message>
    <message id="TERMINAL_SOURCE_TERMS_READ">
        <source></source>
        <translation>I Have Read Them: &amp;Add</translation>
    </message>
    <message id="TERMINAL_SOURCE_TEST">
        <source></source>
        <translation>&amp;Test</translation>
    </message>
    <message id="TERMINAL_SOURCE_TITLE">
        <source></source>
        <translation>Title</translation>
    </message>
    <message id="TERMINAL_SOURCE_UP">
        <source></source>
        <translation>Move up (Alt+Up)</translation>
    </message>
    <message id="TERMINAL_STATUS_CONNECT">
        <source></source>
        <translation>Connect…</translation>
    </message>
    <message id="TERMINAL_STATUS_IMPORT">
        <source></source>
        <translation>Import…</translation>
    </message>
    <message id="TERMINAL_SYMBOL_BAR">
        <source></source>
        <translation>Symbol</translation>
    </message>
    <message id="TERMINAL_SYMBOL_PROMPT">
        <source></source>
        <translation>Code or name</translation>
    </message>
    <message id="TERMINAL_SYMBOL_UNKNOWN">
        <source></source>
        <translation>No such symbol</translation>
    </message>
    <message id="TERMINAL_TRIAL_ASKING">
        <source></source>
        <translation>Asking…</translation>
    </message>
    <message id="TERMINAL_TRIAL_HEADLINE">
        <source></source>
        <translation>Headline</translation>
    </message>
    <message id="TERMINAL_TRIAL_ITEMS">
        <source></source>
        <translation>The first items as they would stand: %1 read, %2 rejected.</translation>
    </message>
    <message id="TERMINAL_TRIAL_NOT_ASKED">
        <source></source>
        <translation>Test asks the source once and shows its newest items here, as they would stand.</translation>
    </message>
    <message id="TERMINAL_TRIAL_NOTHING">
        <source></source>
        <translation>It answers, and holds no items at the moment.</translation>
    </message>
    <message id="TERMINAL_TRIAL_PAGE">
        <source></source>
        <translation>This is a page; it names %1 {feed|feeds} of its own.</translation>
    </message>
    <message id="TERMINAL_TRIAL_REJECTED">
        <source></source>
        <translation>%1 {item was|items were} rejected, the first because: %2</translation>
    </message>
    <message id="TERMINAL_TRIAL_TIME">
        <source></source>
        <translation>Time</translation>
    </message>
    <message id="TERMINAL_TRIAL_TITLE">
        <source></source>
        <translation>The first items as they would stand</translation>
    </message>
    <message id="TERMINAL_TRIAL_TOO_OLD">
        <source></source>
        <translation>It answers; its %1 {item is|items are all} older than what is taken.</translation>
    </message>
    <message id="TERMINAL_TRIAL_TOPIC">
        <source></source>
        <translation>Topic</translation>
    </message>
    <message id="TERMINAL_VIEW_FAILED">
        <source></source>
        <translation>A view could not be restored: %1</translation>
    </message>
    <message id="ERROR_STORE_OF_WIRE_ALONE">
        <source></source>
        <translation>This store follows a wire and takes news from there alone; publish it on the wire.</translation>
    </message>
    <message id="ERROR_STORE_NEWS_OF_ITS_OWN">
        <source></source>
        <translation>This store has news of its own; a wire needs a store that has none, or follows it already.</translation>
    </message>
    <message id="ERROR_STORE_COPY_DIFFERS">
        <source></source>
        <translation>The store holds the news %1 otherwise than the wire does.</translation>
    </message>
    <message id="ERROR_WIRE_HOLE">
        <source></source>
        <translation>The wire has a hole before row %1: service %2 stands at %3 there and at %4 here. Nothing was taken.</translation>
    </message>
    <message id="ERROR_WIRE_OTHER_EPOCH">
        <source></source>
        <translation>The wire was set back: it is of the epoch %1 now, and this store follows %2. Nothing was taken.</translation>
    </message>
    <message id="ERROR_WIRE_WENT_BACK">
        <source></source>
        <translation>The wire was set back: it ends at row %1, and this store has followed it to row %2. Nothing was taken.</translation>
    </message>
    <message id="ERROR_WIRE_UNKNOWN_FORMAT">
        <source></source>
        <translation>The wire is written in form %1, which this version of the program does not know.</translation>
    </message>
    <message id="ERROR_WIRE_UNKNOWN_KIND">
        <source></source>
        <translation>It is of the kind &quot;%1&quot;, which this version of the program does not know.</translation>
    </message>
    <message id="ERROR_WIRE_ROW_DAMAGED">
        <source></source>
        <translation>It is damaged: nothing can be read from it.</translation>
    </message>
    <message id="ERROR_WIRE_ROW">
        <source></source>
        <translation>row %1 of the wire</translation>
    </message>
    <message id="ERROR_WIRE_POSITION_UNREADABLE">
        <source></source>
        <translation>How far this store has followed the wire is not to be read: &quot;%1&quot;.</translation>
    </message>
    <message id="ERROR_WIRE_NO_BEAT">
        <source></source>
        <translation>No ingest point of the wire has given a sign of life for %1 seconds.</translation>
    </message>
    <message id="ERROR_WIRE_SERVER">
        <source></source>
        <translation>The wire's server says: %1</translation>
    </message>
    <message id="ERROR_WIRE_NOT_MADE">
        <source></source>
        <translation>There is no wire in this database; &quot;wirepane wire init&quot; makes one.</translation>
    </message>
    <message id="ERROR_WIRE_MADE_ALREADY">
        <source></source>
        <translation>There is a wire in this database already.</translation>
    </message>
    <message id="ERROR_WIRE_DRIVER_MISSING">
        <source></source>
        <translation>What speaks with a wire's server is not installed: %1</translation>
    </message>
    <message id="ERROR_WIRE_SERVICE_NAME">
        <source></source>
        <translation>&quot;%1&quot; is no name of a wire: letters, digits, &quot;.&quot;, &quot;_&quot; and &quot;-&quot; are taken.</translation>
    </message>
    <message id="ERROR_WIRE_NO_QUOTES">
        <source></source>
        <translation>Quotes do not travel by a wire.</translation>
    </message>
</context>
</TS>

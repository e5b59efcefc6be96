<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name></name>
    <message id="ERROR_COMMANDS_FILES_NOT_READ">
        <source></source>
        <translation>%2 個檔案中有 %1 個無法讀取。</translation>
    </message>
    <message id="ERROR_COMMANDS_FILE_REJECTED">
        <source></source>
        <translation>%1：%2</translation>
    </message>
    <message id="ERROR_COMMANDS_IMPORT_STOPPED">
        <source></source>
        <translation>已停止。已匯入的檔案會保留；再次匯入相同檔案即可繼續。</translation>
    </message>
    <message id="ERROR_COMMANDS_IMPORT_TOTALS">
        <source></source>
        <translation>已匯入 %1 筆，已存在 %2 筆，未能匯入 %3 筆</translation>
    </message>
    <message id="ERROR_COMMANDS_ITEM_REJECTED">
        <source></source>
        <translation>%1：%2：%3</translation>
    </message>
    <message id="ERROR_COMMANDS_NOTHING_RECENT">
        <source></source>
        <translation>這些新聞都不在最近 255 天之內。若要檢視，請以 --now %1 啟動終端機，或使用「指定時點閱讀」（在終端機中按 Ctrl+G）。</translation>
    </message>
    <message id="ERROR_DATABASE_BACKUP_EXISTS">
        <source></source>
        <translation>%1 已經存在，請為備份指定另一個檔案。</translation>
    </message>
    <message id="ERROR_DATABASE_DAMAGED">
        <source></source>
        <translation>%1 已損毀（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_DISK_FULL">
        <source></source>
        <translation>磁碟空間不足，無法擴充 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_IN_USE">
        <source></source>
        <translation>%1 正由其他程式使用中（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_LOG_NEEDED">
        <source></source>
        <translation>讀取 %1 需要其日誌檔 %2，因此所在資料夾必須可寫入；請將兩者複製到可寫入的資料夾。</translation>
    </message>
    <message id="ERROR_DATABASE_MEMORY_IS_NO_FILE">
        <source></source>
        <translation>新聞資料庫必須是檔案；「:memory:」不是檔案。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_ON_DISK">
        <source></source>
        <translation>無法將 %1 寫入磁碟。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_OPENED">
        <source></source>
        <translation>無法開啟 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_READ_OR_WRITTEN">
        <source></source>
        <translation>無法讀取或寫入 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_USED">
        <source></source>
        <translation>無法使用 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_WRITTEN">
        <source></source>
        <translation>無法寫入 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NO_DATABASE">
        <source></source>
        <translation>%1 不是新聞資料庫，或檔案開頭已損毀（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NO_FILE_NAMED">
        <source></source>
        <translation>未指定新聞資料庫檔案。</translation>
    </message>
    <message id="ERROR_DATABASE_NO_MEMORY">
        <source></source>
        <translation>無法開啟 %1：記憶體不足。</translation>
    </message>
    <message id="ERROR_DATABASE_ONLY_READ">
        <source></source>
        <translation>%1 為唯讀，不會接收任何新聞。</translation>
    </message>
    <message id="ERROR_DATABASE_SINGLE_BYTE">
        <source></source>
        <translation>%1 不是新聞資料庫（檔案只有一個位元組）。</translation>
    </message>
    <message id="ERROR_DATABASE_TAKEN_AWAY">
        <source></source>
        <translation>%1 在使用期間已被移動或刪除；還原該檔案或重新啟動程式之前，不會接收任何新聞。</translation>
    </message>
    <message id="ERROR_DIARY_HEAD_NOT_KEPT">
        <source></source>
        <translation>資料庫無法記下日誌 %1 寫到哪裡：%2。</translation>
    </message>
    <message id="ERROR_DIARY_NOT_OPENED">
        <source></source>
        <translation>無法開啟日誌 %1：%2。</translation>
    </message>
    <message id="ERROR_DIARY_NOT_READ">
        <source></source>
        <translation>無法讀取日誌 %1：%2。</translation>
    </message>
    <message id="ERROR_DIARY_NOT_WRITTEN">
        <source></source>
        <translation>無法寫入日誌 %1：%2。</translation>
    </message>
    <message id="ERROR_FEED_AT_POSITION">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_FEED_GREETING_NOT_FIRST">
        <source></source>
        <translation>問候行只能是第一行。</translation>
    </message>
    <message id="ERROR_FEED_LINE_OVER">
        <source></source>
        <translation>此行超過 %1 MiB。</translation>
    </message>
    <message id="ERROR_FEED_MORE_REJECTED">
        <source></source>
        <translation>以及更多：共有 %1 個項目被拒絕。</translation>
    </message>
    <message id="ERROR_FEED_PROGRAM_ENDED">
        <source></source>
        <translation>%1 已結束：%2</translation>
    </message>
    <message id="ERROR_FEED_REJECTED_AT">
        <source></source>
        <translation>%1：%2</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_FILE_TOO_LARGE">
        <source></source>
        <translation>檔案超過 %1 位元組。</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_FOLDER_LINKED">
        <source></source>
        <translation>無法使用收件資料夾 %1：其中的 %2 是連結。</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_FOLDER_NOT_MADE">
        <source></source>
        <translation>無法使用收件資料夾 %1：無法在其中建立資料夾 %2。</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_LINK">
        <source></source>
        <translation>這是連結；只接受檔案。</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_NOT_MOVED">
        <source></source>
        <translation>無法將 %1 移至資料夾 %2。檔案保持原狀，且不會再次接收。</translation>
    </message>
    <message id="ERROR_FEED_UNKNOWN_LINE">
        <source></source>
        <translation>此行沒有已知類型的記錄，也沒有註明來源的問候行。</translation>
    </message>
    <message id="ERROR_FRAME_UNKNOWN_VIEW">
        <source></source>
        <translation>新聞模組無法建立類別為 %1 的視窗。</translation>
    </message>
    <message id="ERROR_IMPORT_AN_OBJECT">
        <source></source>
        <translation>物件</translation>
    </message>
    <message id="ERROR_IMPORT_AT_END">
        <source></source>
        <translation>結尾</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ITEM">
        <source></source>
        <translation>第 %1 項</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ITEM_NAMED">
        <source></source>
        <translation>第 %1 項（%2）</translation>
    </message>
    <message id="ERROR_IMPORT_AT_LINE">
        <source></source>
        <translation>第 %1 行</translation>
    </message>
    <message id="ERROR_IMPORT_AT_LINE_NAMED">
        <source></source>
        <translation>第 %1 行（%2）</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ROW">
        <source></source>
        <translation>第 %1 列</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ROW_NAMED">
        <source></source>
        <translation>第 %1 列（%2）</translation>
    </message>
    <message id="ERROR_IMPORT_A_LIST">
        <source></source>
        <translation>清單</translation>
    </message>
    <message id="ERROR_IMPORT_A_NUMBER">
        <source></source>
        <translation>數字</translation>
    </message>
    <message id="ERROR_IMPORT_A_TEXT">
        <source></source>
        <translation>文字</translation>
    </message>
    <message id="ERROR_IMPORT_BEHIND_LIST">
        <source></source>
        <translation>清單結尾之後還有其他內容。</translation>
    </message>
    <message id="ERROR_IMPORT_CATALOGUE_OF_CODES">
        <source></source>
        <translation>代碼表目錄</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY">
        <source></source>
        <translation>分類</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY_FIELD">
        <source></source>
        <translation>類別的「%1」%2。</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY_ID">
        <source></source>
        <translation>分類編號</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY_WITHOUT_NAME">
        <source></source>
        <translation>分類 %1 沒有名稱。</translation>
    </message>
    <message id="ERROR_IMPORT_CHANGE">
        <source></source>
        <translation>漲跌</translation>
    </message>
    <message id="ERROR_IMPORT_COLUMN_MISSING">
        <source></source>
        <translation>表格中沒有欄位對應檔所指定的欄位「%1」。</translation>
    </message>
    <message id="ERROR_IMPORT_ENTRY_WITHOUT_DATE">
        <source></source>
        <translation>此條目及其資訊來源都沒有可讀取的日期。</translation>
    </message>
    <message id="ERROR_IMPORT_ENTRY_WITHOUT_TITLE">
        <source></source>
        <translation>此條目沒有標題，也沒有可用來產生標題的內文。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_EMPTY">
        <source></source>
        <translation>檔案是空的。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_MISSING">
        <source></source>
        <translation>檔案不存在。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_NOT_OPENED">
        <source></source>
        <translation>無法開啟檔案：%1。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_NOT_READ_TO_END">
        <source></source>
        <translation>無法完整讀取檔案：%1。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_TOO_LARGE">
        <source></source>
        <translation>檔案超過 %1 位元組；只有每行一筆記錄的 JSON 可以超過此大小。</translation>
    </message>
    <message id="ERROR_IMPORT_GUID_OF_ITEM">
        <source></source>
        <translation>此項目的「guid」</translation>
    </message>
    <message id="ERROR_IMPORT_HOLDS_NO_SYMBOL">
        <source></source>
        <translation>含有不是 {market, code} 的項目</translation>
    </message>
    <message id="ERROR_IMPORT_IDENTITY_OF_ENTRY">
        <source></source>
        <translation>此條目的識別碼</translation>
    </message>
    <message id="ERROR_IMPORT_IDENTITY_OF_ROW">
        <source></source>
        <translation>此列的識別碼</translation>
    </message>
    <message id="ERROR_IMPORT_IDENTITY_TOO_LONG">
        <source></source>
        <translation>%1超過 %2 個字元。</translation>
    </message>
    <message id="ERROR_IMPORT_IS_MISSING">
        <source></source>
        <translation>缺少</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_FIELD">
        <source></source>
        <translation>新聞項目的「%1」%2。</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_TIME_UNREAD">
        <source></source>
        <translation>無法讀取此項目的時間：「%1」的值為「%2」。</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_WITHOUT_GUID">
        <source></source>
        <translation>此項目沒有「guid」。</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_WITHOUT_HEADLINE">
        <source></source>
        <translation>此項目沒有標題，也沒有可用來產生標題的內文。</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_WITHOUT_TIME">
        <source></source>
        <translation>此項目沒有時間（「versionCreated」）。</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_BEHIND_END">
        <source></source>
        <translation>文件結尾有多餘的內容</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_ESCAPE">
        <source></source>
        <translation>無效的跳脫序列</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_LIST_WITHOUT_END">
        <source></source>
        <translation>陣列未結束</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_NAME_SEPARATOR">
        <source></source>
        <translation>缺少名稱分隔符號</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_NUMBER">
        <source></source>
        <translation>無效的數字</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_NUMBER_END">
        <source></source>
        <translation>結尾的數字無效</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_OBJECT_MISSING">
        <source></source>
        <translation>逗號後缺少物件</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_OBJECT_WITHOUT_END">
        <source></source>
        <translation>物件未結束</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_TEXT_WITHOUT_END">
        <source></source>
        <translation>字串未結束</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_TOO_DEEP">
        <source></source>
        <translation>文件的巢狀層級過深</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_TOO_LARGE">
        <source></source>
        <translation>文件過大</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_UTF_8">
        <source></source>
        <translation>無效的 UTF-8 字串</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_VALUE">
        <source></source>
        <translation>無效的值</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_VALUE_SEPARATOR">
        <source></source>
        <translation>缺少值分隔符號</translation>
    </message>
    <message id="ERROR_IMPORT_LAST_PRICE">
        <source></source>
        <translation>成交價</translation>
    </message>
    <message id="ERROR_IMPORT_LINE_TOO_LONG">
        <source></source>
        <translation>此行超過 %1 位元組。</translation>
    </message>
    <message id="ERROR_IMPORT_LIST_WITHOUT_END">
        <source></source>
        <translation>清單沒有結尾：缺少「]」。</translation>
    </message>
    <message id="ERROR_IMPORT_LONE_CONCEPT">
        <source></source>
        <translation>概念</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_FIELD">
        <source></source>
        <translation>欄位對應檔的「%1」%2。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_FIELD_UNKNOWN">
        <source></source>
        <translation>無法識別欄位對應檔的「%1」。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_FIELD_UNUSABLE">
        <source></source>
        <translation>無法使用欄位對應檔的「%1」：%2</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_NOT_OPENED">
        <source></source>
        <translation>無法開啟欄位對應檔 %1：%2。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_NO_JSON">
        <source></source>
        <translation>欄位對應檔不是有效的 JSON：%1（位元組 %2）。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_NO_OBJECT">
        <source></source>
        <translation>欄位對應檔不是 JSON 物件。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_TOO_LARGE">
        <source></source>
        <translation>欄位對應檔 %1 超過 %2 位元組。</translation>
    </message>
    <message id="ERROR_IMPORT_MARKET">
        <source></source>
        <translation>市場</translation>
    </message>
    <message id="ERROR_IMPORT_MARKUP_PAGE">
        <source></source>
        <translation>檔案是標記語言網頁，不是表格：開頭為「%1」。</translation>
    </message>
    <message id="ERROR_IMPORT_MESSAGE_EMPTY">
        <source></source>
        <translation>訊息中沒有任何項目。</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_ANY_NUMBER">
        <source></source>
        <translation>必須是數字</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_CHARACTER">
        <source></source>
        <translation>必須是單一字元</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_LINES">
        <source></source>
        <translation>必須是「wrapped」、「kept」或「numbered」</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_LIST">
        <source></source>
        <translation>必須是清單</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_NUMBER">
        <source></source>
        <translation>必須是 %1 到 %2 的數字</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_OBJECT">
        <source></source>
        <translation>必須是物件</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_TEXT">
        <source></source>
        <translation>必須是文字</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_TEXTS">
        <source></source>
        <translation>必須是文字或文字清單，且不得為空</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_TRUE_OR_FALSE">
        <source></source>
        <translation>必須是 true 或 false</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_HOLD_TEXTS">
        <source></source>
        <translation>只能包含文字或數字</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_COLUMN">
        <source></source>
        <translation>必須指定欄位</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_IDENTITY">
        <source></source>
        <translation>必須指定用以區別各項目的欄位</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_SERVICES">
        <source></source>
        <translation>必須以 1 到 255 的數字指定新聞服務</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_TITLE">
        <source></source>
        <translation>必須指定欄位，除非「story」已指定</translation>
    </message>
    <message id="ERROR_IMPORT_NAMES_ENCODING">
        <source></source>
        <translation>指定了不支援的編碼「%1」</translation>
    </message>
    <message id="ERROR_IMPORT_NOTHING">
        <source></source>
        <translation>空值</translation>
    </message>
    <message id="ERROR_IMPORT_NOT_FOR_PUBLICATION">
        <source></source>
        <translation>此筆記錄不得發布：「%1」的值為「%2」。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_COLOUR">
        <source></source>
        <translation>「%1」不是顏色：格式必須為「#rrggbb」。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_FILE">
        <source></source>
        <translation>這不是檔案。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_KNOWN_ENCODING">
        <source></source>
        <translation>檔案編碼既非 UTF-8，也非950 字碼頁。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_MAPPED_ENCODING">
        <source></source>
        <translation>檔案不符合欄位對應檔所列的任何編碼。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_PRICE">
        <source></source>
        <translation>「%1」不是有效的%2：必須是如 12.5 的數字。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_SYMBOL_CODE">
        <source></source>
        <translation>「%1」不是商品代號。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_UTF_16">
        <source></source>
        <translation>檔案開頭標示為 UTF-16，內容卻不是。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_ZONE">
        <source></source>
        <translation>既不是如「+08:00」的時差，也不是已知的時區</translation>
    </message>
    <message id="ERROR_IMPORT_NUMBER_OUT_OF_RANGE">
        <source></source>
        <translation>「%1」不是有效的%2：必須是 %3 到 %4 的數字。</translation>
    </message>
    <message id="ERROR_IMPORT_OTHER_NEWSML">
        <source></source>
        <translation>&lt;%1&gt; 是%2，不是新聞。</translation>
    </message>
    <message id="ERROR_IMPORT_PACKAGE_OF_LINKS">
        <source></source>
        <translation>新聞連結的彙編</translation>
    </message>
    <message id="ERROR_IMPORT_PLAN_OF_COVERAGE">
        <source></source>
        <translation>採訪計畫</translation>
    </message>
    <message id="ERROR_IMPORT_QUOTE_FIELD">
        <source></source>
        <translation>報價的「%1」%2。</translation>
    </message>
    <message id="ERROR_IMPORT_QUOTE_NOT_CLOSED">
        <source></source>
        <translation>引號未成對，其後的內容均未讀取。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_FIELD">
        <source></source>
        <translation>欄位「%1」必須是%2，而不是%3。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_NO_JSON">
        <source></source>
        <translation>此筆記錄不是有效的 JSON：%1（位元組 %2）。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_NO_OBJECT">
        <source></source>
        <translation>此筆記錄不是 JSON 物件。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_TIME_UNREAD">
        <source></source>
        <translation>無法讀取此筆記錄的時間：「%1」的值為「%2」。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_TOO_LONG">
        <source></source>
        <translation>此筆記錄超過 %1 位元組。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_WITHOUT_TIME">
        <source></source>
        <translation>此筆記錄沒有時間（「versioncreated」、「firstcreated」或「contentcreated」）。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_WITHOUT_TITLE">
        <source></source>
        <translation>此筆記錄沒有標題，也沒有可用來產生標題的內文。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_WITHOUT_URI">
        <source></source>
        <translation>此筆記錄沒有「uri」。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_NO_JSON">
        <source></source>
        <translation>此列不是有效的 JSON：%1（位元組 %2）。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_NO_OBJECT">
        <source></source>
        <translation>此列不是 JSON 物件。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_TIME_UNREAD">
        <source></source>
        <translation>「%1」不符合欄位對應檔所定的時間格式。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_DATE">
        <source></source>
        <translation>此列沒有日期。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_IDENTITY">
        <source></source>
        <translation>此列的識別欄位（%1）沒有內容。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_SERVICE">
        <source></source>
        <translation>「%1」不是新聞服務：欄位對應檔中沒有其編號。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_TITLE">
        <source></source>
        <translation>此列沒有標題，也沒有可用來產生標題的內文。</translation>
    </message>
    <message id="ERROR_IMPORT_SERVICE">
        <source></source>
        <translation>新聞服務</translation>
    </message>
    <message id="ERROR_IMPORT_SET_OF_CONCEPTS">
        <source></source>
        <translation>概念集</translation>
    </message>
    <message id="ERROR_IMPORT_SYMBOL_FIELD">
        <source></source>
        <translation>商品的「%1」%2。</translation>
    </message>
    <message id="ERROR_IMPORT_SYMBOL_WITHOUT_NAME">
        <source></source>
        <translation>商品「%1」沒有名稱。</translation>
    </message>
    <message id="ERROR_IMPORT_TIME_FORM">
        <source></source>
        <translation>「%1」不是日期或時間格式。</translation>
    </message>
    <message id="ERROR_IMPORT_TIME_FORM_AT">
        <source></source>
        <translation>「%1」不是日期或時間格式：請檢查「%2」。</translation>
    </message>
    <message id="ERROR_IMPORT_TRUE_OR_FALSE">
        <source></source>
        <translation>布林值</translation>
    </message>
    <message id="ERROR_IMPORT_UNDER_EMBARGO">
        <source></source>
        <translation>此筆記錄尚未解禁：「%1」的值為「%2」。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_ENCODING">
        <source></source>
        <translation>檔案宣告的編碼「%1」不受支援。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_FORMAT">
        <source></source>
        <translation>無法識別檔案格式（支援 %1）：開頭為%2。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_JSON">
        <source></source>
        <translation>不支援此種 JSON 檔案：記錄的欄位為%1。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_XML">
        <source></source>
        <translation>不支援此種 XML 檔案：根元素為 &lt;%1&gt;。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_XML_OF">
        <source></source>
        <translation>不支援此種 XML 檔案：根元素為 &lt;%1&gt;，命名空間為「%2」。</translation>
    </message>
    <message id="ERROR_IMPORT_URI_OF_RECORD">
        <source></source>
        <translation>此筆記錄的「uri」</translation>
    </message>
    <message id="ERROR_IMPORT_VOLUME">
        <source></source>
        <translation>成交量</translation>
    </message>
    <message id="ERROR_IMPORT_WITH_CLOCK">
        <source></source>
        <translation>必須與「clock」同時設定</translation>
    </message>
    <message id="ERROR_IMPORT_XML_NOT_READ">
        <source></source>
        <translation>無法讀取 XML：%1。</translation>
    </message>
    <message id="ERROR_IMPORT_XML_WITHOUT_ELEMENT">
        <source></source>
        <translation>檔案看似 XML，但開頭找不到任何元素。</translation>
    </message>
    <message id="ERROR_LINES_FOLDER_HELD">
        <source></source>
        <translation>資料夾不存在，或正由其他程式占用</translation>
    </message>
    <message id="ERROR_LINES_FOLDER_NOT_MADE">
        <source></source>
        <translation>無法建立本機通訊端資料夾 %1：%2。</translation>
    </message>
    <message id="ERROR_LINES_FOLDER_NOT_OWN">
        <source></source>
        <translation>本機通訊端資料夾 %1 並非此使用者專用。</translation>
    </message>
    <message id="ERROR_LINES_NO_SOCKET">
        <source></source>
        <translation>已有同名的項目，且不是通訊端</translation>
    </message>
    <message id="ERROR_LINES_PATH_TOO_LONG">
        <source></source>
        <translation>路徑超過 %1 位元組</translation>
    </message>
    <message id="ERROR_LINES_SOCKET_IN_USE">
        <source></source>
        <translation>正由其他程式使用中</translation>
    </message>
    <message id="ERROR_LINES_SOCKET_NOT_OPENED">
        <source></source>
        <translation>無法開啟本機通訊端 %1：%2。</translation>
    </message>
    <message id="ERROR_LINES_SOCKET_OF_OTHER">
        <source></source>
        <translation>屬於其他使用者</translation>
    </message>
    <message id="ERROR_LINES_SYSTEM_SAYS">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_NETWORK_ASKED_TOO_OFTEN">
        <source></source>
        <translation>%1 被詢問得太頻繁，要求稍後再來。</translation>
    </message>
    <message id="ERROR_NETWORK_AUTHORISATION_INCOMPLETE">
        <source></source>
        <translation>來源的授權缺少機密資料的名稱或欄位的名稱。</translation>
    </message>
    <message id="ERROR_NETWORK_BODY_TOO_LARGE">
        <source></source>
        <translation>回應大於 %1 MiB；其中內容均未採用。</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_EXPIRED">
        <source></source>
        <translation>%1 的憑證已於 %2 到期，或本機的時鐘不準。</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_NOT_TRUSTED">
        <source></source>
        <translation>%1 的憑證不是由受信任的機構簽發；可以為來源指定私人的機構。</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_NOT_YET_VALID">
        <source></source>
        <translation>%1 的憑證自 %2 起才有效；本機的時鐘可能不準。</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_OF_OTHER">
        <source></source>
        <translation>代 %1 回應者出示的是「%2」的憑證；未向其要求任何資料。</translation>
    </message>
    <message id="ERROR_NETWORK_CLOCK_OFF">
        <source></source>
        <translation>%1 的時鐘與本機的時鐘相差 %2 分鐘。</translation>
    </message>
    <message id="ERROR_NETWORK_CUT_OFF">
        <source></source>
        <translation>%1 的回應中斷；其中內容均未採用。</translation>
    </message>
    <message id="ERROR_NETWORK_EMPTY_ANSWER">
        <source></source>
        <translation>%1 的回應是空的。</translation>
    </message>
    <message id="ERROR_NETWORK_EMPTY_LIST">
        <source></source>
        <translation>%1 的清單已沒有任何內容；原有的新聞仍會保留。</translation>
    </message>
    <message id="ERROR_NETWORK_EVENT_TOO_LONG">
        <source></source>
        <translation>串流送來一則超過 %1 MiB 的事件；已略過。</translation>
    </message>
    <message id="ERROR_NETWORK_FIELD_WRONG">
        <source></source>
        <translation>來源的欄位「%1」不能是「%2」。</translation>
    </message>
    <message id="ERROR_NETWORK_FILE_NOT_TYPED">
        <source></source>
        <translation>檔案只有在使用者親自輸入其位址時才能作為來源。</translation>
    </message>
    <message id="ERROR_NETWORK_FORBIDDEN">
        <source></source>
        <translation>%1 或途中的防火牆不允許此要求（狀態 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_HOST_UNKNOWN">
        <source></source>
        <translation>找不到主機 %1：名稱有誤，或目前沒有連線。</translation>
    </message>
    <message id="ERROR_NETWORK_LIST_FULL">
        <source></source>
        <translation>清單已有 %1 個來源，無法再新增。</translation>
    </message>
    <message id="ERROR_NETWORK_MAPPING_MISSING">
        <source></source>
        <translation>無法使用來源的對應檔「%1」：%2</translation>
    </message>
    <message id="ERROR_NETWORK_NOTHING_TAKEN">
        <source></source>
        <translation>%1 個項目均無法採用，第一個的原因：%2</translation>
    </message>
    <message id="ERROR_NETWORK_NOT_AUTHORISED">
        <source></source>
        <translation>%1 要求有效的授權（狀態 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_NOT_REACHED">
        <source></source>
        <translation>無法連到 %1。</translation>
    </message>
    <message id="ERROR_NETWORK_NOT_THERE">
        <source></source>
        <translation>%1 在此位址已沒有內容（狀態 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_NO_ADDRESS">
        <source></source>
        <translation>「%1」不是可以連線的來源位址。</translation>
    </message>
    <message id="ERROR_NETWORK_NO_SOURCE">
        <source></source>
        <translation>清單中沒有來源「%1」。</translation>
    </message>
    <message id="ERROR_NETWORK_NO_STREAM">
        <source></source>
        <translation>%1 在此網址不提供新聞串流（%2）。</translation>
    </message>
    <message id="ERROR_NETWORK_OTHER_FORMAT">
        <source></source>
        <translation>回應是 %1，與來源所設定的格式不符。</translation>
    </message>
    <message id="ERROR_NETWORK_PAGE_INSTEAD">
        <source></source>
        <translation>%1 給的是網頁而不是新聞：「%2」。</translation>
    </message>
    <message id="ERROR_NETWORK_PORTAL_INSTEAD">
        <source></source>
        <translation>%1 轉往 %2 的網頁而不是新聞；需要先登入的網路常會如此。</translation>
    </message>
    <message id="ERROR_NETWORK_PRIVATE_ADDRESS">
        <source></source>
        <translation>%1 指向私人網路；只有使用者親自輸入的位址才可以。</translation>
    </message>
    <message id="ERROR_NETWORK_PROXY_FAILS">
        <source></source>
        <translation>無法透過系統的代理伺服器連到 %1。</translation>
    </message>
    <message id="ERROR_NETWORK_QUIET">
        <source></source>
        <translation>%1 沒有及時回應。</translation>
    </message>
    <message id="ERROR_NETWORK_REDIRECTED_TOO_OFTEN">
        <source></source>
        <translation>%1 轉址超過 %2 次；可能是迴圈。</translation>
    </message>
    <message id="ERROR_NETWORK_REDIRECT_ELSEWHERE">
        <source></source>
        <translation>%1 轉往一個不屬於網頁的位址。</translation>
    </message>
    <message id="ERROR_NETWORK_REDIRECT_IN_CLEAR">
        <source></source>
        <translation>%1 轉往未加密的 %2；不予跟隨。</translation>
    </message>
    <message id="ERROR_NETWORK_REFUSED">
        <source></source>
        <translation>%1 在此連接埠不接受連線。</translation>
    </message>
    <message id="ERROR_NETWORK_SECRET_IN_ADDRESS">
        <source></source>
        <translation>位址中含有使用者名稱或密碼；它們應與機密資料一起保存。</translation>
    </message>
    <message id="ERROR_NETWORK_SERVER_FAILS">
        <source></source>
        <translation>%1 目前無法回應（狀態 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_SIGN_IN_NEEDED">
        <source></source>
        <translation>通往 %1 的網路要求先登入。</translation>
    </message>
    <message id="ERROR_NETWORK_SOCKET_IN_CLEAR">
        <source></source>
        <translation>連往 %1 的連線未加密；此類網址須由使用者親自輸入。</translation>
    </message>
    <message id="ERROR_NETWORK_STRANGE_STATUS">
        <source></source>
        <translation>%1 的回應不是新聞（狀態 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_STREAM_BROKE">
        <source></source>
        <translation>%1 的串流中斷；將重新連線。</translation>
    </message>
    <message id="ERROR_NETWORK_TIMED_OUT">
        <source></source>
        <translation>%1 的回應在 %2 秒後仍不完整。</translation>
    </message>
    <message id="ERROR_NETWORK_TLS_FAILED">
        <source></source>
        <translation>無法與 %1 建立加密連線。</translation>
    </message>
    <message id="ERROR_NETWORK_TOO_FAST">
        <source></source>
        <translation>%1 傳送過快，來不及收錄；將重新連線。</translation>
    </message>
    <message id="ERROR_QUERY_CLOSE_BRACKET">
        <source></source>
        <translation>第 %1 個字元的括號 %2 沒有對應的開頭。</translation>
    </message>
    <message id="ERROR_QUERY_DAY">
        <source></source>
        <translation>第 %1 個字元的「%2」不是日期；可用 2026-03-02、2026-03、「today」或 -3d。</translation>
    </message>
    <message id="ERROR_QUERY_EMPTY">
        <source></source>
        <translation>查詢是空的。</translation>
    </message>
    <message id="ERROR_QUERY_FIELD_VALUE">
        <source></source>
        <translation>第 %1 個字元的欄位「%2」在冒號後缺少內容，或不接受該內容。</translation>
    </message>
    <message id="ERROR_QUERY_FIELD_WITHIN">
        <source></source>
        <translation>第 %1 個字元的欄位「%2」不能放在「title」或「story」欄位之內。</translation>
    </message>
    <message id="ERROR_QUERY_MISSING">
        <source></source>
        <translation>第 %1 個字元處缺少要搜尋的內容（「%2」）。</translation>
    </message>
    <message id="ERROR_QUERY_NEAR">
        <source></source>
        <translation>第 %1 個字元的 %2 必須放在兩個詞或片語之間。</translation>
    </message>
    <message id="ERROR_QUERY_NEAR_NUMBER">
        <source></source>
        <translation>第 %1 個字元的「%2」在斜線後需要 0 到 1000 的字數。</translation>
    </message>
    <message id="ERROR_QUERY_NOT_OF_HEADLINES">
        <source></source>
        <translation>第 %1 個字元的「%2」需要標題以外的內容，不能用在關鍵字組中。</translation>
    </message>
    <message id="ERROR_QUERY_OPEN_BRACKET">
        <source></source>
        <translation>第 %1 個字元的括號 %2 沒有結束。</translation>
    </message>
    <message id="ERROR_QUERY_OPEN_QUOTE">
        <source></source>
        <translation>第 %1 個字元的引號 %2 沒有結束。</translation>
    </message>
    <message id="ERROR_QUERY_OPERATOR_WORD">
        <source></source>
        <translation>第 %1 個字元的「%2」不是運算符號：空格表示「且」，| 表示「或」，- 表示「非」。要搜尋這個字請加上引號。</translation>
    </message>
    <message id="ERROR_QUERY_TOO_DEEP">
        <source></source>
        <translation>第 %1 個字元的括號 %2 層數過多：最多 20 層。</translation>
    </message>
    <message id="ERROR_QUERY_TOO_LONG">
        <source></source>
        <translation>查詢超過 %2 個字元（第 %1 個字元）。</translation>
    </message>
    <message id="ERROR_QUERY_TOO_MANY">
        <source></source>
        <translation>查詢從第 %1 個字元（「%2」）起過多：最多 200 個文字與欄位。</translation>
    </message>
    <message id="ERROR_QUERY_UNKNOWN_FIELD">
        <source></source>
        <translation>沒有「%2」這個欄位（第 %1 個字元）。要搜尋文字時請加上引號。</translation>
    </message>
    <message id="ERROR_SESSION_CATEGORIES_NOT_CHANGED">
        <source></source>
        <translation>無法變更資料庫中的分類：%1</translation>
    </message>
    <message id="ERROR_SESSION_FOLDER_NOT_MADE">
        <source></source>
        <translation>無法建立資料夾 %1。</translation>
    </message>
    <message id="ERROR_SESSION_GUIDE_MISSING">
        <source></source>
        <translation>找不到使用說明 %1。</translation>
    </message>
    <message id="ERROR_SESSION_MODULE_NOT_FOUND">
        <source></source>
        <translation>在 %2 與 %3 中都找不到新聞模組 %1。</translation>
    </message>
    <message id="ERROR_SESSION_MODULE_NOT_LOADED">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_BROKE_OFF">
        <source></source>
        <translation>範例新聞程式中斷。%1</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_BROKE_OFF_SILENTLY">
        <source></source>
        <translation>範例新聞程式中斷。</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_NOT_STARTED">
        <source></source>
        <translation>無法啟動範例新聞程式 %1：%2</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_NOT_TAKEN">
        <source></source>
        <translation>範例新聞無法存入此資料庫：%1</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_STOPPED">
        <source></source>
        <translation>已停止；未保留任何範例新聞。</translation>
    </message>
    <message id="ERROR_SESSION_SETTINGS_FOLDER_NOT_MADE">
        <source></source>
        <translation>無法建立設定資料夾 %1。</translation>
    </message>
    <message id="ERROR_SESSION_UNKNOWN_SOURCE">
        <source></source>
        <translation>沒有名為「%1」的來源類型。</translation>
    </message>
    <message id="ERROR_SETTINGS_FILE_NOT_READ">
        <source></source>
        <translation>設定未儲存：無法讀取檔案 %1。</translation>
    </message>
    <message id="ERROR_SETTINGS_FILE_NOT_WRITTEN">
        <source></source>
        <translation>設定未儲存：無法寫入檔案 %1。</translation>
    </message>
    <message id="ERROR_SETTINGS_FOLDER_NOT_MADE">
        <source></source>
        <translation>設定未儲存：無法建立資料夾 %1。</translation>
    </message>
    <message id="ERROR_SETTINGS_MODULE_FILE_NOT_WRITTEN">
        <source></source>
        <translation>無法寫入檔案 %1：%2。</translation>
    </message>
    <message id="ERROR_SOUND_NOT_READ">
        <source></source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message id="ERROR_SOUND_NO_WAVE">
        <source></source>
        <translation>%1 不是未壓縮的 WAV 檔案（8 或 16 位元）。</translation>
    </message>
    <message id="ERROR_SOUND_TOO_LONG">
        <source></source>
        <translation>%1 太長：音效最長 %2 秒。</translation>
    </message>
    <message id="ERROR_SOURCES_KEYCHAIN_FAILED">
        <source></source>
        <translation>鑰匙圈發生錯誤：%1</translation>
    </message>
    <message id="ERROR_SOURCES_KEYCHAIN_SILENT">
        <source></source>
        <translation>鑰匙圈沒有回應。</translation>
    </message>
    <message id="ERROR_SOURCES_NO_OPML">
        <source></source>
        <translation>這不是來源清單：其根元素為 &lt;%1&gt;。</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_NOT_OPENED">
        <source></source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_NOT_WRITTEN">
        <source></source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_TOO_LARGE">
        <source></source>
        <translation>來源清單最多 %1 位元組，這一份更大。</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_WITHOUT_FEEDS">
        <source></source>
        <translation>清單中沒有可讀取的來源。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_MISSING">
        <source></source>
        <translation>找不到存放密鑰的檔案 %1。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_NOT_READ">
        <source></source>
        <translation>無法讀取存放密鑰的檔案 %1：%2。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_NOT_REMOVED">
        <source></source>
        <translation>無法移除存放密鑰的檔案 %1：%2。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_NOT_WRITTEN">
        <source></source>
        <translation>無法寫入存放密鑰的檔案 %1：%2。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_OPEN">
        <source></source>
        <translation>其他人可以讀取或寫入存放密鑰的檔案 %1；只有使用者本人可存取時（權限 0600）才會使用。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_MISSING">
        <source></source>
        <translation>鑰匙圈中沒有名為 %1 的密鑰。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_STAYS">
        <source></source>
        <translation>清單已依您的要求更新，但無法移除%1原有的密鑰：%2</translation>
    </message>
    <message id="ERROR_STORE_BEYOND_RETENTION">
        <source></source>
        <translation>它早於本資料庫所保留的新聞：自 %1 起。</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY">
        <source></source>
        <translation>分類</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_HAS_ID">
        <source></source>
        <translation>分類「%1」的編號已是 %2，不能再使用編號 %3。</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_ID_TOO_SMALL">
        <source></source>
        <translation>分類編號為 %1；編號必須從 1 開始。</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_WITHOUT_NAME">
        <source></source>
        <translation>分類沒有名稱。</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_WITHOUT_SERVICE">
        <source></source>
        <translation>分類不屬於任何新聞服務。</translation>
    </message>
    <message id="ERROR_STORE_CHANGE_OUT_OF_RANGE">
        <source></source>
        <translation>%1 的漲跌不是數字，或大於其成交價。</translation>
    </message>
    <message id="ERROR_STORE_CODE_OF_SYMBOL">
        <source></source>
        <translation>商品代號</translation>
    </message>
    <message id="ERROR_STORE_EMPTY">
        <source></source>
        <translation>%1 是空的：其中沒有新聞資料庫。</translation>
    </message>
    <message id="ERROR_STORE_FAULT_FOUND">
        <source></source>
        <translation>背景檢查發現資料庫 %1 有錯誤；請執行「wirepane check」查看。</translation>
    </message>
    <message id="ERROR_STORE_IDENTITY">
        <source></source>
        <translation>識別碼</translation>
    </message>
    <message id="ERROR_STORE_LAST_PRICE_OUT_OF_RANGE">
        <source></source>
        <translation>%1 的成交價不是 0 到 %2 的數字。</translation>
    </message>
    <message id="ERROR_STORE_NAME_OF_SYMBOL">
        <source></source>
        <translation>商品名稱</translation>
    </message>
    <message id="ERROR_STORE_NEWER_VERSION">
        <source></source>
        <translation>%1 由較新版本的程式寫入（資料庫版本 %2；此程式最高支援版本 %3）。</translation>
    </message>
    <message id="ERROR_STORE_NEWS">
        <source></source>
        <translation>新聞</translation>
    </message>
    <message id="ERROR_STORE_CHANGE_UNREADABLE">
        <source></source>
        <translation>資料庫中為它保留的內容（第 %1 列）已損毀。</translation>
    </message>
    <message id="ERROR_STORE_NEWS_GONE">
        <source></source>
        <translation>此新聞已不在資料庫中。</translation>
    </message>
    <message id="ERROR_STORE_NOTHING_BEGUN">
        <source></source>
        <translation>尚未開始交易，無法加入%1。</translation>
    </message>
    <message id="ERROR_STORE_NOTHING_TO_KEEP">
        <source></source>
        <translation>尚未開始交易，無法提交。</translation>
    </message>
    <message id="ERROR_STORE_NOT_WRITABLE">
        <source></source>
        <translation>無法寫入 %1：檔案或其資料夾為唯讀。</translation>
    </message>
    <message id="ERROR_STORE_NO_COLOUR">
        <source></source>
        <translation>顏色「%1」不符合 #rrggbb 格式。</translation>
    </message>
    <message id="ERROR_STORE_NO_HEADLINE">
        <source></source>
        <translation>沒有此鍵值的標題。</translation>
    </message>
    <message id="ERROR_STORE_NO_IDENTITY">
        <source></source>
        <translation>沒有識別碼。</translation>
    </message>
    <message id="ERROR_STORE_NO_NUMBER_LEFT">
        <source></source>
        <translation>當日的序號已用盡。</translation>
    </message>
    <message id="ERROR_STORE_NO_SERVICE">
        <source></source>
        <translation>不屬於任何新聞服務。</translation>
    </message>
    <message id="ERROR_STORE_NUMBER_TAKEN">
        <source></source>
        <translation>序號 %1 已由該新聞服務當日的另一則標題使用。</translation>
    </message>
    <message id="ERROR_STORE_OLDER_VERSION">
        <source></source>
        <translation>%1 為版本 %2；程式開啟時會將其升級至版本 %3。</translation>
    </message>
    <message id="ERROR_STORE_OTHER_DATABASE">
        <source></source>
        <translation>%1 是資料庫，但不是新聞資料庫。</translation>
    </message>
    <message id="ERROR_STORE_POSITION">
        <source></source>
        <translation>位置</translation>
    </message>
    <message id="ERROR_STORE_QUOTE">
        <source></source>
        <translation>報價</translation>
    </message>
    <message id="ERROR_STORE_QUOTE_WITHOUT_MARKET">
        <source></source>
        <translation>報價不屬於任何市場。</translation>
    </message>
    <message id="ERROR_STORE_STOPPED">
        <source></source>
        <translation>程式即將結束，不再收錄。</translation>
    </message>
    <message id="ERROR_STORE_STORY">
        <source></source>
        <translation>內文</translation>
    </message>
    <message id="ERROR_STORE_SYMBOL">
        <source></source>
        <translation>商品</translation>
    </message>
    <message id="ERROR_STORE_SYMBOL_WITHOUT_CODE">
        <source></source>
        <translation>有商品沒有代號。</translation>
    </message>
    <message id="ERROR_STORE_SYMBOL_WITHOUT_MARKET">
        <source></source>
        <translation>商品不屬於任何市場。</translation>
    </message>
    <message id="ERROR_STORE_TIME_OUT_OF_RANGE">
        <source></source>
        <translation>時間（自 1970 年起 %1 秒）不在 1900 至 9999 年之間。</translation>
    </message>
    <message id="ERROR_STORE_TITLE">
        <source></source>
        <translation>標題</translation>
    </message>
    <message id="ERROR_STORE_TITLE_EMPTY">
        <source></source>
        <translation>標題是空的。</translation>
    </message>
    <message id="ERROR_STORE_TOO_LONG">
        <source></source>
        <translation>%1有 %2 個字元，上限為 %3 個。</translation>
    </message>
    <message id="ERROR_STORE_TOO_MANY_SYMBOLS">
        <source></source>
        <translation>列有 %1 個相關商品，上限為 %2 個。</translation>
    </message>
    <message id="ERROR_STORE_VOLUME_OUT_OF_RANGE">
        <source></source>
        <translation>%1 的成交量不是 0 到 %2 的數字。</translation>
    </message>
    <message id="ERROR_STORE_WITHDRAWS_UNKNOWN">
        <source></source>
        <translation>它撤回的新聞不在資料庫中。</translation>
    </message>
    <message id="ERROR_TOUR_NOT_PRINTED">
        <source></source>
        <translation>新聞未能列印並儲存至 %1。</translation>
    </message>
    <message id="ERROR_TOUR_PICTURE_NOT_WRITTEN">
        <source></source>
        <translation>無法寫入圖片 %1。</translation>
    </message>
    <message id="ERROR_TOUR_REFUSED">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_TOUR_STOPPED">
        <source></source>
        <translation>已停止。</translation>
    </message>
    <message id="IDC_BASEVIEW-STRING_NO_DATA">
        <source></source>
        <translation>此商品沒有新聞。</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_CHOOSE">
        <source></source>
        <translation>加入(&amp;A)</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_CLOSE">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_HINT">
        <source></source>
        <translation>以代號或名稱搜尋</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_TITLE">
        <source></source>
        <translation>選擇商品</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ADD_BUTTON">
        <source></source>
        <translation>加入(&amp;A) ▸</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ADD_KEYSET">
        <source></source>
        <translation>儲存為新組(&amp;N)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ALERT_ME">
        <source></source>
        <translation>設定警示(&amp;M)…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ALL_NEWSTYPE">
        <source></source>
        <translation>全部</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_AND_BUTTON">
        <source></source>
        <translation>全部關鍵字(&amp;K)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSE">
        <source></source>
        <translation>以三十日新聞測試(&amp;O)…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_TITLE">
        <source></source>
        <translation>三十日新聞測試</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_RUNS">
        <source></source>
        <translation>測試中…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_FAILED">
        <source></source>
        <translation>無法讀取新聞。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_SUMMARY">
        <source></source>
        <translation>三十日 %2 則標題中有 %1 則</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BUSIEST">
        <source></source>
        <translation>最忙的一小時：%1，%2 則</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BUDGET">
        <source></source>
        <translation>每小時至多(&amp;M)：</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_OVER">
        <source></source>
        <translation>超過的小時數：%1</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_WITHIN">
        <source></source>
        <translation>沒有一小時超過。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_DAY">
        <source></source>
        <translation>日期</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_COUNT">
        <source></source>
        <translation>則數</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BROUGHT">
        <source></source>
        <translation>來自</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_EXCLUDED">
        <source></source>
        <translation>若排除</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_SAVED">
        <source></source>
        <translation>減少</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_TIME">
        <source></source>
        <translation>時間</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_HIT">
        <source></source>
        <translation>標題</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_CLOSE">
        <source></source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_CAPITALS_NOTE">
        <source></source>
        <translation>標題以大寫比對：英文字母請用大寫（CHIPS，不是 chips）。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_CONDITION">
        <source></source>
        <translation>符合條件</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_DELALL_BUTTON">
        <source></source>
        <translation>全部移除(&amp;L)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_DEL_BUTTON">
        <source></source>
        <translation>◂ 移除(&amp;R)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_DEL_KEY">
        <source></source>
        <translation>刪除已存關鍵字(&amp;F)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_DEL_KEYSET">
        <source></source>
        <translation>刪除勾選的組(&amp;D)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_EDIT_KEYSET">
        <source></source>
        <translation>儲存變更(&amp;N)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ERRMSG">
        <source></source>
        <translation>請先選取一個警示詞。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSKEY">
        <source></source>
        <translation>請至少加入一個關鍵字。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSTYPE">
        <source></source>
        <translation>請至少勾選一個新聞類別。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_GROUP1">
        <source></source>
        <translation>關鍵字</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_GROUP2">
        <source></source>
        <translation>搜尋關鍵字</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_HEADLINE_SEARCH">
        <source></source>
        <translation>標題(&amp;H)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_HEARLINE_AND_STORY_SEARCH">
        <source></source>
        <translation>標題和內文(&amp;B)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_IDOK">
        <source></source>
        <translation>搜尋(&amp;E)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_KEYSET_SELALL">
        <source></source>
        <translation>勾選全部(&amp;S)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_KEYWORD_HINT">
        <source></source>
        <translation>輸入關鍵字後按 Enter</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NEAR10FILTER">
        <source></source>
        <translation>最近十次搜尋</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NEWSTYPE">
        <source></source>
        <translation>新聞類別</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NEWS_SELALL">
        <source></source>
        <translation>全部類別(&amp;T)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_OR_BUTTON">
        <source></source>
        <translation>任一關鍵字(&amp;Y)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_PICKER">
        <source></source>
        <translation>從所有商品中選擇</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_EXCLUDE_BUTTON">
        <source></source>
        <translation>排除(&amp;X) ▸</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NONE_OF_THESE">
        <source></source>
        <translation>不含這些關鍵字</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_QUERY_BUTTON">
        <source></source>
        <translation>查詢式(&amp;Q)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_RANGE">
        <source></source>
        <translation>搜尋範圍</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_RELATION_TITLE">
        <source></source>
        <translation>關鍵字組</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REQDELALL">
        <source></source>
        <translation>要移除這次搜尋的所有關鍵字嗎？</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REQDELALL_KEY">
        <source></source>
        <translation>要移除這一組的所有關鍵字嗎？</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REQDEL_KEY">
        <source></source>
        <translation>要刪除 %1 組關鍵字嗎？</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SEARCH_CONTENTS">
        <source></source>
        <translation>關鍵字</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SEARCH_METHOD">
        <source></source>
        <translation>條件</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SEARCH_SCOPE">
        <source></source>
        <translation>範圍</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_STORY_SEARCH">
        <source></source>
        <translation>內文(&amp;S)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SYMBOL">
        <source></source>
        <translation>商品</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SYMBOL_HINT">
        <source></source>
        <translation>代號或名稱</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_TITLE">
        <source></source>
        <translation>進階搜尋</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_ADD">
        <source></source>
        <translation>新增(&amp;A)…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_DEL">
        <source></source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_EDIT">
        <source></source>
        <translation>編輯(&amp;I)…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_HINT">
        <source></source>
        <translation>以空格或逗號分隔</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_IDCANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_IDOK">
        <source></source>
        <translation>確定(&amp;O)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_ITEM_TITLE">
        <source></source>
        <translation>編輯警示詞</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_TITLE">
        <source></source>
        <translation>警示詞</translation>
    </message>
    <message id="IDS_DIALOG-STORY_NEXT_BUTTON">
        <source></source>
        <translation>下一則(&amp;N)</translation>
    </message>
    <message id="IDS_DIALOG-STORY_PREV_BUTTON">
        <source></source>
        <translation>上一則(&amp;V)</translation>
    </message>
    <message id="IDS_DIALOG-STORY_PRINT">
        <source></source>
        <translation>列印(&amp;P)</translation>
    </message>
    <message id="IDS_DIALOG-STORY_SAVEAS">
        <source></source>
        <translation>另存(&amp;S)</translation>
    </message>
    <message id="IDS_DIALOG-STORY_TITLE">
        <source></source>
        <translation>新聞內容</translation>
    </message>
    <message id="IDS_MENU_8_1">
        <source></source>
        <translation>全部新聞</translation>
    </message>
    <message id="IDS_MMSEXTENSION-MAINFRM_NEWSCTRLVIEW">
        <source></source>
        <translation>個股新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BETWEEN_SOURCES">
        <source></source>
        <translation>、</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_DEALS_SEARCH">
        <source></source>
        <translation>進階搜尋</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_PAGE_DOWN">
        <source></source>
        <translation>下一則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_PAGE_UP">
        <source></source>
        <translation>上一則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_RELATION_SEARCH">
        <source></source>
        <translation>關鍵字組</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_SEARCH">
        <source></source>
        <translation>搜尋</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_SHOW_TYPE">
        <source></source>
        <translation>版面</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_WARNING_SEARCH">
        <source></source>
        <translation>警示詞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_CORRECTED">
        <source></source>
        <translation>更正</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_CORRECTED_AFTER_READING">
        <source></source>
        <translation>在您閱讀 %1 秒之後</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_CORRECTED_NUMBERS">
        <source></source>
        <translation>更正：%1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_BEGIN_SEARCH">
        <source></source>
        <translation>到搜尋框</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_KEY_SETS">
        <source></source>
        <translation>選擇關鍵字組…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_SERVICES">
        <source></source>
        <translation>選擇新聞服務</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_TERMS">
        <source></source>
        <translation>選擇警示詞…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_DAY">
        <source></source>
        <translation>%1 沒有新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_LOOK_UP_SYMBOL">
        <source></source>
        <translation>查詢商品</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_NOTHING">
        <source></source>
        <translation>這裡沒有新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_NOT_FOUND">
        <source></source>
        <translation>找不到%1。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_NO_SERVICE">
        <source></source>
        <translation>尚未勾選新聞服務。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_OF_SUBJECT">
        <source></source>
        <translation>沒有%1的新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_QUOTED_WORD">
        <source></source>
        <translation>「%1」</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_QUOTES">
        <source></source>
        <translation>標題的相關商品，其報價顯示在這裡。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_READ_NEWEST">
        <source></source>
        <translation>閱讀最新一則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_RELATION">
        <source></source>
        <translation>今天沒有符合所勾選關鍵字組的新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_SEARCH">
        <source></source>
        <translation>輸入要搜尋的詞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_SHOW_ALL_NEWS">
        <source></source>
        <translation>看所有新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_SHOW_DAY">
        <source></source>
        <translation>看 %1 的新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_STORY">
        <source></source>
        <translation>選取的標題，其內文顯示在這裡。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_WARNING_TERM">
        <source></source>
        <translation>沒有含警示詞的新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_LIST">
        <source></source>
        <translation>匯出清單…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_NOT_WRITTEN">
        <source></source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_RUNNING">
        <source></source>
        <translation>正在寫入清單的新聞…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_STOPPED">
        <source></source>
        <translation>已停止；未寫入檔案。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_UNREADABLE">
        <source></source>
        <translation>未寫入 %1：無法讀取新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_WRITTEN">
        <source></source>
        <translation>%1 則新聞已寫入 %2。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_AWAITED">
        <source></source>
        <translation>搜尋中…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_COUNT">
        <source></source>
        <translation>找到 %1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_ENTER">
        <source></source>
        <translation>按 Enter 找出全部</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_NEWEST">
        <source></source>
        <translation>最新的 %1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_SINCE">
        <source></source>
        <translation>自 %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_TAKE_OUT">
        <source></source>
        <translation>不含 %1 再搜尋</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_TOOK">
        <source></source>
        <translation>%1 毫秒</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_UNTIL">
        <source></source>
        <translation>至 %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HIDE_CHANGES">
        <source></source>
        <translation>隱藏變更</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_KEY_SET">
        <source></source>
        <translation>尚未勾選關鍵字組，此清單不會收到新聞。按 %1 選擇。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_MATCH">
        <source></source>
        <translation>今天還沒有符合所選關鍵字組的新聞。按 %1 改選。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_NEWS">
        <source></source>
        <translation>這裡沒有新聞。按 %1 重新要求。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_WARNING_TERM">
        <source></source>
        <translation>尚未選擇警示詞。按 %1 選擇。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_WARRANT_NEWS">
        <source></source>
        <translation>這一天沒有權證新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_SEARCH">
        <source></source>
        <translation>按 %2 輸入要搜尋的文字，或按 %1 設定進階搜尋。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_WARNING_TERM">
        <source></source>
        <translation>警示詞：%2。按 %1 搜尋或改選其他警示詞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARKET_EMERGING_BOARD">
        <source></source>
        <translation>興櫃股票</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARKET_HONG_KONG">
        <source></source>
        <translation>香港股市</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARKET_STOCK_EXCHANGE">
        <source></source>
        <translation>台灣證券</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_DATE">
        <source></source>
        <translation>日期</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_EARLIER_SEARCHES">
        <source></source>
        <translation>先前的搜尋</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_MARKET">
        <source></source>
        <translation>市場</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_MODES">
        <source></source>
        <translation>新聞類別頁</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_SEARCH_TEXT">
        <source></source>
        <translation>搜尋文字</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_STORY">
        <source></source>
        <translation>新聞內容</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_SYMBOL">
        <source></source>
        <translation>商品</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NEWS_NO">
        <source></source>
        <translation>新聞編號</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NEWS_STORY">
        <source></source>
        <translation>內容：</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_AS_OF">
        <source></source>
        <translation>依較早時刻閱讀</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_BEFORE_BREAK">
        <source></source>
        <translation>搜尋於 %1，之後補入了斷線期間的新聞：重新搜尋</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_FILTERED">
        <source></source>
        <translation>只列出符合關鍵字組的新聞：全部顯示</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_NARROWED">
        <source></source>
        <translation>只找 %1 的新聞：改找全部</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_NOTHING_NEW">
        <source></source>
        <translation>所有來源自 %1 起沒有新內容</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_SILENT">
        <source></source>
        <translation>%1 自 %2 起沒有回應</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_UNFILTERED">
        <source></source>
        <translation>尚未以關鍵字組篩選：立即篩選</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_DAYS">
        <source></source>
        <translation>其他日期：%1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_SERVICES">
        <source></source>
        <translation>其他新聞來源：%1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_STORIES">
        <source></source>
        <translation>連同內文：%1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_WITHOUT">
        <source></source>
        <translation>去掉「%1」：%2 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_ASK_DELETE">
        <source></source>
        <translation>要刪除搜尋「%1」嗎？</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_AS_ALERT">
        <source></source>
        <translation>設定警示…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_AS_KEY_SET">
        <source></source>
        <translation>用作關鍵字組</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_AS_WARNING">
        <source></source>
        <translation>用作警示詞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_DELETE">
        <source></source>
        <translation>刪除</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_EXPORT">
        <source></source>
        <translation>匯出…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_FILES">
        <source></source>
        <translation>已存的搜尋 (*.txt)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_FILE_FAILED">
        <source></source>
        <translation>%1：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_FULL">
        <source></source>
        <translation>最多只能有 %1 個搜尋。請先刪除一些。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_IMPORT">
        <source></source>
        <translation>匯入…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_MANAGE">
        <source></source>
        <translation>管理已存的搜尋</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NAME">
        <source></source>
        <translation>搜尋名稱：</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NAME_TWICE">
        <source></source>
        <translation>第 %1 行：前面已有名為「%2」的一行。未匯入任何搜尋。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NOT_TEXT">
        <source></source>
        <translation>第 %1 行不是 UTF-8 文字。未匯入任何搜尋。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NO_NAME">
        <source></source>
        <translation>第 %1 行的搜尋前面沒有名稱及 Tab 字元。未匯入任何搜尋。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NO_SEARCH">
        <source></source>
        <translation>第 %1 行：「%2」後面不是搜尋條件。未匯入任何搜尋。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_REPLACE">
        <source></source>
        <translation>已有名為「%1」的搜尋。要取代嗎？</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_SAVE">
        <source></source>
        <translation>儲存此搜尋…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_TODAY">
        <source></source>
        <translation>今日 %1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_TOO_MANY">
        <source></source>
        <translation>第 %1 行：最多只能有 %2 個搜尋。未匯入任何搜尋。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_WRONG_QUERY">
        <source></source>
        <translation>第 %1 行：%2未匯入任何搜尋。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SEVERAL_SOURCES">
        <source></source>
        <translation>由以下來源提供：%1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SHOW_CHANGES">
        <source></source>
        <translation>顯示變更</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_COPY">
        <source></source>
        <translation>複製</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_IN_WINDOW">
        <source></source>
        <translation>在視窗中開啟</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_LARGER">
        <source></source>
        <translation>放大文字</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_PIN">
        <source></source>
        <translation>保留此視窗</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_SEARCH">
        <source></source>
        <translation>搜尋「%1」</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_SELECT_ALL">
        <source></source>
        <translation>全選</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_SMALLER">
        <source></source>
        <translation>縮小文字</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_AFTERDAYS">
        <source></source>
        <translation>所選日期晚於今天。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ALL_SERVICES">
        <source></source>
        <translation>全部新聞來源</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_BETWEEN_NAMES">
        <source></source>
        <translation>、</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CATEGORY">
        <source></source>
        <translation>分類</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CATEGORY_NEWS">
        <source></source>
        <translation>分類新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CHARACTERS_REPLACED">
        <source></source>
        <translation>有 %1 個字元不在 950 字碼頁內，在 %2 中以空心方塊代替。若要保留，請另存為 UTF-8 文字檔。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CLEAR_SERVICE">
        <source></source>
        <translation>已開始新的新聞日。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_DETAILED_NEWS_DATA">
        <source></source>
        <translation>新聞詳細資料</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_DETAILED_STORY">
        <source></source>
        <translation>詳細內容(&amp;O)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_FILE_FILTER">
        <source></source>
        <translation>文字檔</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_FILE_FILTER_UTF8">
        <source></source>
        <translation>UTF-8 文字檔，保留所有字元</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INSOMEDAYS">
        <source></source>
        <translation> 天內的日期。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_PASTE">
        <source></source>
        <translation>此處不可用 Shift+Insert 貼上。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_SEARCH">
        <source></source>
        <translation>請輸入搜尋關鍵字。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_VALUE">
        <source></source>
        <translation>搜尋文字不可含空白。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALID_DATE1">
        <source></source>
        <translation>這一天沒有新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_LARGEST_MOVE">
        <source></source>
        <translation>最大變動</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_LARGEST_MOVE_TIP">
        <source></source>
        <translation>其後價格離當時最遠的變動</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_LEFT_OUT">
        <source></source>
        <translation>沒有內文而略去：%1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS">
        <source></source>
        <translation>新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWSPRINT">
        <source></source>
        <translation>新聞列印</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_CLASS_NOT_FOUND">
        <source></source>
        <translation>此分類沒有新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_NOT_FOUND">
        <source></source>
        <translation>找不到符合條件的新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_SEARCHING">
        <source></source>
        <translation>搜尋中：</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_TITLE">
        <source></source>
        <translation>標題：</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NOTHING_TO_PUT_OUT">
        <source></source>
        <translation>沒有輸出任何內容：尚無內文。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_CODE_PAGE">
        <source></source>
        <translation>此系統無法寫出 950 字碼頁，請選用 UTF-8 文字檔</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_NEWS_STORY">
        <source></source>
        <translation>本則新聞沒有內文。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_SUCH_PAPER">
        <source></source>
        <translation>沒有名為 %1 的紙張</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_OFFLINE_SINCE">
        <source></source>
        <translation>離線，自</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLYSELECT">
        <source></source>
        <translation>只能選擇最近 </translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLY_THIS">
        <source></source>
        <translation>只選這個</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLY_THIS_SERVICE">
        <source></source>
        <translation>空白鍵勾選，Shift+空白鍵只選這個</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRICE_THEN">
        <source></source>
        <translation>當時價格</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRICE_THEN_TIP">
        <source></source>
        <translation>消息發布時的價格及其後的變動</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINTER_GONE">
        <source></source>
        <translation>無法連接印表機</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINT_FAILED">
        <source></source>
        <translation>新聞無法列印到 %1：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARK_READ">
        <source></source>
        <translation>標為已讀(&amp;M)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARK_UNREAD">
        <source></source>
        <translation>標為未讀(&amp;U)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARK_ALL_READ">
        <source></source>
        <translation>全部標為已讀(&amp;K)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTHING_MARKED">
        <source></source>
        <translation>未作標記：新聞資料庫只能讀取。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SHOW_PRICES">
        <source></source>
        <translation>顯示發布後價格</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TURN_FOLD">
        <source></source>
        <translation>折疊或展開同類新聞(&amp;B)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOLDED_STATE">
        <source></source>
        <translation>其下已折疊 %1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_UNFOLDED_STATE">
        <source></source>
        <translation>其下已展開 %1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HOLD_LIST">
        <source></source>
        <translation>凍結清單(&amp;L)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HELD_LIST">
        <source></source>
        <translation>已凍結</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HELD_WAITING">
        <source></source>
        <translation>%1 則等候中</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HELD_MATCHING">
        <source></source>
        <translation>%1 則等候中，%2 則符合</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_LET_LIST_GO">
        <source></source>
        <translation>%1，恢復更新</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NEW_ABOVE">
        <source></source>
        <translation>%1 則新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_GO_TO_NEWEST">
        <source></source>
        <translation>%1，前往最新</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_WITH_UNREAD">
        <source></source>
        <translation>%1，%2 則未讀</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STAR">
        <source></source>
        <translation>加星號(&amp;A)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STATE_UNREAD">
        <source></source>
        <translation>未讀</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STATE_STARRED">
        <source></source>
        <translation>已加星號</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STATE_READ_BEFORE">
        <source></source>
        <translation>您讀過之後已更正</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINT_NEWS">
        <source></source>
        <translation>列印(&amp;P)…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PS">
        <source></source>
        <translation>（本文完）</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PUT_OUT_READY">
        <source></source>
        <translation>先輸出已齊全的 %1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER">
        <source></source>
        <translation>回補中…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_CORRECTED">
        <source></source>
        <translation>已更正；先前的版本：%1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_SECONDS_AGO">
        <source></source>
        <translation>%1 秒前</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_MINUTES_AGO">
        <source></source>
        <translation>%1 分鐘前</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_HOURS_AGO">
        <source></source>
        <translation>%1 小時前</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_DAYS_AGO">
        <source></source>
        <translation>%1 天前</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER_HEADLINELIST">
        <source></source>
        <translation>回補新聞標題(&amp;H)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER_STORY">
        <source></source>
        <translation>回補新聞內容(&amp;R)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_REINPUT">
        <source></source>
        <translation>關鍵字不可含有 AND 或 OR，請重新輸入。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RELATIONSEARCH_NEWS">
        <source></source>
        <translation>關聯新聞</translation>
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
        <translation>另存新檔(&amp;S)…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SAVE_FAILED">
        <source></source>
        <translation>新聞無法儲存到 %1：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SEARCH_AS_TEXT">
        <source></source>
        <translation>要當作一般文字搜尋嗎？</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SEARCH_NEWS">
        <source></source>
        <translation>新聞搜尋</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SELECT_NEWS_SERVICE">
        <source></source>
        <translation>新聞來源</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SERVICES_AS_BEFORE">
        <source></source>
        <translation>恢復原來的勾選</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SHOW_CATEGORY">
        <source></source>
        <translation>顯示分類欄(&amp;C)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_STOP_WAITING">
        <source></source>
        <translation>不再等待列印或存檔</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS">
        <source></source>
        <translation>個股新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS_NOT_FOUND">
        <source></source>
        <translation>此商品沒有新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TIME">
        <source></source>
        <translation>時間</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TITLE">
        <source></source>
        <translation>標題</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TODAY">
        <source></source>
        <translation>今天</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PREVIEW">
        <source></source>
        <translation>等待預覽列印，尚缺 %1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_CAPTION">
        <source></source>
        <translation>預覽列印</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_MAKING">
        <source></source>
        <translation>正在準備頁面…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_PAGE">
        <source></source>
        <translation>第 %1 頁，共 %2 頁</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_PREVIOUS_PAGE">
        <source></source>
        <translation>上一頁</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_NEXT_PAGE">
        <source></source>
        <translation>下一頁</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_SMALLER">
        <source></source>
        <translation>縮小</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_LARGER">
        <source></source>
        <translation>放大</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_FIT_WIDTH">
        <source></source>
        <translation>符合頁寬(&amp;W)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_WHOLE_PAGE">
        <source></source>
        <translation>整頁(&amp;H)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_CLOSE">
        <source></source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINTING">
        <source></source>
        <translation>正在列印：%1%</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SAVING">
        <source></source>
        <translation>正在存檔：%1%</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PRINT">
        <source></source>
        <translation>等待列印，尚缺 %1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_SAVE">
        <source></source>
        <translation>等待存檔，尚缺 %1 則</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAIT_FOR_UPDATE">
        <source></source>
        <translation>新聞內容更新中，請稍候。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WARNINGSEARCH_NEWS">
        <source></source>
        <translation>警示新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WARRANT_NEWS">
        <source></source>
        <translation>權證新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_WITHDRAWN">
        <source></source>
        <translation>發布者於 %1 撤回</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_WITHDRAWN_WHY">
        <source></source>
        <translation>發布者於 %1 撤回：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TURN_CHANGES">
        <source></source>
        <translation>顯示或隱藏變更</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_WITHDRAWN">
        <source></source>
        <translation>撤回</translation>
    </message>
    <message id="IDS_QUOTE-LIST_CHANGE">
        <source></source>
        <translation>漲跌</translation>
    </message>
    <message id="IDS_QUOTE-LIST_CODE">
        <source></source>
        <translation>代號</translation>
    </message>
    <message id="IDS_QUOTE-LIST_LAST">
        <source></source>
        <translation>成交</translation>
    </message>
    <message id="IDS_QUOTE-LIST_NAME">
        <source></source>
        <translation>名稱</translation>
    </message>
    <message id="IDS_QUOTE-LIST_PERCENT">
        <source></source>
        <translation>漲跌幅</translation>
    </message>
    <message id="IDS_QUOTE-LIST_VOLUME">
        <source></source>
        <translation>成交量</translation>
    </message>
    <message id="IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE">
        <source></source>
        <translation>相關商品</translation>
    </message>
    <message id="IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE_NONE">
        <source></source>
        <translation>這則新聞沒有相關商品。</translation>
    </message>
    <message id="IDS_SINGLETON-STRING_FONTNAME">
        <source></source>
        <translation>Noto Sans Mono CJK TC</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_YESTERDAY">
        <source></source>
        <translation>昨天</translation>
    </message>
    <message id="TERMINAL_ALERTS_OPEN">
        <source></source>
        <translation>開啟警示</translation>
    </message>
    <message id="TERMINAL_ALERTS_TITLE">
        <source></source>
        <translation>警示</translation>
    </message>
    <message id="TERMINAL_ALERT_ADD">
        <source></source>
        <translation>新增(&amp;D)</translation>
    </message>
    <message id="TERMINAL_ALERT_AN_HOUR">
        <source></source>
        <translation> 則/小時</translation>
    </message>
    <message id="TERMINAL_ALERT_BETWEEN_WORDS">
        <source></source>
        <translation>」、「</translation>
    </message>
    <message id="TERMINAL_ALERT_BUDGET">
        <source></source>
        <translation>上限(&amp;B)</translation>
    </message>
    <message id="TERMINAL_ALERT_CLOSE">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_HEADLINE">
        <source></source>
        <translation>標題</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_OUTCOME">
        <source></source>
        <translation>處理結果</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_RULE">
        <source></source>
        <translation>規則</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_TIME">
        <source></source>
        <translation>時間</translation>
    </message>
    <message id="TERMINAL_ALERT_COUNT">
        <source></source>
        <translation>%1 則警示</translation>
    </message>
    <message id="TERMINAL_ALERT_DISCONNECTED">
        <source></source>
        <translation>未提示：未連線</translation>
    </message>
    <message id="TERMINAL_ALERT_DUPLICATE">
        <source></source>
        <translation>未提示：一小時內已有相同內容</translation>
    </message>
    <message id="TERMINAL_ALERT_LATE">
        <source></source>
        <translation>未提示：新聞遲到</translation>
    </message>
    <message id="TERMINAL_ALERT_LOOKS_FOR">
        <source></source>
        <translation>尋找(&amp;L)</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED">
        <source></source>
        <translation>規則「%1」比對到標題中的「%2」。</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_AT">
        <source></source>
        <translation>比對 %1</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_BOTH">
        <source></source>
        <translation>規則「%1」比對到標題中的「%2」與內文中的「%3」。</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_OTHER">
        <source></source>
        <translation>規則「%1」比對到商品、類別或新聞服務。</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_STORY">
        <source></source>
        <translation>規則「%1」比對到內文中的「%2」。</translation>
    </message>
    <message id="TERMINAL_ALERT_MORE">
        <source></source>
        <translation>另有 %1 則</translation>
    </message>
    <message id="TERMINAL_ALERT_NONE">
        <source></source>
        <translation>尚無警示。規則比對到的新聞會即時列在這裡，並說明原因。</translation>
    </message>
    <message id="TERMINAL_ALERT_NOTICE">
        <source></source>
        <translation>也以桌面通知提示(&amp;K)</translation>
    </message>
    <message id="TERMINAL_ALERT_NOT_TOLD">
        <source></source>
        <translation>%1。</translation>
    </message>
    <message id="TERMINAL_ALERT_NO_BUDGET">
        <source></source>
        <translation>不限</translation>
    </message>
    <message id="TERMINAL_ALERT_ONLY_CONNECTED">
        <source></source>
        <translation>僅限連線時(&amp;C)</translation>
    </message>
    <message id="TERMINAL_ALERT_OVER_BUDGET">
        <source></source>
        <translation>%1（每小時超過 %2 則）</translation>
    </message>
    <message id="TERMINAL_ALERT_PAUSE">
        <source></source>
        <translation>未提示：規則的間隔時間內</translation>
    </message>
    <message id="TERMINAL_ALERT_PAUSE_OF">
        <source></source>
        <translation>兩次之間隔(&amp;P)</translation>
    </message>
    <message id="TERMINAL_ALERT_PUBLISHED">
        <source></source>
        <translation>發布 %1</translation>
    </message>
    <message id="TERMINAL_ALERT_QUIET_FROM">
        <source></source>
        <translation>勿擾時段自(&amp;Q)</translation>
    </message>
    <message id="TERMINAL_ALERT_QUIET_HOURS">
        <source></source>
        <translation>未提示：勿擾時段</translation>
    </message>
    <message id="TERMINAL_ALERT_QUIET_TO">
        <source></source>
        <translation>至</translation>
    </message>
    <message id="TERMINAL_ALERT_RECEIVED">
        <source></source>
        <translation>收到 %1</translation>
    </message>
    <message id="TERMINAL_ALERT_REHEARSE">
        <source></source>
        <translation>以三十日新聞測試(&amp;Y)…</translation>
    </message>
    <message id="TERMINAL_ALERT_REMOVE">
        <source></source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message id="TERMINAL_ALERT_RULES">
        <source></source>
        <translation>警示規則</translation>
    </message>
    <message id="TERMINAL_ALERT_RULES_HELP">
        <source></source>
        <translation>每則進來的標題都會以這些規則比對，與視窗顯示的內容無關。未勾選的規則只列在警示中，不會提示。</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_INCOMPLETE">
        <source></source>
        <translation>規則需要名稱與要尋找的內容。</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_NAME">
        <source></source>
        <translation>規則(&amp;R)</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_OFF">
        <source></source>
        <translation>未提示：規則已關閉</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_TWICE">
        <source></source>
        <translation>有兩個名為「%1」的規則。</translation>
    </message>
    <message id="TERMINAL_ALERT_SECONDS">
        <source></source>
        <translation> 秒</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND">
        <source></source>
        <translation>音效(&amp;O)</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_CHIME">
        <source></source>
        <translation>鐘聲</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_CHOOSE">
        <source></source>
        <translation>選擇音效</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_DESKTOP">
        <source></source>
        <translation>桌面音效</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_FILE">
        <source></source>
        <translation>檔案…</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_FILES">
        <source></source>
        <translation>音效 (*.wav)</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_KNOCK">
        <source></source>
        <translation>敲擊聲</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_NONE">
        <source></source>
        <translation>無</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_PING">
        <source></source>
        <translation>清脆聲</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_USE">
        <source></source>
        <translation>使用</translation>
    </message>
    <message id="TERMINAL_ALERT_STAYS">
        <source></source>
        <translation>停留</translation>
    </message>
    <message id="TERMINAL_ALERT_STORY">
        <source></source>
        <translation>警示的新聞內容</translation>
    </message>
    <message id="TERMINAL_ALERT_TAG">
        <source></source>
        <translation>標籤(&amp;T)</translation>
    </message>
    <message id="TERMINAL_ALERT_TEST">
        <source></source>
        <translation>測試(&amp;E)</translation>
    </message>
    <message id="TERMINAL_ALERT_TINT">
        <source></source>
        <translation>清單中的顏色(&amp;U)</translation>
    </message>
    <message id="TERMINAL_ALERT_TOAST">
        <source></source>
        <translation>顯示在視窗角落(&amp;H)</translation>
    </message>
    <message id="TERMINAL_ALERT_TOLD">
        <source></source>
        <translation>已提示</translation>
    </message>
    <message id="TERMINAL_ALERT_TOLD_AT">
        <source></source>
        <translation>提示 %1</translation>
    </message>
    <message id="TERMINAL_ALERT_UNTIL_CLOSED">
        <source></source>
        <translation>直到關閉</translation>
    </message>
    <message id="TERMINAL_APP_TITLE">
        <source></source>
        <translation>Wirepane</translation>
    </message>
    <message id="TERMINAL_ARRANGE_COLUMNS">
        <source></source>
        <translation>並排(&amp;S)</translation>
    </message>
    <message id="TERMINAL_ARRANGE_ROWS">
        <source></source>
        <translation>上下排列(&amp;O)</translation>
    </message>
    <message id="TERMINAL_ARRANGE_TABS">
        <source></source>
        <translation>分頁(&amp;T)</translation>
    </message>
    <message id="TERMINAL_AS_OF">
        <source></source>
        <translation>時點 %1</translation>
    </message>
    <message id="TERMINAL_BLIND_BOTH">
        <source></source>
        <translation>%1%2</translation>
    </message>
    <message id="TERMINAL_BLIND_CUT_OFF">
        <source></source>
        <translation>%1 至 %2 連線中斷。</translation>
    </message>
    <message id="TERMINAL_BLIND_LATE">
        <source></source>
        <translation>其間的 %1 則標題遲到，符合警示規則：%2。</translation>
    </message>
    <message id="TERMINAL_BLIND_MISSING">
        <source></source>
        <translation>依 %2 的編號，尚缺 %1 則：%3。</translation>
    </message>
    <message id="TERMINAL_BLIND_NOTHING">
        <source></source>
        <translation>其間的標題尚未補到。</translation>
    </message>
    <message id="TERMINAL_BLIND_SOURCE">
        <source></source>
        <translation>%1 自 %2 至 %3 沒有回應。</translation>
    </message>
    <message id="TERMINAL_BREAKING_NEWS">
        <source></source>
        <translation>即時新聞視窗(&amp;B)</translation>
    </message>
    <message id="TERMINAL_CANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="TERMINAL_CLOSE_BUTTON">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="TERMINAL_CLOSE_VIEW">
        <source></source>
        <translation>關閉視窗(&amp;C)</translation>
    </message>
    <message id="TERMINAL_DATED_AHEAD">
        <source></source>
        <translation>%1 的新聞時間在未來（%2）：來源或本機的時鐘不準。</translation>
    </message>
    <message id="TERMINAL_DUPLICATE_VIEW">
        <source></source>
        <translation>複製視窗(&amp;D)</translation>
    </message>
    <message id="TERMINAL_EMPTY_DESK">
        <source></source>
        <translation>沒有開啟的視窗。按 Ctrl+N 新增。</translation>
    </message>
    <message id="TERMINAL_EXCHANGE_ANNOUNCEMENTS">
        <source></source>
        <translation>上市公司重大訊息</translation>
    </message>
    <message id="TERMINAL_EXCHANGE_PUBLISHER">
        <source></source>
        <translation>臺灣證券交易所</translation>
    </message>
    <message id="TERMINAL_FEED_LATE">
        <source></source>
        <translation>即時 – %1 則新聞延遲送達</translation>
    </message>
    <message id="TERMINAL_FEED_LIVE">
        <source></source>
        <translation>即時</translation>
    </message>
    <message id="TERMINAL_FEED_OFFLINE_SINCE">
        <source></source>
        <translation>離線（自 %1）</translation>
    </message>
    <message id="TERMINAL_FEED_ONLY_READ">
        <source></source>
        <translation>唯讀</translation>
    </message>
    <message id="TERMINAL_FEED_RECONNECTING">
        <source></source>
        <translation>重新連線中…</translation>
    </message>
    <message id="TERMINAL_FEED_SAMPLE">
        <source></source>
        <translation>示範新聞 – 內容均為虛構</translation>
    </message>
    <message id="TERMINAL_FLOAT_BUTTON">
        <source></source>
        <translation>浮動／停靠</translation>
    </message>
    <message id="TERMINAL_FLOAT_VIEW">
        <source></source>
        <translation>浮動／停靠(&amp;F)</translation>
    </message>
    <message id="TERMINAL_COMPACT_ROWS">
        <source></source>
        <translation>緊密列距(&amp;R)</translation>
    </message>
    <message id="TERMINAL_FONT_LARGER">
        <source></source>
        <translation>放大字型(&amp;L)</translation>
    </message>
    <message id="TERMINAL_FONT_SMALLER">
        <source></source>
        <translation>縮小字型(&amp;S)</translation>
    </message>
    <message id="TERMINAL_GO_TO_SYMBOL">
        <source></source>
        <translation>輸入商品(&amp;Y)…</translation>
    </message>
    <message id="TERMINAL_GUIDE">
        <source></source>
        <translation>使用手冊(&amp;U)</translation>
    </message>
    <message id="TERMINAL_GUIDE_TITLE">
        <source></source>
        <translation>使用手冊</translation>
    </message>
    <message id="TERMINAL_KEYS">
        <source></source>
        <translation>按鍵一覽(&amp;K)</translation>
    </message>
    <message id="TERMINAL_KEYS_TITLE">
        <source></source>
        <translation>按鍵一覽</translation>
    </message>
    <message id="TERMINAL_ABOUT">
        <source></source>
        <translation>關於 Wirepane(&amp;A)</translation>
    </message>
    <message id="TERMINAL_ABOUT_TEXT">
        <source></source>
        <translation>Wirepane %1
閱讀證券市場新聞：即時來源與檔案。</translation>
    </message>
    <message id="TERMINAL_FILLING_SAMPLE">
        <source></source>
        <translation>正在準備今天的示範新聞，內容均為虛構。</translation>
    </message>
    <message id="TERMINAL_FIRST_STEPS">
        <source></source>
        <translation>%1 閱讀下一則新聞    %2 搜尋    %3 匯入新聞    %4 顯示所有按鍵</translation>
    </message>
    <message id="TERMINAL_FIRST_STEPS_HIDE">
        <source></source>
        <translation>不再顯示</translation>
    </message>
    <message id="TERMINAL_HEADLINE_COUNT">
        <source></source>
        <translation>%1 則新聞</translation>
    </message>
    <message id="TERMINAL_MENU_ALERTS">
        <source></source>
        <translation>警示(&amp;H)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_ALERTS">
        <source></source>
        <translation>警示(&amp;A)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY">
        <source></source>
        <translation>日誌(&amp;D)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY_HELP">
        <source></source>
        <translation>日誌記下每個檢視在何時顯示了哪些標題與內文，您開啟、搜尋、標記、列印及儲存了什麼，以及哪些警示已通知及看過；並記下來源、收到及上螢幕的時刻、您的使用者名稱與本機名稱。日誌在檔案 %1 中，保留到您刪除該檔案為止，程式不會從中移除任何內容。每筆記錄都與前一筆封在一起，事後的更動會顯現出來。</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY_KEEP">
        <source></source>
        <translation>保留日誌(&amp;K)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY_WORDS">
        <source></source>
        <translation>記下搜尋的字詞(&amp;W)</translation>
    </message>
    <message id="TERMINAL_SOURCE_DELAYS_OF">
        <source></source>
        <translation>最近一小時 %1 則：半數以內、百分之九十九以內、最長</translation>
    </message>
    <message id="TERMINAL_SOURCE_TO_RECEIPT">
        <source></source>
        <translation>發布至收到：%1、%2、%3</translation>
    </message>
    <message id="TERMINAL_SOURCE_TO_STORE">
        <source></source>
        <translation>收到至存入：%1、%2、%3</translation>
    </message>
    <message id="TERMINAL_TINT_BLUE">
        <source></source>
        <translation>藍</translation>
    </message>
    <message id="TERMINAL_TINT_CYAN">
        <source></source>
        <translation>青</translation>
    </message>
    <message id="TERMINAL_TINT_GREEN">
        <source></source>
        <translation>綠</translation>
    </message>
    <message id="TERMINAL_TINT_NONE">
        <source></source>
        <translation>無</translation>
    </message>
    <message id="TERMINAL_TINT_ORANGE">
        <source></source>
        <translation>橙</translation>
    </message>
    <message id="TERMINAL_TINT_RED">
        <source></source>
        <translation>紅</translation>
    </message>
    <message id="TERMINAL_TINT_VIOLET">
        <source></source>
        <translation>紫</translation>
    </message>
    <message id="TERMINAL_UNREAD_OF">
        <source></source>
        <translation>%1 則未讀</translation>
    </message>
    <message id="TERMINAL_HOURS_AGO">
        <source></source>
        <translation>%1 小時前</translation>
    </message>
    <message id="TERMINAL_IMPORT_ALL_KINDS">
        <source></source>
        <translation>新聞與表格</translation>
    </message>
    <message id="TERMINAL_IMPORT_ANY_FILE">
        <source></source>
        <translation>所有檔案</translation>
    </message>
    <message id="TERMINAL_IMPORT_CANCELLED">
        <source></source>
        <translation>匯入已取消。先前已匯入的新聞仍會保留。</translation>
    </message>
    <message id="TERMINAL_IMPORT_COMPLETE">
        <source></source>
        <translation>匯入完成。</translation>
    </message>
    <message id="TERMINAL_IMPORT_FAILED">
        <source></source>
        <translation>匯入失敗。</translation>
    </message>
    <message id="TERMINAL_IMPORT_LEFT_OUT">
        <source></source>
        <translation>還有 %1 行，可在主控台以 wirepane import 檢視。</translation>
    </message>
    <message id="TERMINAL_IMPORT_NEWS">
        <source></source>
        <translation>匯入新聞(&amp;I)…</translation>
    </message>
    <message id="TERMINAL_IMPORT_NOTHING_RECENT">
        <source></source>
        <translation>這些新聞都不在最近 255 天之內，須以當時的時點閱讀。</translation>
    </message>
    <message id="TERMINAL_IMPORT_NOT_STARTED">
        <source></source>
        <translation>無法啟動匯入程式。</translation>
    </message>
    <message id="TERMINAL_IMPORT_PARTIAL">
        <source></source>
        <translation>匯入完成，但有部分內容無法匯入。</translation>
    </message>
    <message id="TERMINAL_IMPORT_READ_AS_OF">
        <source></source>
        <translation>閱讀 %1 年 %2 月 %3 日的新聞(&amp;R)</translation>
    </message>
    <message id="TERMINAL_IMPORT_RUNNING">
        <source></source>
        <translation>正在匯入新聞。若取消，已匯入的新聞仍會保留。</translation>
    </message>
    <message id="TERMINAL_IMPORT_TITLE">
        <source></source>
        <translation>匯入新聞</translation>
    </message>
    <message id="TERMINAL_INDEXING_STORE">
        <source></source>
        <translation>正在重建新聞的搜尋索引，更新後只需進行一次。</translation>
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
        <translation>最新一則 %1 · %2</translation>
    </message>
    <message id="TERMINAL_LINK_GROUP">
        <source></source>
        <translation>群組 &amp;%1</translation>
    </message>
    <message id="TERMINAL_LINK_HINT">
        <source></source>
        <translation>同一群組的視窗跟隨同一商品</translation>
    </message>
    <message id="TERMINAL_LINK_NONE">
        <source></source>
        <translation>不連動(&amp;N)</translation>
    </message>
    <message id="TERMINAL_MENU_ARRANGE">
        <source></source>
        <translation>排列(&amp;A)</translation>
    </message>
    <message id="TERMINAL_MENU_FILE">
        <source></source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message id="TERMINAL_MENU_HELP">
        <source></source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message id="TERMINAL_MENU_LANGUAGE">
        <source></source>
        <translation>語言(&amp;G)</translation>
    </message>
    <message id="TERMINAL_MENU_LINK">
        <source></source>
        <translation>連動群組(&amp;K)</translation>
    </message>
    <message id="TERMINAL_MENU_NEWS">
        <source></source>
        <translation>新聞(&amp;N)</translation>
    </message>
    <message id="TERMINAL_MENU_SCHEME">
        <source></source>
        <translation>配色(&amp;C)</translation>
    </message>
    <message id="TERMINAL_MENU_VIEW">
        <source></source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message id="TERMINAL_MENU_VIEWS">
        <source></source>
        <translation>視窗(&amp;W)</translation>
    </message>
    <message id="TERMINAL_MINUTES_AGO">
        <source></source>
        <translation>%1 分鐘前</translation>
    </message>
    <message id="TERMINAL_NEWS_DATE">
        <source></source>
        <translation>日期(&amp;D)…</translation>
    </message>
    <message id="TERMINAL_NEWS_EARLIER_DAY">
        <source></source>
        <translation>前一天(&amp;E)</translation>
    </message>
    <message id="TERMINAL_NEWS_LATER_DAY">
        <source></source>
        <translation>後一天(&amp;T)</translation>
    </message>
    <message id="TERMINAL_NEWS_LAYOUT">
        <source></source>
        <translation>變更版面(&amp;L)</translation>
    </message>
    <message id="TERMINAL_NEWS_NEXT_PAGE">
        <source></source>
        <translation>下一則(&amp;N)</translation>
    </message>
    <message id="TERMINAL_NEWS_MARK_READ">
        <source></source>
        <translation>標為已讀(&amp;M)</translation>
    </message>
    <message id="TERMINAL_NEWS_MARK_UNREAD">
        <source></source>
        <translation>標為未讀(&amp;U)</translation>
    </message>
    <message id="TERMINAL_NEWS_STAR">
        <source></source>
        <translation>加星號(&amp;A)</translation>
    </message>
    <message id="TERMINAL_NEWS_MARK_ALL_READ">
        <source></source>
        <translation>全部標為已讀(&amp;K)</translation>
    </message>
    <message id="TERMINAL_NEWS_OPEN_IN_WINDOW">
        <source></source>
        <translation>在視窗中開啟(&amp;W)</translation>
    </message>
    <message id="TERMINAL_NEWS_PREVIOUS_PAGE">
        <source></source>
        <translation>上一則(&amp;P)</translation>
    </message>
    <message id="TERMINAL_NEWS_SEARCH">
        <source></source>
        <translation>搜尋(&amp;S)…</translation>
    </message>
    <message id="TERMINAL_NEWS_SERVICES">
        <source></source>
        <translation>新聞來源(&amp;R)…</translation>
    </message>
    <message id="TERMINAL_NEWS_SOURCES">
        <source></source>
        <translation>來源(&amp;O)…</translation>
    </message>
    <message id="TERMINAL_NEWS_TODAY">
        <source></source>
        <translation>今天(&amp;Y)</translation>
    </message>
    <message id="TERMINAL_NEW_DAY">
        <source></source>
        <translation>新的一天：%1</translation>
    </message>
    <message id="TERMINAL_NEW_SYMBOL_VIEW">
        <source></source>
        <translation>新增個股新聞視窗(&amp;M)</translation>
    </message>
    <message id="TERMINAL_NEW_VIEW">
        <source></source>
        <translation>新增視窗(&amp;N)</translation>
    </message>
    <message id="TERMINAL_NEXT_VIEW">
        <source></source>
        <translation>下一個視窗(&amp;X)</translation>
    </message>
    <message id="TERMINAL_NO_CHINESE_FONT">
        <source></source>
        <translation>未安裝中文字型，中文會顯示為方塊。 No installed font has Chinese characters: they are shown as boxes. Install one, such as the package fonts-noto-cjk.</translation>
    </message>
    <message id="TERMINAL_NO_SOURCES">
        <source></source>
        <translation>沒有開啟的來源</translation>
    </message>
    <message id="TERMINAL_NO_SOURCES_ADD">
        <source></source>
        <translation>新增…</translation>
    </message>
    <message id="TERMINAL_PRESENT">
        <source></source>
        <translation>回到現在</translation>
    </message>
    <message id="TERMINAL_PREVIOUS_VIEW">
        <source></source>
        <translation>上一個視窗(&amp;P)</translation>
    </message>
    <message id="TERMINAL_PRINT_NEWS">
        <source></source>
        <translation>列印新聞(&amp;P)…</translation>
    </message>
    <message id="TERMINAL_PRINT_PREVIEW">
        <source></source>
        <translation>預覽列印(&amp;V)…</translation>
    </message>
    <message id="TERMINAL_QUIT">
        <source></source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message id="TERMINAL_OWN_STORE">
        <source></source>
        <translation>讀自己的新聞(&amp;O)</translation>
    </message>
    <message id="TERMINAL_SAMPLE_STORE">
        <source></source>
        <translation>讀示範新聞(&amp;A)</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF">
        <source></source>
        <translation>指定時點閱讀(&amp;R)…</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_EXPLANATION">
        <source></source>
        <translation>終端機將以此時點為現在，顯示當時的新聞；之後的新聞到時才出現。</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_NOW">
        <source></source>
        <translation>目前時間(&amp;N)</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_READ">
        <source></source>
        <translation>閱讀(&amp;R)</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_TITLE">
        <source></source>
        <translation>指定時點閱讀</translation>
    </message>
    <message id="TERMINAL_RENAME_PROMPT">
        <source></source>
        <translation>標題（空白：依視窗內容）</translation>
    </message>
    <message id="TERMINAL_RENAME_TITLE">
        <source></source>
        <translation>重新命名視窗</translation>
    </message>
    <message id="TERMINAL_RENAME_VERB">
        <source></source>
        <translation>重新命名</translation>
    </message>
    <message id="TERMINAL_RENAME_VIEW">
        <source></source>
        <translation>重新命名(&amp;R)…</translation>
    </message>
    <message id="TERMINAL_RISING_GREEN">
        <source></source>
        <translation>綠色</translation>
    </message>
    <message id="TERMINAL_RISING_RED">
        <source></source>
        <translation>紅色</translation>
    </message>
    <message id="TERMINAL_SAVE_NEWS">
        <source></source>
        <translation>另存新聞(&amp;S)…</translation>
    </message>
    <message id="TERMINAL_SCHEME_CONTRAST">
        <source></source>
        <translation>高對比(&amp;H)</translation>
    </message>
    <message id="TERMINAL_SCHEME_DARK">
        <source></source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message id="TERMINAL_SCHEME_LIGHT">
        <source></source>
        <translation>淺色(&amp;L)</translation>
    </message>
    <message id="TERMINAL_SEARCH_BACKLOG">
        <source></source>
        <translation>搜尋暫缺 %1 則標題：索引建立中</translation>
    </message>
    <message id="TERMINAL_SEARCH_RENEWAL">
        <source></source>
        <translation>搜尋仍依舊規則：新索引已建立 %1%</translation>
    </message>
    <message id="TERMINAL_SECONDS_AGO">
        <source></source>
        <translation>%1 秒前</translation>
    </message>
    <message id="TERMINAL_SERVICES_COUNT">
        <source></source>
        <translation>新聞來源 %1/%2</translation>
    </message>
    <message id="TERMINAL_SETTINGS">
        <source></source>
        <translation>設定(&amp;E)…</translation>
    </message>
    <message id="TERMINAL_SETTINGS_BOTH_SEARCHES">
        <source></source>
        <translation>兩者同時開啟時，全部新聞與關鍵字組清單不會自動載入，也不接收即時新聞。若非僅用於搜尋，請關閉其中之一。</translation>
    </message>
    <message id="TERMINAL_SETTINGS_FONT">
        <source></source>
        <translation>字型大小(&amp;F)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_GENERAL">
        <source></source>
        <translation>一般(&amp;G)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_LANGUAGE">
        <source></source>
        <translation>語言(&amp;L)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_NEWS">
        <source></source>
        <translation>新聞(&amp;N)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_NORMAL_SEARCH">
        <source></source>
        <translation>關鍵字組(&amp;K)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_NORMAL_SEARCH_HELP">
        <source></source>
        <translation>新增分頁，列出符合關鍵字組的當日新聞。</translation>
    </message>
    <message id="TERMINAL_SETTINGS_POINTS">
        <source></source>
        <translation> 點</translation>
    </message>
    <message id="TERMINAL_SETTINGS_REOPEN">
        <source></source>
        <translation>變更後會重新開啟您的視窗。</translation>
    </message>
    <message id="TERMINAL_SETTINGS_RISING">
        <source></source>
        <translation>上漲顏色(&amp;R)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_SAVE">
        <source></source>
        <translation>儲存(&amp;S)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_SCHEME">
        <source></source>
        <translation>配色(&amp;C)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_TITLE">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="TERMINAL_SETTINGS_WARNING_SEARCH">
        <source></source>
        <translation>警示詞(&amp;W)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_WARNING_SEARCH_HELP">
        <source></source>
        <translation>新增分頁，列出含有警示詞的新聞。</translation>
    </message>
    <message id="TERMINAL_SHOWN_DAY">
        <source></source>
        <translation>顯示中：%1</translation>
    </message>
    <message id="TERMINAL_SHOW_TODAY">
        <source></source>
        <translation>顯示今天</translation>
    </message>
    <message id="TERMINAL_SOURCES_ADD">
        <source></source>
        <translation>新增(&amp;A)…</translation>
    </message>
    <message id="TERMINAL_SOURCES_COUNT">
        <source></source>
        <translation>%1 個開啟</translation>
    </message>
    <message id="TERMINAL_SOURCES_COUNT_FAULTY">
        <source></source>
        <translation>%1 個開啟 · %2 個有問題</translation>
    </message>
    <message id="TERMINAL_SOURCES_DELAY">
        <source></source>
        <translation>延遲</translation>
    </message>
    <message id="TERMINAL_SOURCES_EXPORT">
        <source></source>
        <translation>匯出(&amp;X)…</translation>
    </message>
    <message id="TERMINAL_SOURCES_EXPORT_TITLE">
        <source></source>
        <translation>匯出來源清單</translation>
    </message>
    <message id="TERMINAL_SOURCES_IMPORT">
        <source></source>
        <translation>匯入清單(&amp;I)…</translation>
    </message>
    <message id="TERMINAL_SOURCES_IMPORTED">
        <source></source>
        <translation>已新增 %1 個（暫停中），%2 個已在清單中，略過 %3 個。請逐一查看後再繼續。</translation>
    </message>
    <message id="TERMINAL_SOURCES_IMPORT_TITLE">
        <source></source>
        <translation>匯入來源清單</translation>
    </message>
    <message id="TERMINAL_SOURCES_LAST">
        <source></source>
        <translation>上次</translation>
    </message>
    <message id="TERMINAL_SOURCES_NEXT">
        <source></source>
        <translation>下次</translation>
    </message>
    <message id="TERMINAL_SOURCES_ON">
        <source></source>
        <translation>開啟</translation>
    </message>
    <message id="TERMINAL_SOURCES_PASTE">
        <source></source>
        <translation>貼上位址：來源、網頁或檔案</translation>
    </message>
    <message id="TERMINAL_SOURCES_SILENT">
        <source></source>
        <translation>沒有來源回應</translation>
    </message>
    <message id="TERMINAL_SOURCES_SOURCE">
        <source></source>
        <translation>來源</translation>
    </message>
    <message id="TERMINAL_SOURCES_STALE">
        <source></source>
        <translation>超過平常時間沒有新消息</translation>
    </message>
    <message id="TERMINAL_SOURCES_STATE">
        <source></source>
        <translation>狀態</translation>
    </message>
    <message id="TERMINAL_SOURCES_TITLE">
        <source></source>
        <translation>來源</translation>
    </message>
    <message id="TERMINAL_SOURCES_TODAY">
        <source></source>
        <translation>今日</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS">
        <source></source>
        <translation>存取(&amp;C)</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_BASIC">
        <source></source>
        <translation>使用者:密碼</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_BEARER">
        <source></source>
        <translation>權杖</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_HEADER">
        <source></source>
        <translation>自訂標頭</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_NONE">
        <source></source>
        <translation>無</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADAPTS">
        <source></source>
        <translation>自動調整</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADD">
        <source></source>
        <translation>新增(&amp;A)</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADDRESS">
        <source></source>
        <translation>位址</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADD_TITLE">
        <source></source>
        <translation>新增來源</translation>
    </message>
    <message id="TERMINAL_SOURCE_ANY_AGE">
        <source></source>
        <translation>不限</translation>
    </message>
    <message id="TERMINAL_SOURCE_AUTHORISATION">
        <source></source>
        <translation>登入方式</translation>
    </message>
    <message id="TERMINAL_SOURCE_AUTHORITY">
        <source></source>
        <translation>自有憑證授權單位</translation>
    </message>
    <message id="TERMINAL_SOURCE_BROWSE">
        <source></source>
        <translation>選擇檔案</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY">
        <source></source>
        <translation>分類</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY_ALWAYS">
        <source></source>
        <translation>一律：</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY_OTHERWISE">
        <source></source>
        <translation>沒有分類時：</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY_OWN">
        <source></source>
        <translation>依各則新聞</translation>
    </message>
    <message id="TERMINAL_SOURCE_CERTIFICATE">
        <source></source>
        <translation>用戶端憑證</translation>
    </message>
    <message id="TERMINAL_SOURCE_CERTIFICATE_KEY">
        <source></source>
        <translation>憑證金鑰</translation>
    </message>
    <message id="TERMINAL_SOURCE_CONNECTING">
        <source></source>
        <translation>連線中…</translation>
    </message>
    <message id="TERMINAL_SOURCE_DAYS_SUFFIX">
        <source></source>
        <translation> 天</translation>
    </message>
    <message id="TERMINAL_SOURCE_DOWN">
        <source></source>
        <translation>下移 (Alt+Down)</translation>
    </message>
    <message id="TERMINAL_SOURCE_EDIT">
        <source></source>
        <translation>編輯(&amp;E)…</translation>
    </message>
    <message id="TERMINAL_SOURCE_EDIT_TITLE">
        <source></source>
        <translation>編輯來源</translation>
    </message>
    <message id="TERMINAL_SOURCE_EVERY">
        <source></source>
        <translation>每 %1 秒</translation>
    </message>
    <message id="TERMINAL_SOURCE_FAILED">
        <source></source>
        <translation>失敗（自 %1）：%2</translation>
    </message>
    <message id="TERMINAL_SOURCE_FIELD">
        <source></source>
        <translation>標頭或參數名稱</translation>
    </message>
    <message id="TERMINAL_SOURCE_GENERAL">
        <source></source>
        <translation>一般(&amp;G)</translation>
    </message>
    <message id="TERMINAL_SOURCE_GREATEST_AGE">
        <source></source>
        <translation>最舊新聞</translation>
    </message>
    <message id="TERMINAL_SOURCE_INTERVAL">
        <source></source>
        <translation>查詢間隔</translation>
    </message>
    <message id="TERMINAL_SOURCE_IN_MINUTES">
        <source></source>
        <translation>%1 分鐘後</translation>
    </message>
    <message id="TERMINAL_SOURCE_IN_SECONDS">
        <source></source>
        <translation>%1 秒後</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND">
        <source></source>
        <translation>類型</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND_AUTO">
        <source></source>
        <translation>自動辨識</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND_EVENTS">
        <source></source>
        <translation>伺服器推送事件</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND_TABLE">
        <source></source>
        <translation>對應表格</translation>
    </message>
    <message id="TERMINAL_SOURCE_LINKS">
        <source></source>
        <translation>此網頁的來源</translation>
    </message>
    <message id="TERMINAL_SOURCE_MAPPING">
        <source></source>
        <translation>對應</translation>
    </message>
    <message id="TERMINAL_SOURCE_NOT_ASKED">
        <source></source>
        <translation>尚未查詢</translation>
    </message>
    <message id="TERMINAL_SOURCE_NOT_READ">
        <source></source>
        <translation>目前沒有終端機在讀取</translation>
    </message>
    <message id="TERMINAL_SOURCE_OWN_SERVICE">
        <source></source>
        <translation>專屬服務，以來源命名</translation>
    </message>
    <message id="TERMINAL_SOURCE_PAUSE">
        <source></source>
        <translation>暫停(&amp;P)</translation>
    </message>
    <message id="TERMINAL_SOURCE_PAUSED">
        <source></source>
        <translation>已暫停</translation>
    </message>
    <message id="TERMINAL_SOURCE_PROXIES">
        <source></source>
        <translation>若系統設有代理伺服器則會使用。經由代理伺服器時只能檢查名稱：由代理伺服器找出名稱對應的主機。</translation>
    </message>
    <message id="TERMINAL_SOURCE_READY_MADE">
        <source></source>
        <translation>現成來源 · %1</translation>
    </message>
    <message id="TERMINAL_SOURCE_READ_TERMS">
        <source></source>
        <translation>未開啟。請先閱讀發布者的使用條款。</translation>
    </message>
    <message id="TERMINAL_SOURCE_REMOVE">
        <source></source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message id="TERMINAL_SOURCE_REMOVE_QUESTION">
        <source></source>
        <translation>要移除「%1」嗎？已收到的新聞會保留。</translation>
    </message>
    <message id="TERMINAL_SOURCE_RESUME">
        <source></source>
        <translation>繼續(&amp;R)</translation>
    </message>
    <message id="TERMINAL_SOURCE_SAVE">
        <source></source>
        <translation>儲存(&amp;S)</translation>
    </message>
    <message id="TERMINAL_SOURCE_SECONDS_SUFFIX">
        <source></source>
        <translation> 秒</translation>
    </message>
    <message id="TERMINAL_SOURCE_SECRET">
        <source></source>
        <translation>密鑰</translation>
    </message>
    <message id="TERMINAL_SOURCE_SECRET_KEPT">
        <source></source>
        <translation>已保存；留空則不變</translation>
    </message>
    <message id="TERMINAL_SOURCE_SERVICE">
        <source></source>
        <translation>新聞服務</translation>
    </message>
    <message id="TERMINAL_SOURCE_STALE">
        <source></source>
        <translation>無新消息（自 %1）</translation>
    </message>
    <message id="TERMINAL_SOURCE_STREAM">
        <source></source>
        <translation>串流</translation>
    </message>
    <message id="TERMINAL_SOURCE_TERMS_QUESTION">
        <source></source>
        <translation>「%1」由%2發布。開啟後，本終端機會持續向 %3 查詢。請先閱讀發布者的使用條款：%4</translation>
    </message>
    <message id="TERMINAL_SOURCE_TERMS_READ">
        <source></source>
        <translation>我已閱讀，新增(&amp;A)</translation>
    </message>
    <message id="TERMINAL_SOURCE_TEST">
        <source></source>
        <translation>測試(&amp;T)</translation>
    </message>
    <message id="TERMINAL_SOURCE_TITLE">
        <source></source>
        <translation>名稱</translation>
    </message>
    <message id="TERMINAL_SOURCE_UP">
        <source></source>
        <translation>上移 (Alt+Up)</translation>
    </message>
    <message id="TERMINAL_STATUS_CONNECT">
        <source></source>
        <translation>連線…</translation>
    </message>
    <message id="TERMINAL_STATUS_IMPORT">
        <source></source>
        <translation>匯入…</translation>
    </message>
    <message id="TERMINAL_SYMBOL_BAR">
        <source></source>
        <translation>商品</translation>
    </message>
    <message id="TERMINAL_SYMBOL_PROMPT">
        <source></source>
        <translation>代號或名稱</translation>
    </message>
    <message id="TERMINAL_SYMBOL_UNKNOWN">
        <source></source>
        <translation>查無此商品</translation>
    </message>
    <message id="TERMINAL_TRIAL_ASKING">
        <source></source>
        <translation>查詢中…</translation>
    </message>
    <message id="TERMINAL_TRIAL_HEADLINE">
        <source></source>
        <translation>標題</translation>
    </message>
    <message id="TERMINAL_TRIAL_ITEMS">
        <source></source>
        <translation>前幾則新聞的顯示方式：讀取 %1 則，拒收 %2 則。</translation>
    </message>
    <message id="TERMINAL_TRIAL_NOT_ASKED">
        <source></source>
        <translation>按「測試」會向來源查詢一次，並在此列出最新的新聞，與新聞列表中的樣子相同。</translation>
    </message>
    <message id="TERMINAL_TRIAL_NOTHING">
        <source></source>
        <translation>有回應，但目前沒有任何新聞。</translation>
    </message>
    <message id="TERMINAL_TRIAL_PAGE">
        <source></source>
        <translation>這是網頁，其中列出 %1 個來源。</translation>
    </message>
    <message id="TERMINAL_TRIAL_REJECTED">
        <source></source>
        <translation>拒收 %1 則，第一則的原因：%2</translation>
    </message>
    <message id="TERMINAL_TRIAL_TIME">
        <source></source>
        <translation>時間</translation>
    </message>
    <message id="TERMINAL_TRIAL_TITLE">
        <source></source>
        <translation>前幾則新聞的顯示方式</translation>
    </message>
    <message id="TERMINAL_TRIAL_TOO_OLD">
        <source></source>
        <translation>有回應；其中 %1 則新聞都早於收取範圍。</translation>
    </message>
    <message id="TERMINAL_TRIAL_TOPIC">
        <source></source>
        <translation>分類</translation>
    </message>
    <message id="TERMINAL_VIEW_FAILED">
        <source></source>
        <translation>有視窗無法還原：%1</translation>
    </message>
    <message id="ERROR_STORE_OF_WIRE_ALONE">
        <source></source>
        <translation>本庫跟隨專線，只收專線來的新聞；請在專線上發佈。</translation>
    </message>
    <message id="ERROR_STORE_NEWS_OF_ITS_OWN">
        <source></source>
        <translation>本庫已有自己的新聞；專線需要一個沒有新聞的庫，或已在跟隨它的庫。</translation>
    </message>
    <message id="ERROR_STORE_COPY_DIFFERS">
        <source></source>
        <translation>庫裏的新聞 %1 與專線上的不同。</translation>
    </message>
    <message id="ERROR_WIRE_HOLE">
        <source></source>
        <translation>專線在第 %1 列之前有缺口：服務 %2 那邊到第 %3 列，這邊到第 %4 列。沒有收下任何內容。</translation>
    </message>
    <message id="ERROR_WIRE_OTHER_EPOCH">
        <source></source>
        <translation>專線已重設：現在是紀元 %1，而本庫跟隨 %2。沒有收下任何內容。</translation>
    </message>
    <message id="ERROR_WIRE_WENT_BACK">
        <source></source>
        <translation>專線倒退了：它止於第 %1 列，而本庫已跟到第 %2 列。沒有收下任何內容。</translation>
    </message>
    <message id="ERROR_WIRE_UNKNOWN_FORMAT">
        <source></source>
        <translation>專線以形式 %1 寫成，本版程式不認得。</translation>
    </message>
    <message id="ERROR_WIRE_UNKNOWN_KIND">
        <source></source>
        <translation>它屬於「%1」類，本版程式不認得。</translation>
    </message>
    <message id="ERROR_WIRE_ROW_DAMAGED">
        <source></source>
        <translation>它已損壞，無法讀取。</translation>
    </message>
    <message id="ERROR_WIRE_ROW">
        <source></source>
        <translation>專線第 %1 列</translation>
    </message>
    <message id="ERROR_WIRE_POSITION_UNREADABLE">
        <source></source>
        <translation>無法讀取本庫跟隨專線到何處：「%1」。</translation>
    </message>
    <message id="ERROR_WIRE_NO_BEAT">
        <source></source>
        <translation>專線的收稿點已有 %1 秒沒有動靜。</translation>
    </message>
    <message id="ERROR_WIRE_SERVER">
        <source></source>
        <translation>專線伺服器回覆：%1</translation>
    </message>
    <message id="ERROR_WIRE_NOT_MADE">
        <source></source>
        <translation>此資料庫裏還沒有專線，請先在命令列建立。</translation>
    </message>
    <message id="ERROR_WIRE_MADE_ALREADY">
        <source></source>
        <translation>此資料庫裏已有專線。</translation>
    </message>
    <message id="ERROR_WIRE_DRIVER_MISSING">
        <source></source>
        <translation>沒有安裝與專線伺服器連線的部分：%1</translation>
    </message>
    <message id="ERROR_WIRE_SERVICE_NAME">
        <source></source>
        <translation>「%1」不是專線的名稱：可用字母、數字、「.」、「_」和「-」。</translation>
    </message>
    <message id="ERROR_WIRE_NO_QUOTES">
        <source></source>
        <translation>專線不傳送報價。</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="ERROR_COMMANDS_FILES_NOT_READ">
        <source></source>
        <translation>%2 个文件中有 %1 个无法读取。</translation>
    </message>
    <message id="ERROR_COMMANDS_FILE_REJECTED">
        <source></source>
        <translation>%1：%2</translation>
    </message>
    <message id="ERROR_COMMANDS_IMPORT_STOPPED">
        <source></source>
        <translation>已停止。已导入的文件会保留；再次导入相同文件即可继续。</translation>
    </message>
    <message id="ERROR_COMMANDS_IMPORT_TOTALS">
        <source></source>
        <translation>已导入 %1 条，已存在 %2 条，未能导入 %3 条</translation>
    </message>
    <message id="ERROR_COMMANDS_ITEM_REJECTED">
        <source></source>
        <translation>%1：%2：%3</translation>
    </message>
    <message id="ERROR_COMMANDS_NOTHING_RECENT">
        <source></source>
        <translation>这些新闻都不在最近 255 天之内。若要查看，请以 --now %1 启动终端，或使用“指定时点阅读”（在终端中按 Ctrl+G）。</translation>
    </message>
    <message id="ERROR_DATABASE_BACKUP_EXISTS">
        <source></source>
        <translation>%1 已经存在，请为备份指定另一个文件。</translation>
    </message>
    <message id="ERROR_DATABASE_DAMAGED">
        <source></source>
        <translation>%1 已损坏（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_DISK_FULL">
        <source></source>
        <translation>磁盘空间不足，无法扩展 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_IN_USE">
        <source></source>
        <translation>%1 正被其他程序使用（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_LOG_NEEDED">
        <source></source>
        <translation>读取 %1 需要其日志文件 %2，因此所在文件夹必须可写入；请将两者复制到可写入的文件夹。</translation>
    </message>
    <message id="ERROR_DATABASE_MEMORY_IS_NO_FILE">
        <source></source>
        <translation>新闻数据库必须是文件；“:memory:”不是文件。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_ON_DISK">
        <source></source>
        <translation>无法将 %1 写入磁盘。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_OPENED">
        <source></source>
        <translation>无法打开 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_READ_OR_WRITTEN">
        <source></source>
        <translation>无法读取或写入 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_USED">
        <source></source>
        <translation>无法使用 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NOT_WRITTEN">
        <source></source>
        <translation>无法写入 %1（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NO_DATABASE">
        <source></source>
        <translation>%1 不是新闻数据库，或文件开头已损坏（%2）。</translation>
    </message>
    <message id="ERROR_DATABASE_NO_FILE_NAMED">
        <source></source>
        <translation>未指定新闻数据库文件。</translation>
    </message>
    <message id="ERROR_DATABASE_NO_MEMORY">
        <source></source>
        <translation>无法打开 %1：内存不足。</translation>
    </message>
    <message id="ERROR_DATABASE_ONLY_READ">
        <source></source>
        <translation>%1 为只读，不会接收任何新闻。</translation>
    </message>
    <message id="ERROR_DATABASE_SINGLE_BYTE">
        <source></source>
        <translation>%1 不是新闻数据库（文件只有一个字节）。</translation>
    </message>
    <message id="ERROR_DATABASE_TAKEN_AWAY">
        <source></source>
        <translation>%1 在使用期间已被移动或删除；还原该文件或重新启动程序之前，不会接收任何新闻。</translation>
    </message>
    <message id="ERROR_DIARY_HEAD_NOT_KEPT">
        <source></source>
        <translation>数据库无法记下日志 %1 写到哪里：%2。</translation>
    </message>
    <message id="ERROR_DIARY_NOT_OPENED">
        <source></source>
        <translation>无法打开日志 %1：%2。</translation>
    </message>
    <message id="ERROR_DIARY_NOT_READ">
        <source></source>
        <translation>无法读取日志 %1：%2。</translation>
    </message>
    <message id="ERROR_DIARY_NOT_WRITTEN">
        <source></source>
        <translation>无法写入日志 %1：%2。</translation>
    </message>
    <message id="ERROR_FEED_AT_POSITION">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_FEED_GREETING_NOT_FIRST">
        <source></source>
        <translation>问候行只能是第一行。</translation>
    </message>
    <message id="ERROR_FEED_LINE_OVER">
        <source></source>
        <translation>此行超过 %1 MiB。</translation>
    </message>
    <message id="ERROR_FEED_MORE_REJECTED">
        <source></source>
        <translation>以及更多：共有 %1 个项目被拒绝。</translation>
    </message>
    <message id="ERROR_FEED_PROGRAM_ENDED">
        <source></source>
        <translation>%1 已结束：%2</translation>
    </message>
    <message id="ERROR_FEED_REJECTED_AT">
        <source></source>
        <translation>%1：%2</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_FILE_TOO_LARGE">
        <source></source>
        <translation>文件超过 %1 字节。</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_FOLDER_LINKED">
        <source></source>
        <translation>无法使用收件文件夹 %1：其中的 %2 是链接。</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_FOLDER_NOT_MADE">
        <source></source>
        <translation>无法使用收件文件夹 %1：无法在其中创建文件夹 %2。</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_LINK">
        <source></source>
        <translation>这是链接；只接受文件。</translation>
    </message>
    <message id="ERROR_FEED_SPOOL_NOT_MOVED">
        <source></source>
        <translation>无法将 %1 移至文件夹 %2。文件保持原状，且不会再次接收。</translation>
    </message>
    <message id="ERROR_FEED_UNKNOWN_LINE">
        <source></source>
        <translation>此行没有已知类型的记录，也没有注明来源的问候行。</translation>
    </message>
    <message id="ERROR_FRAME_UNKNOWN_VIEW">
        <source></source>
        <translation>新闻模块无法创建类别为 %1 的窗口。</translation>
    </message>
    <message id="ERROR_IMPORT_AN_OBJECT">
        <source></source>
        <translation>对象</translation>
    </message>
    <message id="ERROR_IMPORT_AT_END">
        <source></source>
        <translation>结尾</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ITEM">
        <source></source>
        <translation>第 %1 项</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ITEM_NAMED">
        <source></source>
        <translation>第 %1 项（%2）</translation>
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
        <translation>第 %1 行</translation>
    </message>
    <message id="ERROR_IMPORT_AT_ROW_NAMED">
        <source></source>
        <translation>第 %1 行（%2）</translation>
    </message>
    <message id="ERROR_IMPORT_A_LIST">
        <source></source>
        <translation>列表</translation>
    </message>
    <message id="ERROR_IMPORT_A_NUMBER">
        <source></source>
        <translation>数字</translation>
    </message>
    <message id="ERROR_IMPORT_A_TEXT">
        <source></source>
        <translation>文本</translation>
    </message>
    <message id="ERROR_IMPORT_BEHIND_LIST">
        <source></source>
        <translation>列表结尾之后还有其他内容。</translation>
    </message>
    <message id="ERROR_IMPORT_CATALOGUE_OF_CODES">
        <source></source>
        <translation>代码表目录</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY">
        <source></source>
        <translation>分类</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY_FIELD">
        <source></source>
        <translation>类别的“%1”%2。</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY_ID">
        <source></source>
        <translation>分类编号</translation>
    </message>
    <message id="ERROR_IMPORT_CATEGORY_WITHOUT_NAME">
        <source></source>
        <translation>分类 %1 没有名称。</translation>
    </message>
    <message id="ERROR_IMPORT_CHANGE">
        <source></source>
        <translation>涨跌</translation>
    </message>
    <message id="ERROR_IMPORT_COLUMN_MISSING">
        <source></source>
        <translation>表格中没有字段映射所指定的列“%1”。</translation>
    </message>
    <message id="ERROR_IMPORT_ENTRY_WITHOUT_DATE">
        <source></source>
        <translation>该条目及其信息源都没有可读取的日期。</translation>
    </message>
    <message id="ERROR_IMPORT_ENTRY_WITHOUT_TITLE">
        <source></source>
        <translation>该条目没有标题，也没有可用于生成标题的正文。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_EMPTY">
        <source></source>
        <translation>文件为空。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_MISSING">
        <source></source>
        <translation>文件不存在。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_NOT_OPENED">
        <source></source>
        <translation>无法打开文件：%1。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_NOT_READ_TO_END">
        <source></source>
        <translation>无法完整读取文件：%1。</translation>
    </message>
    <message id="ERROR_IMPORT_FILE_TOO_LARGE">
        <source></source>
        <translation>文件超过 %1 字节；只有每行一条记录的 JSON 可以超过此大小。</translation>
    </message>
    <message id="ERROR_IMPORT_GUID_OF_ITEM">
        <source></source>
        <translation>该项目的“guid”</translation>
    </message>
    <message id="ERROR_IMPORT_HOLDS_NO_SYMBOL">
        <source></source>
        <translation>含有不是 {market, code} 的条目</translation>
    </message>
    <message id="ERROR_IMPORT_IDENTITY_OF_ENTRY">
        <source></source>
        <translation>该条目的标识</translation>
    </message>
    <message id="ERROR_IMPORT_IDENTITY_OF_ROW">
        <source></source>
        <translation>该行的标识</translation>
    </message>
    <message id="ERROR_IMPORT_IDENTITY_TOO_LONG">
        <source></source>
        <translation>%1超过 %2 个字符。</translation>
    </message>
    <message id="ERROR_IMPORT_IS_MISSING">
        <source></source>
        <translation>缺失</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_FIELD">
        <source></source>
        <translation>新闻项的“%1”%2。</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_TIME_UNREAD">
        <source></source>
        <translation>无法读取该项目的时间：“%1”的值为“%2”。</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_WITHOUT_GUID">
        <source></source>
        <translation>该项目没有“guid”。</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_WITHOUT_HEADLINE">
        <source></source>
        <translation>该项目没有标题，也没有可用于生成标题的正文。</translation>
    </message>
    <message id="ERROR_IMPORT_ITEM_WITHOUT_TIME">
        <source></source>
        <translation>该项目没有时间（“versionCreated”）。</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_BEHIND_END">
        <source></source>
        <translation>文档结尾有多余的内容</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_ESCAPE">
        <source></source>
        <translation>无效的转义序列</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_LIST_WITHOUT_END">
        <source></source>
        <translation>数组未结束</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_NAME_SEPARATOR">
        <source></source>
        <translation>缺少名称分隔符</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_NUMBER">
        <source></source>
        <translation>无效的数字</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_NUMBER_END">
        <source></source>
        <translation>结尾的数字无效</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_OBJECT_MISSING">
        <source></source>
        <translation>逗号后缺少对象</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_OBJECT_WITHOUT_END">
        <source></source>
        <translation>对象未结束</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_TEXT_WITHOUT_END">
        <source></source>
        <translation>字符串未结束</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_TOO_DEEP">
        <source></source>
        <translation>文档嵌套过深</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_TOO_LARGE">
        <source></source>
        <translation>文档过大</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_UTF_8">
        <source></source>
        <translation>无效的 UTF-8 字符串</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_VALUE">
        <source></source>
        <translation>无效的值</translation>
    </message>
    <message id="ERROR_IMPORT_JSON_VALUE_SEPARATOR">
        <source></source>
        <translation>缺少值分隔符</translation>
    </message>
    <message id="ERROR_IMPORT_LAST_PRICE">
        <source></source>
        <translation>成交价</translation>
    </message>
    <message id="ERROR_IMPORT_LINE_TOO_LONG">
        <source></source>
        <translation>此行超过 %1 字节。</translation>
    </message>
    <message id="ERROR_IMPORT_LIST_WITHOUT_END">
        <source></source>
        <translation>列表没有结尾：缺少“]”。</translation>
    </message>
    <message id="ERROR_IMPORT_LONE_CONCEPT">
        <source></source>
        <translation>概念</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_FIELD">
        <source></source>
        <translation>字段映射的“%1”%2。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_FIELD_UNKNOWN">
        <source></source>
        <translation>无法识别字段映射的“%1”。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_FIELD_UNUSABLE">
        <source></source>
        <translation>无法使用字段映射的“%1”：%2</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_NOT_OPENED">
        <source></source>
        <translation>无法打开字段映射 %1：%2。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_NO_JSON">
        <source></source>
        <translation>字段映射不是有效的 JSON：%1（字节 %2）。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_NO_OBJECT">
        <source></source>
        <translation>字段映射不是 JSON 对象。</translation>
    </message>
    <message id="ERROR_IMPORT_MAPPING_TOO_LARGE">
        <source></source>
        <translation>字段映射 %1 超过 %2 字节。</translation>
    </message>
    <message id="ERROR_IMPORT_MARKET">
        <source></source>
        <translation>市场</translation>
    </message>
    <message id="ERROR_IMPORT_MARKUP_PAGE">
        <source></source>
        <translation>文件是标记语言网页，不是表格：开头为“%1”。</translation>
    </message>
    <message id="ERROR_IMPORT_MESSAGE_EMPTY">
        <source></source>
        <translation>消息中没有任何项目。</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_ANY_NUMBER">
        <source></source>
        <translation>必须是数字</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_CHARACTER">
        <source></source>
        <translation>必须是单个字符</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_LINES">
        <source></source>
        <translation>必须是“wrapped”、“kept”或“numbered”</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_LIST">
        <source></source>
        <translation>必须是列表</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_NUMBER">
        <source></source>
        <translation>必须是 %1 到 %2 的数字</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_OBJECT">
        <source></source>
        <translation>必须是对象</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_TEXT">
        <source></source>
        <translation>必须是文本</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_TEXTS">
        <source></source>
        <translation>必须是文本或文本列表，且不得为空</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_BE_TRUE_OR_FALSE">
        <source></source>
        <translation>必须是 true 或 false</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_HOLD_TEXTS">
        <source></source>
        <translation>只能包含文本或数字</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_COLUMN">
        <source></source>
        <translation>必须指定列</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_IDENTITY">
        <source></source>
        <translation>必须指定用于区分各项目的列</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_SERVICES">
        <source></source>
        <translation>必须以 1 到 255 的数字指定新闻服务</translation>
    </message>
    <message id="ERROR_IMPORT_MUST_NAME_TITLE">
        <source></source>
        <translation>必须指定列，除非“story”已指定</translation>
    </message>
    <message id="ERROR_IMPORT_NAMES_ENCODING">
        <source></source>
        <translation>指定了不支持的编码“%1”</translation>
    </message>
    <message id="ERROR_IMPORT_NOTHING">
        <source></source>
        <translation>空值</translation>
    </message>
    <message id="ERROR_IMPORT_NOT_FOR_PUBLICATION">
        <source></source>
        <translation>该记录不得发布：“%1”的值为“%2”。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_COLOUR">
        <source></source>
        <translation>“%1”不是颜色：格式必须为“#rrggbb”。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_FILE">
        <source></source>
        <translation>这不是文件。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_KNOWN_ENCODING">
        <source></source>
        <translation>文件编码既不是 UTF-8，也不是950 代码页。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_MAPPED_ENCODING">
        <source></source>
        <translation>文件不符合字段映射所列的任何编码。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_PRICE">
        <source></source>
        <translation>“%1”不是有效的%2：必须是如 12.5 的数字。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_SYMBOL_CODE">
        <source></source>
        <translation>“%1”不是证券代码。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_UTF_16">
        <source></source>
        <translation>文件开头标记为 UTF-16，但内容不是。</translation>
    </message>
    <message id="ERROR_IMPORT_NO_ZONE">
        <source></source>
        <translation>既不是如“+08:00”的时差，也不是已知的时区</translation>
    </message>
    <message id="ERROR_IMPORT_NUMBER_OUT_OF_RANGE">
        <source></source>
        <translation>“%1”不是有效的%2：必须是 %3 到 %4 的数字。</translation>
    </message>
    <message id="ERROR_IMPORT_OTHER_NEWSML">
        <source></source>
        <translation>&lt;%1&gt; 是%2，不是新闻。</translation>
    </message>
    <message id="ERROR_IMPORT_PACKAGE_OF_LINKS">
        <source></source>
        <translation>新闻链接的汇编</translation>
    </message>
    <message id="ERROR_IMPORT_PLAN_OF_COVERAGE">
        <source></source>
        <translation>采访计划</translation>
    </message>
    <message id="ERROR_IMPORT_QUOTE_FIELD">
        <source></source>
        <translation>报价的“%1”%2。</translation>
    </message>
    <message id="ERROR_IMPORT_QUOTE_NOT_CLOSED">
        <source></source>
        <translation>引号未成对，其后的内容均未读取。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_FIELD">
        <source></source>
        <translation>字段“%1”必须是%2，而不是%3。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_NO_JSON">
        <source></source>
        <translation>该记录不是有效的 JSON：%1（字节 %2）。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_NO_OBJECT">
        <source></source>
        <translation>该记录不是 JSON 对象。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_TIME_UNREAD">
        <source></source>
        <translation>无法读取该记录的时间：“%1”的值为“%2”。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_TOO_LONG">
        <source></source>
        <translation>该记录超过 %1 字节。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_WITHOUT_TIME">
        <source></source>
        <translation>该记录没有时间（“versioncreated”、“firstcreated”或“contentcreated”）。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_WITHOUT_TITLE">
        <source></source>
        <translation>该记录没有标题，也没有可用于生成标题的正文。</translation>
    </message>
    <message id="ERROR_IMPORT_RECORD_WITHOUT_URI">
        <source></source>
        <translation>该记录没有“uri”。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_NO_JSON">
        <source></source>
        <translation>该行不是有效的 JSON：%1（字节 %2）。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_NO_OBJECT">
        <source></source>
        <translation>该行不是 JSON 对象。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_TIME_UNREAD">
        <source></source>
        <translation>“%1”不符合字段映射规定的时间格式。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_DATE">
        <source></source>
        <translation>该行没有日期。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_IDENTITY">
        <source></source>
        <translation>该行的标识列（%1）没有内容。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_SERVICE">
        <source></source>
        <translation>“%1”不是新闻服务：字段映射中没有其编号。</translation>
    </message>
    <message id="ERROR_IMPORT_ROW_WITHOUT_TITLE">
        <source></source>
        <translation>该行没有标题，也没有可用于生成标题的正文。</translation>
    </message>
    <message id="ERROR_IMPORT_SERVICE">
        <source></source>
        <translation>新闻服务</translation>
    </message>
    <message id="ERROR_IMPORT_SET_OF_CONCEPTS">
        <source></source>
        <translation>概念集</translation>
    </message>
    <message id="ERROR_IMPORT_SYMBOL_FIELD">
        <source></source>
        <translation>证券的“%1”%2。</translation>
    </message>
    <message id="ERROR_IMPORT_SYMBOL_WITHOUT_NAME">
        <source></source>
        <translation>证券“%1”没有名称。</translation>
    </message>
    <message id="ERROR_IMPORT_TIME_FORM">
        <source></source>
        <translation>“%1”不是日期或时间格式。</translation>
    </message>
    <message id="ERROR_IMPORT_TIME_FORM_AT">
        <source></source>
        <translation>“%1”不是日期或时间格式：请检查“%2”。</translation>
    </message>
    <message id="ERROR_IMPORT_TRUE_OR_FALSE">
        <source></source>
        <translation>布尔值</translation>
    </message>
    <message id="ERROR_IMPORT_UNDER_EMBARGO">
        <source></source>
        <translation>该记录尚未解禁：“%1”的值为“%2”。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_ENCODING">
        <source></source>
        <translation>文件声明的编码“%1”不受支持。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_FORMAT">
        <source></source>
        <translation>无法识别文件格式（支持 %1）：开头为%2。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_JSON">
        <source></source>
        <translation>不支持此类 JSON 文件：记录的字段为%1。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_XML">
        <source></source>
        <translation>不支持此类 XML 文件：根元素为 &lt;%1&gt;。</translation>
    </message>
    <message id="ERROR_IMPORT_UNKNOWN_XML_OF">
        <source></source>
        <translation>不支持此类 XML 文件：根元素为 &lt;%1&gt;，命名空间为“%2”。</translation>
    </message>
    <message id="ERROR_IMPORT_URI_OF_RECORD">
        <source></source>
        <translation>该记录的“uri”</translation>
    </message>
    <message id="ERROR_IMPORT_VOLUME">
        <source></source>
        <translation>成交量</translation>
    </message>
    <message id="ERROR_IMPORT_WITH_CLOCK">
        <source></source>
        <translation>必须与“clock”同时设置</translation>
    </message>
    <message id="ERROR_IMPORT_XML_NOT_READ">
        <source></source>
        <translation>无法读取 XML：%1。</translation>
    </message>
    <message id="ERROR_IMPORT_XML_WITHOUT_ELEMENT">
        <source></source>
        <translation>文件看似 XML，但开头找不到任何元素。</translation>
    </message>
    <message id="ERROR_LINES_FOLDER_HELD">
        <source></source>
        <translation>文件夹不存在，或正被其他程序占用</translation>
    </message>
    <message id="ERROR_LINES_FOLDER_NOT_MADE">
        <source></source>
        <translation>无法创建本地套接字文件夹 %1：%2。</translation>
    </message>
    <message id="ERROR_LINES_FOLDER_NOT_OWN">
        <source></source>
        <translation>本地套接字文件夹 %1 不是此用户专用。</translation>
    </message>
    <message id="ERROR_LINES_NO_SOCKET">
        <source></source>
        <translation>已有同名的项目，且不是套接字</translation>
    </message>
    <message id="ERROR_LINES_PATH_TOO_LONG">
        <source></source>
        <translation>路径超过 %1 字节</translation>
    </message>
    <message id="ERROR_LINES_SOCKET_IN_USE">
        <source></source>
        <translation>正被其他程序使用</translation>
    </message>
    <message id="ERROR_LINES_SOCKET_NOT_OPENED">
        <source></source>
        <translation>无法打开本地套接字 %1：%2。</translation>
    </message>
    <message id="ERROR_LINES_SOCKET_OF_OTHER">
        <source></source>
        <translation>属于其他用户</translation>
    </message>
    <message id="ERROR_LINES_SYSTEM_SAYS">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_NETWORK_ASKED_TOO_OFTEN">
        <source></source>
        <translation>%1 被询问得太频繁，要求稍后再来。</translation>
    </message>
    <message id="ERROR_NETWORK_AUTHORISATION_INCOMPLETE">
        <source></source>
        <translation>来源的授权缺少机密数据的名称或字段的名称。</translation>
    </message>
    <message id="ERROR_NETWORK_BODY_TOO_LARGE">
        <source></source>
        <translation>回应大于 %1 MiB；其中内容均未采用。</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_EXPIRED">
        <source></source>
        <translation>%1 的证书已于 %2 到期，或本机的时钟不准。</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_NOT_TRUSTED">
        <source></source>
        <translation>%1 的证书不是由受信任的机构签发；可以为来源指定私人的机构。</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_NOT_YET_VALID">
        <source></source>
        <translation>%1 的证书自 %2 起才有效；本机的时钟可能不准。</translation>
    </message>
    <message id="ERROR_NETWORK_CERTIFICATE_OF_OTHER">
        <source></source>
        <translation>代 %1 回应者出示的是“%2”的证书；未向其要求任何数据。</translation>
    </message>
    <message id="ERROR_NETWORK_CLOCK_OFF">
        <source></source>
        <translation>%1 的时钟与本机的时钟相差 %2 分钟。</translation>
    </message>
    <message id="ERROR_NETWORK_CUT_OFF">
        <source></source>
        <translation>%1 的回应中断；其中内容均未采用。</translation>
    </message>
    <message id="ERROR_NETWORK_EMPTY_ANSWER">
        <source></source>
        <translation>%1 的回应是空的。</translation>
    </message>
    <message id="ERROR_NETWORK_EMPTY_LIST">
        <source></source>
        <translation>%1 的列表已没有任何内容；原有的新闻仍会保留。</translation>
    </message>
    <message id="ERROR_NETWORK_EVENT_TOO_LONG">
        <source></source>
        <translation>流送来一条超过 %1 MiB 的事件；已略过。</translation>
    </message>
    <message id="ERROR_NETWORK_FIELD_WRONG">
        <source></source>
        <translation>来源的字段“%1”不能是“%2”。</translation>
    </message>
    <message id="ERROR_NETWORK_FILE_NOT_TYPED">
        <source></source>
        <translation>文件只有在用户亲自输入其地址时才能作为来源。</translation>
    </message>
    <message id="ERROR_NETWORK_FORBIDDEN">
        <source></source>
        <translation>%1 或途中的防火墙不允许此请求（状态 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_HOST_UNKNOWN">
        <source></source>
        <translation>找不到主机 %1：名称有误，或目前没有连接。</translation>
    </message>
    <message id="ERROR_NETWORK_LIST_FULL">
        <source></source>
        <translation>列表已有 %1 个来源，无法再添加。</translation>
    </message>
    <message id="ERROR_NETWORK_MAPPING_MISSING">
        <source></source>
        <translation>无法使用来源的映射文件“%1”：%2</translation>
    </message>
    <message id="ERROR_NETWORK_NOTHING_TAKEN">
        <source></source>
        <translation>%1 个项目均无法采用，第一个的原因：%2</translation>
    </message>
    <message id="ERROR_NETWORK_NOT_AUTHORISED">
        <source></source>
        <translation>%1 要求有效的授权（状态 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_NOT_REACHED">
        <source></source>
        <translation>无法连接到 %1。</translation>
    </message>
    <message id="ERROR_NETWORK_NOT_THERE">
        <source></source>
        <translation>%1 在此地址已没有内容（状态 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_NO_ADDRESS">
        <source></source>
        <translation>“%1”不是可以连接的来源地址。</translation>
    </message>
    <message id="ERROR_NETWORK_NO_SOURCE">
        <source></source>
        <translation>列表中没有来源“%1”。</translation>
    </message>
    <message id="ERROR_NETWORK_NO_STREAM">
        <source></source>
        <translation>%1 在此网址不提供新闻流（%2）。</translation>
    </message>
    <message id="ERROR_NETWORK_OTHER_FORMAT">
        <source></source>
        <translation>回应是 %1，与来源所设置的格式不符。</translation>
    </message>
    <message id="ERROR_NETWORK_PAGE_INSTEAD">
        <source></source>
        <translation>%1 给的是网页而不是新闻：“%2”。</translation>
    </message>
    <message id="ERROR_NETWORK_PORTAL_INSTEAD">
        <source></source>
        <translation>%1 转往 %2 的网页而不是新闻；需要先登录的网络常会如此。</translation>
    </message>
    <message id="ERROR_NETWORK_PRIVATE_ADDRESS">
        <source></source>
        <translation>%1 指向专用网络；只有用户亲自输入的地址才可以。</translation>
    </message>
    <message id="ERROR_NETWORK_PROXY_FAILS">
        <source></source>
        <translation>无法通过系统的代理服务器连接到 %1。</translation>
    </message>
    <message id="ERROR_NETWORK_QUIET">
        <source></source>
        <translation>%1 没有及时回应。</translation>
    </message>
    <message id="ERROR_NETWORK_REDIRECTED_TOO_OFTEN">
        <source></source>
        <translation>%1 转址超过 %2 次；可能是循环。</translation>
    </message>
    <message id="ERROR_NETWORK_REDIRECT_ELSEWHERE">
        <source></source>
        <translation>%1 转往一个不属于网页的地址。</translation>
    </message>
    <message id="ERROR_NETWORK_REDIRECT_IN_CLEAR">
        <source></source>
        <translation>%1 转往未加密的 %2；不予跟随。</translation>
    </message>
    <message id="ERROR_NETWORK_REFUSED">
        <source></source>
        <translation>%1 在此端口不接受连接。</translation>
    </message>
    <message id="ERROR_NETWORK_SECRET_IN_ADDRESS">
        <source></source>
        <translation>地址中含有用户名或密码；它们应与机密数据一起保存。</translation>
    </message>
    <message id="ERROR_NETWORK_SERVER_FAILS">
        <source></source>
        <translation>%1 目前无法回应（状态 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_SIGN_IN_NEEDED">
        <source></source>
        <translation>通往 %1 的网络要求先登录。</translation>
    </message>
    <message id="ERROR_NETWORK_SOCKET_IN_CLEAR">
        <source></source>
        <translation>连往 %1 的连接未加密；此类网址须由用户亲自输入。</translation>
    </message>
    <message id="ERROR_NETWORK_STRANGE_STATUS">
        <source></source>
        <translation>%1 的回应不是新闻（状态 %2）。</translation>
    </message>
    <message id="ERROR_NETWORK_STREAM_BROKE">
        <source></source>
        <translation>%1 的流中断；将重新连接。</translation>
    </message>
    <message id="ERROR_NETWORK_TIMED_OUT">
        <source></source>
        <translation>%1 的回应在 %2 秒后仍不完整。</translation>
    </message>
    <message id="ERROR_NETWORK_TLS_FAILED">
        <source></source>
        <translation>无法与 %1 建立加密连接。</translation>
    </message>
    <message id="ERROR_NETWORK_TOO_FAST">
        <source></source>
        <translation>%1 发送过快，来不及收录；将重新连接。</translation>
    </message>
    <message id="ERROR_QUERY_CLOSE_BRACKET">
        <source></source>
        <translation>第 %1 个字符的括号 %2 没有对应的开头。</translation>
    </message>
    <message id="ERROR_QUERY_DAY">
        <source></source>
        <translation>第 %1 个字符的“%2”不是日期；可用 2026-03-02、2026-03、“today”或 -3d。</translation>
    </message>
    <message id="ERROR_QUERY_EMPTY">
        <source></source>
        <translation>查询是空的。</translation>
    </message>
    <message id="ERROR_QUERY_FIELD_VALUE">
        <source></source>
        <translation>第 %1 个字符的字段“%2”在冒号后缺少内容，或不接受该内容。</translation>
    </message>
    <message id="ERROR_QUERY_FIELD_WITHIN">
        <source></source>
        <translation>第 %1 个字符的字段“%2”不能放在“title”或“story”字段之内。</translation>
    </message>
    <message id="ERROR_QUERY_MISSING">
        <source></source>
        <translation>第 %1 个字符处缺少要搜索的内容（“%2”）。</translation>
    </message>
    <message id="ERROR_QUERY_NEAR">
        <source></source>
        <translation>第 %1 个字符的 %2 必须放在两个词或短语之间。</translation>
    </message>
    <message id="ERROR_QUERY_NEAR_NUMBER">
        <source></source>
        <translation>第 %1 个字符的“%2”在斜线后需要 0 到 1000 的字数。</translation>
    </message>
    <message id="ERROR_QUERY_NOT_OF_HEADLINES">
        <source></source>
        <translation>第 %1 个字符的“%2”需要标题以外的内容，不能用在关键词组中。</translation>
    </message>
    <message id="ERROR_QUERY_OPEN_BRACKET">
        <source></source>
        <translation>第 %1 个字符的括号 %2 没有结束。</translation>
    </message>
    <message id="ERROR_QUERY_OPEN_QUOTE">
        <source></source>
        <translation>第 %1 个字符的引号 %2 没有结束。</translation>
    </message>
    <message id="ERROR_QUERY_OPERATOR_WORD">
        <source></source>
        <translation>第 %1 个字符的“%2”不是运算符号：空格表示“且”，| 表示“或”，- 表示“非”。要搜索这个词请加上引号。</translation>
    </message>
    <message id="ERROR_QUERY_TOO_DEEP">
        <source></source>
        <translation>第 %1 个字符的括号 %2 层数过多：最多 20 层。</translation>
    </message>
    <message id="ERROR_QUERY_TOO_LONG">
        <source></source>
        <translation>查询超过 %2 个字符（第 %1 个字符）。</translation>
    </message>
    <message id="ERROR_QUERY_TOO_MANY">
        <source></source>
        <translation>查询从第 %1 个字符（“%2”）起过多：最多 200 个文字与字段。</translation>
    </message>
    <message id="ERROR_QUERY_UNKNOWN_FIELD">
        <source></source>
        <translation>没有“%2”这个字段（第 %1 个字符）。要搜索文字时请加上引号。</translation>
    </message>
    <message id="ERROR_SESSION_CATEGORIES_NOT_CHANGED">
        <source></source>
        <translation>无法更改数据库中的分类：%1</translation>
    </message>
    <message id="ERROR_SESSION_FOLDER_NOT_MADE">
        <source></source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message id="ERROR_SESSION_GUIDE_MISSING">
        <source></source>
        <translation>找不到使用说明 %1。</translation>
    </message>
    <message id="ERROR_SESSION_MODULE_NOT_FOUND">
        <source></source>
        <translation>在 %2 和 %3 中都找不到新闻模块 %1。</translation>
    </message>
    <message id="ERROR_SESSION_MODULE_NOT_LOADED">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_BROKE_OFF">
        <source></source>
        <translation>示例新闻程序中断。%1</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_BROKE_OFF_SILENTLY">
        <source></source>
        <translation>示例新闻程序中断。</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_NOT_STARTED">
        <source></source>
        <translation>无法启动示例新闻程序 %1：%2</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_NOT_TAKEN">
        <source></source>
        <translation>示例新闻无法存入此数据库：%1</translation>
    </message>
    <message id="ERROR_SESSION_SAMPLE_STOPPED">
        <source></source>
        <translation>已停止；未保留任何示例新闻。</translation>
    </message>
    <message id="ERROR_SESSION_SETTINGS_FOLDER_NOT_MADE">
        <source></source>
        <translation>无法创建设置文件夹 %1。</translation>
    </message>
    <message id="ERROR_SESSION_UNKNOWN_SOURCE">
        <source></source>
        <translation>没有名为“%1”的来源类型。</translation>
    </message>
    <message id="ERROR_SETTINGS_FILE_NOT_READ">
        <source></source>
        <translation>设置未保存：无法读取文件 %1。</translation>
    </message>
    <message id="ERROR_SETTINGS_FILE_NOT_WRITTEN">
        <source></source>
        <translation>设置未保存：无法写入文件 %1。</translation>
    </message>
    <message id="ERROR_SETTINGS_FOLDER_NOT_MADE">
        <source></source>
        <translation>设置未保存：无法创建文件夹 %1。</translation>
    </message>
    <message id="ERROR_SETTINGS_MODULE_FILE_NOT_WRITTEN">
        <source></source>
        <translation>无法写入文件 %1：%2。</translation>
    </message>
    <message id="ERROR_SOUND_NOT_READ">
        <source></source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message id="ERROR_SOUND_NO_WAVE">
        <source></source>
        <translation>%1 不是未压缩的 WAV 文件（8 或 16 位）。</translation>
    </message>
    <message id="ERROR_SOUND_TOO_LONG">
        <source></source>
        <translation>%1 太长：音效最长 %2 秒。</translation>
    </message>
    <message id="ERROR_SOURCES_KEYCHAIN_FAILED">
        <source></source>
        <translation>钥匙串出错：%1</translation>
    </message>
    <message id="ERROR_SOURCES_KEYCHAIN_SILENT">
        <source></source>
        <translation>钥匙串没有回应。</translation>
    </message>
    <message id="ERROR_SOURCES_NO_OPML">
        <source></source>
        <translation>这不是来源清单：其根元素为 &lt;%1&gt;。</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_NOT_OPENED">
        <source></source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_NOT_WRITTEN">
        <source></source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_TOO_LARGE">
        <source></source>
        <translation>来源清单最多 %1 字节，这一份更大。</translation>
    </message>
    <message id="ERROR_SOURCES_OPML_WITHOUT_FEEDS">
        <source></source>
        <translation>清单中没有可读取的来源。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_MISSING">
        <source></source>
        <translation>找不到存放密钥的文件 %1。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_NOT_READ">
        <source></source>
        <translation>无法读取存放密钥的文件 %1：%2。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_NOT_REMOVED">
        <source></source>
        <translation>无法移除存放密钥的文件 %1：%2。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_NOT_WRITTEN">
        <source></source>
        <translation>无法写入存放密钥的文件 %1：%2。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_FILE_OPEN">
        <source></source>
        <translation>其他人可以读取或写入存放密钥的文件 %1；只有用户本人可访问时（权限 0600）才会使用。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_MISSING">
        <source></source>
        <translation>钥匙串中没有名为 %1 的密钥。</translation>
    </message>
    <message id="ERROR_SOURCES_SECRET_STAYS">
        <source></source>
        <translation>列表已按您的要求更新，但无法移除%1原有的密钥：%2</translation>
    </message>
    <message id="ERROR_STORE_BEYOND_RETENTION">
        <source></source>
        <translation>它早于本数据库所保留的新闻：自 %1 起。</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY">
        <source></source>
        <translation>分类</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_HAS_ID">
        <source></source>
        <translation>分类“%1”的编号已是 %2，不能再使用编号 %3。</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_ID_TOO_SMALL">
        <source></source>
        <translation>分类编号为 %1；编号必须从 1 开始。</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_WITHOUT_NAME">
        <source></source>
        <translation>分类没有名称。</translation>
    </message>
    <message id="ERROR_STORE_CATEGORY_WITHOUT_SERVICE">
        <source></source>
        <translation>分类不属于任何新闻服务。</translation>
    </message>
    <message id="ERROR_STORE_CHANGE_OUT_OF_RANGE">
        <source></source>
        <translation>%1 的涨跌不是数字，或大于其成交价。</translation>
    </message>
    <message id="ERROR_STORE_CODE_OF_SYMBOL">
        <source></source>
        <translation>证券代码</translation>
    </message>
    <message id="ERROR_STORE_EMPTY">
        <source></source>
        <translation>%1 为空：其中没有新闻数据库。</translation>
    </message>
    <message id="ERROR_STORE_FAULT_FOUND">
        <source></source>
        <translation>后台检查发现数据库 %1 有错误；请执行“wirepane check”查看。</translation>
    </message>
    <message id="ERROR_STORE_IDENTITY">
        <source></source>
        <translation>标识</translation>
    </message>
    <message id="ERROR_STORE_LAST_PRICE_OUT_OF_RANGE">
        <source></source>
        <translation>%1 的成交价不是 0 到 %2 的数字。</translation>
    </message>
    <message id="ERROR_STORE_NAME_OF_SYMBOL">
        <source></source>
        <translation>证券名称</translation>
    </message>
    <message id="ERROR_STORE_NEWER_VERSION">
        <source></source>
        <translation>%1 由较新版本的程序写入（数据库版本 %2；本程序最高支持版本 %3）。</translation>
    </message>
    <message id="ERROR_STORE_NEWS">
        <source></source>
        <translation>新闻</translation>
    </message>
    <message id="ERROR_STORE_CHANGE_UNREADABLE">
        <source></source>
        <translation>数据库中为它保留的内容（第 %1 行）已损坏。</translation>
    </message>
    <message id="ERROR_STORE_NEWS_GONE">
        <source></source>
        <translation>该新闻已不在数据库中。</translation>
    </message>
    <message id="ERROR_STORE_NOTHING_BEGUN">
        <source></source>
        <translation>尚未开始事务，无法加入%1。</translation>
    </message>
    <message id="ERROR_STORE_NOTHING_TO_KEEP">
        <source></source>
        <translation>尚未开始事务，无法提交。</translation>
    </message>
    <message id="ERROR_STORE_NOT_WRITABLE">
        <source></source>
        <translation>无法写入 %1：文件或其文件夹为只读。</translation>
    </message>
    <message id="ERROR_STORE_NO_COLOUR">
        <source></source>
        <translation>颜色“%1”不符合 #rrggbb 格式。</translation>
    </message>
    <message id="ERROR_STORE_NO_HEADLINE">
        <source></source>
        <translation>没有此键值的标题。</translation>
    </message>
    <message id="ERROR_STORE_NO_IDENTITY">
        <source></source>
        <translation>没有标识。</translation>
    </message>
    <message id="ERROR_STORE_NO_NUMBER_LEFT">
        <source></source>
        <translation>当日的序号已用尽。</translation>
    </message>
    <message id="ERROR_STORE_NO_SERVICE">
        <source></source>
        <translation>不属于任何新闻服务。</translation>
    </message>
    <message id="ERROR_STORE_NUMBER_TAKEN">
        <source></source>
        <translation>序号 %1 已被该新闻服务当日的另一条标题使用。</translation>
    </message>
    <message id="ERROR_STORE_OLDER_VERSION">
        <source></source>
        <translation>%1 为版本 %2；程序打开时会将其升级到版本 %3。</translation>
    </message>
    <message id="ERROR_STORE_OTHER_DATABASE">
        <source></source>
        <translation>%1 是数据库，但不是新闻数据库。</translation>
    </message>
    <message id="ERROR_STORE_POSITION">
        <source></source>
        <translation>位置</translation>
    </message>
    <message id="ERROR_STORE_QUOTE">
        <source></source>
        <translation>报价</translation>
    </message>
    <message id="ERROR_STORE_QUOTE_WITHOUT_MARKET">
        <source></source>
        <translation>报价不属于任何市场。</translation>
    </message>
    <message id="ERROR_STORE_STOPPED">
        <source></source>
        <translation>程序即将结束，不再收录。</translation>
    </message>
    <message id="ERROR_STORE_STORY">
        <source></source>
        <translation>正文</translation>
    </message>
    <message id="ERROR_STORE_SYMBOL">
        <source></source>
        <translation>证券</translation>
    </message>
    <message id="ERROR_STORE_SYMBOL_WITHOUT_CODE">
        <source></source>
        <translation>有证券没有代码。</translation>
    </message>
    <message id="ERROR_STORE_SYMBOL_WITHOUT_MARKET">
        <source></source>
        <translation>证券不属于任何市场。</translation>
    </message>
    <message id="ERROR_STORE_TIME_OUT_OF_RANGE">
        <source></source>
        <translation>时间（自 1970 年起 %1 秒）不在 1900 至 9999 年之间。</translation>
    </message>
    <message id="ERROR_STORE_TITLE">
        <source></source>
        <translation>标题</translation>
    </message>
    <message id="ERROR_STORE_TITLE_EMPTY">
        <source></source>
        <translation>标题为空。</translation>
    </message>
    <message id="ERROR_STORE_TOO_LONG">
        <source></source>
        <translation>%1有 %2 个字符，上限为 %3 个。</translation>
    </message>
    <message id="ERROR_STORE_TOO_MANY_SYMBOLS">
        <source></source>
        <translation>列有 %1 个相关证券，上限为 %2 个。</translation>
    </message>
    <message id="ERROR_STORE_VOLUME_OUT_OF_RANGE">
        <source></source>
        <translation>%1 的成交量不是 0 到 %2 的数字。</translation>
    </message>
    <message id="ERROR_STORE_WITHDRAWS_UNKNOWN">
        <source></source>
        <translation>它撤回的新闻不在数据库中。</translation>
    </message>
    <message id="ERROR_TOUR_NOT_PRINTED">
        <source></source>
        <translation>新闻未能打印并保存到 %1。</translation>
    </message>
    <message id="ERROR_TOUR_PICTURE_NOT_WRITTEN">
        <source></source>
        <translation>无法写入图片 %1。</translation>
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
        <translation>该证券没有新闻。</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_CHOOSE">
        <source></source>
        <translation>加入(&amp;A)</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_CLOSE">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_HINT">
        <source></source>
        <translation>按代码或名称搜索</translation>
    </message>
    <message id="IDS_DIALOG-CHANGE-SYMBOL_TITLE">
        <source></source>
        <translation>选择证券</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ADD_BUTTON">
        <source></source>
        <translation>加入(&amp;A) ▸</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ADD_KEYSET">
        <source></source>
        <translation>保存为新组(&amp;N)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ALERT_ME">
        <source></source>
        <translation>设置警示(&amp;M)…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ALL_NEWSTYPE">
        <source></source>
        <translation>全部</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_AND_BUTTON">
        <source></source>
        <translation>全部关键词(&amp;K)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSE">
        <source></source>
        <translation>以三十天新闻测试(&amp;O)…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_TITLE">
        <source></source>
        <translation>三十日新闻测试</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_RUNS">
        <source></source>
        <translation>测试中…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_FAILED">
        <source></source>
        <translation>无法读取新闻。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_SUMMARY">
        <source></source>
        <translation>三十天 %2 条标题中有 %1 条</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BUSIEST">
        <source></source>
        <translation>最忙的一小时：%1，%2 条</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BUDGET">
        <source></source>
        <translation>每小时至多(&amp;M)：</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_OVER">
        <source></source>
        <translation>超过的小时数：%1</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_WITHIN">
        <source></source>
        <translation>没有一小时超过。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_DAY">
        <source></source>
        <translation>日期</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_COUNT">
        <source></source>
        <translation>条数</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BROUGHT">
        <source></source>
        <translation>来自</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_EXCLUDED">
        <source></source>
        <translation>若排除</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_SAVED">
        <source></source>
        <translation>减少</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_TIME">
        <source></source>
        <translation>时间</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_HIT">
        <source></source>
        <translation>标题</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REHEARSAL_CLOSE">
        <source></source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_CAPITALS_NOTE">
        <source></source>
        <translation>标题以大写比对：英文字母请用大写（CHIPS，而不是 chips）。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_CONDITION">
        <source></source>
        <translation>匹配条件</translation>
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
        <translation>删除已存关键词(&amp;F)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_DEL_KEYSET">
        <source></source>
        <translation>删除勾选的组(&amp;D)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_EDIT_KEYSET">
        <source></source>
        <translation>保存更改(&amp;N)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ERRMSG">
        <source></source>
        <translation>请先选择一个警示词。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSKEY">
        <source></source>
        <translation>请至少添加一个关键词。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSTYPE">
        <source></source>
        <translation>请至少勾选一个新闻类别。</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_GROUP1">
        <source></source>
        <translation>关键词</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_GROUP2">
        <source></source>
        <translation>搜索关键词</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_HEADLINE_SEARCH">
        <source></source>
        <translation>标题(&amp;H)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_HEARLINE_AND_STORY_SEARCH">
        <source></source>
        <translation>标题和正文(&amp;B)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_IDOK">
        <source></source>
        <translation>搜索(&amp;E)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_KEYSET_SELALL">
        <source></source>
        <translation>勾选全部(&amp;S)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_KEYWORD_HINT">
        <source></source>
        <translation>输入关键词后按 Enter</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NEAR10FILTER">
        <source></source>
        <translation>最近十次搜索</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NEWSTYPE">
        <source></source>
        <translation>新闻类别</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NEWS_SELALL">
        <source></source>
        <translation>全部类别(&amp;T)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_OR_BUTTON">
        <source></source>
        <translation>任一关键词(&amp;Y)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_PICKER">
        <source></source>
        <translation>从所有证券中选择</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_EXCLUDE_BUTTON">
        <source></source>
        <translation>排除(&amp;X) ▸</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_NONE_OF_THESE">
        <source></source>
        <translation>不含这些关键词</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_QUERY_BUTTON">
        <source></source>
        <translation>查询式(&amp;Q)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_RANGE">
        <source></source>
        <translation>搜索范围</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_RELATION_TITLE">
        <source></source>
        <translation>关键词组</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REQDELALL">
        <source></source>
        <translation>要移除这次搜索的所有关键词吗？</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REQDELALL_KEY">
        <source></source>
        <translation>要移除这一组的所有关键词吗？</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_REQDEL_KEY">
        <source></source>
        <translation>要删除 %1 组关键词吗？</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SEARCH_CONTENTS">
        <source></source>
        <translation>关键词</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SEARCH_METHOD">
        <source></source>
        <translation>条件</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SEARCH_SCOPE">
        <source></source>
        <translation>范围</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_STORY_SEARCH">
        <source></source>
        <translation>正文(&amp;S)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SYMBOL">
        <source></source>
        <translation>证券</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_SYMBOL_HINT">
        <source></source>
        <translation>代码或名称</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_TITLE">
        <source></source>
        <translation>高级搜索</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_ADD">
        <source></source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_DEL">
        <source></source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_EDIT">
        <source></source>
        <translation>编辑(&amp;I)…</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_HINT">
        <source></source>
        <translation>以空格或逗号分隔</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_IDCANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_IDOK">
        <source></source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_ITEM_TITLE">
        <source></source>
        <translation>编辑警示词</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_WARNING_TITLE">
        <source></source>
        <translation>警示词</translation>
    </message>
    <message id="IDS_DIALOG-STORY_NEXT_BUTTON">
        <source></source>
        <translation>下一条(&amp;N)</translation>
    </message>
    <message id="IDS_DIALOG-STORY_PREV_BUTTON">
        <source></source>
        <translation>上一条(&amp;V)</translation>
    </message>
    <message id="IDS_DIALOG-STORY_PRINT">
        <source></source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message id="IDS_DIALOG-STORY_SAVEAS">
        <source></source>
        <translation>另存(&amp;S)</translation>
    </message>
    <message id="IDS_DIALOG-STORY_TITLE">
        <source></source>
        <translation>新闻内容</translation>
    </message>
    <message id="IDS_MENU_8_1">
        <source></source>
        <translation>全部新闻</translation>
    </message>
    <message id="IDS_MMSEXTENSION-MAINFRM_NEWSCTRLVIEW">
        <source></source>
        <translation>个股新闻</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BETWEEN_SOURCES">
        <source></source>
        <translation>、</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_DEALS_SEARCH">
        <source></source>
        <translation>高级搜索</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_PAGE_DOWN">
        <source></source>
        <translation>下一条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_PAGE_UP">
        <source></source>
        <translation>上一条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_RELATION_SEARCH">
        <source></source>
        <translation>关键词组</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_SEARCH">
        <source></source>
        <translation>搜索</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_SHOW_TYPE">
        <source></source>
        <translation>版面</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_BUTTON_WARNING_SEARCH">
        <source></source>
        <translation>警示词</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_CORRECTED">
        <source></source>
        <translation>更正</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_CORRECTED_AFTER_READING">
        <source></source>
        <translation>在您阅读 %1 秒之后</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_CORRECTED_NUMBERS">
        <source></source>
        <translation>更正：%1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_BEGIN_SEARCH">
        <source></source>
        <translation>到搜索框</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_KEY_SETS">
        <source></source>
        <translation>选择关键词组…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_SERVICES">
        <source></source>
        <translation>选择新闻服务</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_TERMS">
        <source></source>
        <translation>选择警示词…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_DAY">
        <source></source>
        <translation>%1 没有新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_LOOK_UP_SYMBOL">
        <source></source>
        <translation>查询证券</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_NOTHING">
        <source></source>
        <translation>这里没有新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_NOT_FOUND">
        <source></source>
        <translation>找不到%1。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_NO_SERVICE">
        <source></source>
        <translation>尚未勾选新闻服务。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_OF_SUBJECT">
        <source></source>
        <translation>没有%1的新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_QUOTED_WORD">
        <source></source>
        <translation>“%1”</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_QUOTES">
        <source></source>
        <translation>标题的相关证券，其报价显示在这里。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_READ_NEWEST">
        <source></source>
        <translation>阅读最新一条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_RELATION">
        <source></source>
        <translation>今天没有符合所勾选关键词组的新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_SEARCH">
        <source></source>
        <translation>输入要搜索的词。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_SHOW_ALL_NEWS">
        <source></source>
        <translation>看所有新闻</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_SHOW_DAY">
        <source></source>
        <translation>看 %1 的新闻</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_STORY">
        <source></source>
        <translation>选中的标题，其正文显示在这里。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EMPTY_WARNING_TERM">
        <source></source>
        <translation>没有含警示词的新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_LIST">
        <source></source>
        <translation>导出列表…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_NOT_WRITTEN">
        <source></source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_RUNNING">
        <source></source>
        <translation>正在写入列表的新闻…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_STOPPED">
        <source></source>
        <translation>已停止；未写入文件。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_UNREADABLE">
        <source></source>
        <translation>未写入 %1：无法读取新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_EXPORT_WRITTEN">
        <source></source>
        <translation>%1 条新闻已写入 %2。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_AWAITED">
        <source></source>
        <translation>正在搜索…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_COUNT">
        <source></source>
        <translation>找到 %1 条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_ENTER">
        <source></source>
        <translation>按 Enter 找出全部</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_NEWEST">
        <source></source>
        <translation>最新的 %1 条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_SINCE">
        <source></source>
        <translation>自 %1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOUND_TAKE_OUT">
        <source></source>
        <translation>不含 %1 再搜索</translation>
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
        <translation>隐藏更改</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_KEY_SET">
        <source></source>
        <translation>尚未勾选关键词组，此列表不会收到新闻。按 %1 选择。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_MATCH">
        <source></source>
        <translation>今天还没有符合所选关键词组的新闻。按 %1 改选。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_NEWS">
        <source></source>
        <translation>这里没有新闻。按 %1 重新请求。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_WARNING_TERM">
        <source></source>
        <translation>尚未选择警示词。按 %1 选择。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_NO_WARRANT_NEWS">
        <source></source>
        <translation>这一天没有权证新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_SEARCH">
        <source></source>
        <translation>按 %2 输入要搜索的文字，或按 %1 设置高级搜索。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HINT_WARNING_TERM">
        <source></source>
        <translation>警示词：%2。按 %1 搜索或改选其他警示词。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARKET_EMERGING_BOARD">
        <source></source>
        <translation>兴柜股票</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARKET_HONG_KONG">
        <source></source>
        <translation>香港股市</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARKET_STOCK_EXCHANGE">
        <source></source>
        <translation>台湾证券</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_DATE">
        <source></source>
        <translation>日期</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_EARLIER_SEARCHES">
        <source></source>
        <translation>先前的搜索</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_MARKET">
        <source></source>
        <translation>市场</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_MODES">
        <source></source>
        <translation>新闻类别页</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_SEARCH_TEXT">
        <source></source>
        <translation>搜索文字</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_STORY">
        <source></source>
        <translation>新闻内容</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NAME_SYMBOL">
        <source></source>
        <translation>证券</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NEWS_NO">
        <source></source>
        <translation>新闻编号</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NEWS_STORY">
        <source></source>
        <translation>内容：</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_AS_OF">
        <source></source>
        <translation>按较早时刻阅读</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_BEFORE_BREAK">
        <source></source>
        <translation>搜索于 %1，之后补入了断线期间的新闻：重新搜索</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_FILTERED">
        <source></source>
        <translation>只列出符合关键词组的新闻：全部显示</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_NARROWED">
        <source></source>
        <translation>只找 %1 的新闻：改找全部</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_NOTHING_NEW">
        <source></source>
        <translation>所有来源自 %1 起没有新内容</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_SILENT">
        <source></source>
        <translation>%1 自 %2 起没有回应</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTICE_UNFILTERED">
        <source></source>
        <translation>尚未以关键词组筛选：立即筛选</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_DAYS">
        <source></source>
        <translation>其他日期：%1 条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_SERVICES">
        <source></source>
        <translation>其他新闻来源：%1 条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_STORIES">
        <source></source>
        <translation>连同正文：%1 条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_OFFER_WITHOUT">
        <source></source>
        <translation>去掉“%1”：%2 条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_ASK_DELETE">
        <source></source>
        <translation>要删除搜索“%1”吗？</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_AS_ALERT">
        <source></source>
        <translation>设置警示…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_AS_KEY_SET">
        <source></source>
        <translation>用作关键词组</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_AS_WARNING">
        <source></source>
        <translation>用作警示词</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_DELETE">
        <source></source>
        <translation>删除</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_EXPORT">
        <source></source>
        <translation>导出…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_FILES">
        <source></source>
        <translation>已存的搜索 (*.txt)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_FILE_FAILED">
        <source></source>
        <translation>%1：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_FULL">
        <source></source>
        <translation>最多只能有 %1 个搜索。请先删除一些。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_IMPORT">
        <source></source>
        <translation>导入…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_MANAGE">
        <source></source>
        <translation>管理已存的搜索</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NAME">
        <source></source>
        <translation>搜索名称：</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NAME_TWICE">
        <source></source>
        <translation>第 %1 行：前面已有名为“%2”的一行。未导入任何搜索。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NOT_TEXT">
        <source></source>
        <translation>第 %1 行不是 UTF-8 文字。未导入任何搜索。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NO_NAME">
        <source></source>
        <translation>第 %1 行的搜索前面没有名称及 Tab 字符。未导入任何搜索。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_NO_SEARCH">
        <source></source>
        <translation>第 %1 行：“%2”后面不是搜索条件。未导入任何搜索。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_REPLACE">
        <source></source>
        <translation>已有名为“%1”的搜索。要替换吗？</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_SAVE">
        <source></source>
        <translation>保存此搜索…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_TODAY">
        <source></source>
        <translation>今日 %1 条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_TOO_MANY">
        <source></source>
        <translation>第 %1 行：最多只能有 %2 个搜索。未导入任何搜索。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SAVED_WRONG_QUERY">
        <source></source>
        <translation>第 %1 行：%2未导入任何搜索。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SEVERAL_SOURCES">
        <source></source>
        <translation>由以下来源提供：%1</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_SHOW_CHANGES">
        <source></source>
        <translation>显示更改</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_COPY">
        <source></source>
        <translation>复制</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_IN_WINDOW">
        <source></source>
        <translation>在窗口中打开</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_LARGER">
        <source></source>
        <translation>放大文字</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_PIN">
        <source></source>
        <translation>保留此窗口</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_SEARCH">
        <source></source>
        <translation>搜索“%1”</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_SELECT_ALL">
        <source></source>
        <translation>全选</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STORY_SMALLER">
        <source></source>
        <translation>缩小文字</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_AFTERDAYS">
        <source></source>
        <translation>所选日期晚于今天。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ALL_SERVICES">
        <source></source>
        <translation>全部新闻来源</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_BETWEEN_NAMES">
        <source></source>
        <translation>、</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CATEGORY">
        <source></source>
        <translation>分类</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CATEGORY_NEWS">
        <source></source>
        <translation>分类新闻</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CHARACTERS_REPLACED">
        <source></source>
        <translation>有 %1 个字符不在 950 代码页内，在 %2 中以空心方块代替。若要保留，请另存为 UTF-8 文本文件。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CLEAR_SERVICE">
        <source></source>
        <translation>已开始新的新闻日。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_DETAILED_NEWS_DATA">
        <source></source>
        <translation>新闻详细资料</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_DETAILED_STORY">
        <source></source>
        <translation>详细内容(&amp;O)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_FILE_FILTER">
        <source></source>
        <translation>文本文件</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_FILE_FILTER_UTF8">
        <source></source>
        <translation>UTF-8 文本文件，保留所有字符</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INSOMEDAYS">
        <source></source>
        <translation> 天内的日期。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_PASTE">
        <source></source>
        <translation>此处不可用 Shift+Insert 粘贴。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_SEARCH">
        <source></source>
        <translation>请输入搜索关键词。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_VALUE">
        <source></source>
        <translation>搜索文字不可含空格。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALID_DATE1">
        <source></source>
        <translation>这一天没有新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_LARGEST_MOVE">
        <source></source>
        <translation>最大变动</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_LARGEST_MOVE_TIP">
        <source></source>
        <translation>其后价格离当时最远的变动</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_LEFT_OUT">
        <source></source>
        <translation>没有正文而略去：%1 则</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS">
        <source></source>
        <translation>新闻</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWSPRINT">
        <source></source>
        <translation>新闻打印</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_CLASS_NOT_FOUND">
        <source></source>
        <translation>此分类没有新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_NOT_FOUND">
        <source></source>
        <translation>没有找到符合条件的新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_SEARCHING">
        <source></source>
        <translation>正在搜索：</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_TITLE">
        <source></source>
        <translation>标题：</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NOTHING_TO_PUT_OUT">
        <source></source>
        <translation>没有输出任何内容：尚无正文。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_CODE_PAGE">
        <source></source>
        <translation>此系统无法写出 950 代码页，请选用 UTF-8 文本文件</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_NEWS_STORY">
        <source></source>
        <translation>本条新闻没有正文。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_SUCH_PAPER">
        <source></source>
        <translation>没有名为 %1 的纸张</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_OFFLINE_SINCE">
        <source></source>
        <translation>离线，自</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLYSELECT">
        <source></source>
        <translation>只能选择最近 </translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLY_THIS">
        <source></source>
        <translation>只选这个</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLY_THIS_SERVICE">
        <source></source>
        <translation>空格键勾选，Shift+空格键只选这个</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRICE_THEN">
        <source></source>
        <translation>当时价格</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRICE_THEN_TIP">
        <source></source>
        <translation>消息发布时的价格及其后的变动</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINTER_GONE">
        <source></source>
        <translation>无法连接打印机</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINT_FAILED">
        <source></source>
        <translation>新闻无法打印到 %1：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARK_READ">
        <source></source>
        <translation>标为已读(&amp;M)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARK_UNREAD">
        <source></source>
        <translation>标为未读(&amp;U)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_MARK_ALL_READ">
        <source></source>
        <translation>全部标为已读(&amp;K)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NOTHING_MARKED">
        <source></source>
        <translation>未作标记：新闻数据库只能读取。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SHOW_PRICES">
        <source></source>
        <translation>显示发布后价格</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TURN_FOLD">
        <source></source>
        <translation>折叠或展开同类新闻(&amp;B)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_FOLDED_STATE">
        <source></source>
        <translation>其下已折叠 %1 条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_UNFOLDED_STATE">
        <source></source>
        <translation>其下已展开 %1 条</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HOLD_LIST">
        <source></source>
        <translation>冻结列表(&amp;L)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HELD_LIST">
        <source></source>
        <translation>已冻结</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HELD_WAITING">
        <source></source>
        <translation>%1 条等候中</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_HELD_MATCHING">
        <source></source>
        <translation>%1 条等候中，%2 条符合</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_LET_LIST_GO">
        <source></source>
        <translation>%1，恢复更新</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_NEW_ABOVE">
        <source></source>
        <translation>%1 条新闻</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_GO_TO_NEWEST">
        <source></source>
        <translation>%1，前往最新</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_WITH_UNREAD">
        <source></source>
        <translation>%1，%2 条未读</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STAR">
        <source></source>
        <translation>加星标(&amp;A)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STATE_UNREAD">
        <source></source>
        <translation>未读</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STATE_STARRED">
        <source></source>
        <translation>已加星标</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STATE_READ_BEFORE">
        <source></source>
        <translation>您读过之后已更正</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINT_NEWS">
        <source></source>
        <translation>打印(&amp;P)…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PS">
        <source></source>
        <translation>（全文完）</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PUT_OUT_READY">
        <source></source>
        <translation>先输出已齐全的 %1 则</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER">
        <source></source>
        <translation>补发中…</translation>
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
        <translation>%1 分钟前</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_HOURS_AGO">
        <source></source>
        <translation>%1 小时前</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_DAYS_AGO">
        <source></source>
        <translation>%1 天前</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER_HEADLINELIST">
        <source></source>
        <translation>重新载入标题(&amp;H)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER_STORY">
        <source></source>
        <translation>重新载入正文(&amp;R)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_REINPUT">
        <source></source>
        <translation>关键词不能含有 AND 或 OR，请重新输入。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RELATIONSEARCH_NEWS">
        <source></source>
        <translation>关联新闻</translation>
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
        <translation>另存为(&amp;S)…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SAVE_FAILED">
        <source></source>
        <translation>新闻无法保存到 %1：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SEARCH_AS_TEXT">
        <source></source>
        <translation>要作为普通文字搜索吗？</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SEARCH_NEWS">
        <source></source>
        <translation>新闻搜索</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SELECT_NEWS_SERVICE">
        <source></source>
        <translation>新闻来源</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SERVICES_AS_BEFORE">
        <source></source>
        <translation>恢复原来的勾选</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SHOW_CATEGORY">
        <source></source>
        <translation>显示分类栏(&amp;C)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_STOP_WAITING">
        <source></source>
        <translation>不再等待打印或保存</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS">
        <source></source>
        <translation>个股新闻</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS_NOT_FOUND">
        <source></source>
        <translation>该证券没有新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TIME">
        <source></source>
        <translation>时间</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TITLE">
        <source></source>
        <translation>标题</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TODAY">
        <source></source>
        <translation>今天</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PREVIEW">
        <source></source>
        <translation>等待打印预览，尚缺 %1 则</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_CAPTION">
        <source></source>
        <translation>打印预览</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_MAKING">
        <source></source>
        <translation>正在准备页面…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_PAGE">
        <source></source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_PREVIOUS_PAGE">
        <source></source>
        <translation>上一页</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_NEXT_PAGE">
        <source></source>
        <translation>下一页</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_SMALLER">
        <source></source>
        <translation>缩小</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_LARGER">
        <source></source>
        <translation>放大</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_FIT_WIDTH">
        <source></source>
        <translation>适合页宽(&amp;W)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_WHOLE_PAGE">
        <source></source>
        <translation>整页(&amp;H)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_PREVIEW_CLOSE">
        <source></source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINTING">
        <source></source>
        <translation>正在打印：%1%</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SAVING">
        <source></source>
        <translation>正在保存：%1%</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PRINT">
        <source></source>
        <translation>等待打印，尚缺 %1 则</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_SAVE">
        <source></source>
        <translation>等待保存，尚缺 %1 则</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAIT_FOR_UPDATE">
        <source></source>
        <translation>新闻内容更新中，请稍候。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WARNINGSEARCH_NEWS">
        <source></source>
        <translation>警示新闻</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WARRANT_NEWS">
        <source></source>
        <translation>权证新闻</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_WITHDRAWN">
        <source></source>
        <translation>发布者于 %1 撤回</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TIP_WITHDRAWN_WHY">
        <source></source>
        <translation>发布者于 %1 撤回：%2</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_TURN_CHANGES">
        <source></source>
        <translation>显示或隐藏更改</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_WITHDRAWN">
        <source></source>
        <translation>撤回</translation>
    </message>
    <message id="IDS_QUOTE-LIST_CHANGE">
        <source></source>
        <translation>涨跌</translation>
    </message>
    <message id="IDS_QUOTE-LIST_CODE">
        <source></source>
        <translation>代码</translation>
    </message>
    <message id="IDS_QUOTE-LIST_LAST">
        <source></source>
        <translation>成交</translation>
    </message>
    <message id="IDS_QUOTE-LIST_NAME">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="IDS_QUOTE-LIST_PERCENT">
        <source></source>
        <translation>涨跌幅</translation>
    </message>
    <message id="IDS_QUOTE-LIST_VOLUME">
        <source></source>
        <translation>成交量</translation>
    </message>
    <message id="IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE">
        <source></source>
        <translation>相关证券</translation>
    </message>
    <message id="IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE_NONE">
        <source></source>
        <translation>这则新闻没有相关证券。</translation>
    </message>
    <message id="IDS_SINGLETON-STRING_FONTNAME">
        <source></source>
        <translation>Noto Sans Mono CJK SC</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_YESTERDAY">
        <source></source>
        <translation>昨天</translation>
    </message>
    <message id="TERMINAL_ALERTS_OPEN">
        <source></source>
        <translation>打开警示</translation>
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
        <translation> 条/小时</translation>
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
        <translation>关闭</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_HEADLINE">
        <source></source>
        <translation>标题</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_OUTCOME">
        <source></source>
        <translation>处理结果</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_RULE">
        <source></source>
        <translation>规则</translation>
    </message>
    <message id="TERMINAL_ALERT_COLUMN_TIME">
        <source></source>
        <translation>时间</translation>
    </message>
    <message id="TERMINAL_ALERT_COUNT">
        <source></source>
        <translation>%1 条警示</translation>
    </message>
    <message id="TERMINAL_ALERT_DISCONNECTED">
        <source></source>
        <translation>未提示：未连接</translation>
    </message>
    <message id="TERMINAL_ALERT_DUPLICATE">
        <source></source>
        <translation>未提示：一小时内已有相同内容</translation>
    </message>
    <message id="TERMINAL_ALERT_LATE">
        <source></source>
        <translation>未提示：新闻迟到</translation>
    </message>
    <message id="TERMINAL_ALERT_LOOKS_FOR">
        <source></source>
        <translation>查找(&amp;L)</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED">
        <source></source>
        <translation>规则「%1」比对到标题中的「%2」。</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_AT">
        <source></source>
        <translation>比对 %1</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_BOTH">
        <source></source>
        <translation>规则「%1」比对到标题中的「%2」和正文中的「%3」。</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_OTHER">
        <source></source>
        <translation>规则「%1」比对到商品、类别或新闻服务。</translation>
    </message>
    <message id="TERMINAL_ALERT_MATCHED_STORY">
        <source></source>
        <translation>规则「%1」比对到正文中的「%2」。</translation>
    </message>
    <message id="TERMINAL_ALERT_MORE">
        <source></source>
        <translation>另有 %1 条</translation>
    </message>
    <message id="TERMINAL_ALERT_NONE">
        <source></source>
        <translation>尚无警示。规则比对到的新闻会即时列在这里，并说明原因。</translation>
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
        <translation>仅限连接时(&amp;C)</translation>
    </message>
    <message id="TERMINAL_ALERT_OVER_BUDGET">
        <source></source>
        <translation>%1（每小时超过 %2 条）</translation>
    </message>
    <message id="TERMINAL_ALERT_PAUSE">
        <source></source>
        <translation>未提示：规则的间隔时间内</translation>
    </message>
    <message id="TERMINAL_ALERT_PAUSE_OF">
        <source></source>
        <translation>两次之间隔(&amp;P)</translation>
    </message>
    <message id="TERMINAL_ALERT_PUBLISHED">
        <source></source>
        <translation>发布 %1</translation>
    </message>
    <message id="TERMINAL_ALERT_QUIET_FROM">
        <source></source>
        <translation>勿扰时段自(&amp;Q)</translation>
    </message>
    <message id="TERMINAL_ALERT_QUIET_HOURS">
        <source></source>
        <translation>未提示：勿扰时段</translation>
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
        <translation>以三十天新闻测试(&amp;Y)…</translation>
    </message>
    <message id="TERMINAL_ALERT_REMOVE">
        <source></source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message id="TERMINAL_ALERT_RULES">
        <source></source>
        <translation>警示规则</translation>
    </message>
    <message id="TERMINAL_ALERT_RULES_HELP">
        <source></source>
        <translation>每条进来的标题都会以这些规则比对，与窗口显示的内容无关。未勾选的规则只列在警示中，不会提示。</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_INCOMPLETE">
        <source></source>
        <translation>规则需要名称与要查找的内容。</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_NAME">
        <source></source>
        <translation>规则(&amp;R)</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_OFF">
        <source></source>
        <translation>未提示：规则已关闭</translation>
    </message>
    <message id="TERMINAL_ALERT_RULE_TWICE">
        <source></source>
        <translation>有两个名为「%1」的规则。</translation>
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
        <translation>钟声</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_CHOOSE">
        <source></source>
        <translation>选择音效</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_DESKTOP">
        <source></source>
        <translation>桌面音效</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_FILE">
        <source></source>
        <translation>文件…</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_FILES">
        <source></source>
        <translation>音效 (*.wav)</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_KNOCK">
        <source></source>
        <translation>敲击声</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_NONE">
        <source></source>
        <translation>无</translation>
    </message>
    <message id="TERMINAL_ALERT_SOUND_PING">
        <source></source>
        <translation>清脆声</translation>
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
        <translation>警示的新闻内容</translation>
    </message>
    <message id="TERMINAL_ALERT_TAG">
        <source></source>
        <translation>标签(&amp;T)</translation>
    </message>
    <message id="TERMINAL_ALERT_TEST">
        <source></source>
        <translation>测试(&amp;E)</translation>
    </message>
    <message id="TERMINAL_ALERT_TINT">
        <source></source>
        <translation>列表中的颜色(&amp;U)</translation>
    </message>
    <message id="TERMINAL_ALERT_TOAST">
        <source></source>
        <translation>显示在窗口角落(&amp;H)</translation>
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
        <translation>直到关闭</translation>
    </message>
    <message id="TERMINAL_APP_TITLE">
        <source></source>
        <translation>Wirepane</translation>
    </message>
    <message id="TERMINAL_ARRANGE_COLUMNS">
        <source></source>
        <translation>并排(&amp;S)</translation>
    </message>
    <message id="TERMINAL_ARRANGE_ROWS">
        <source></source>
        <translation>上下排列(&amp;O)</translation>
    </message>
    <message id="TERMINAL_ARRANGE_TABS">
        <source></source>
        <translation>标签页(&amp;T)</translation>
    </message>
    <message id="TERMINAL_AS_OF">
        <source></source>
        <translation>时点 %1</translation>
    </message>
    <message id="TERMINAL_BLIND_BOTH">
        <source></source>
        <translation>%1%2</translation>
    </message>
    <message id="TERMINAL_BLIND_CUT_OFF">
        <source></source>
        <translation>%1 至 %2 连接中断。</translation>
    </message>
    <message id="TERMINAL_BLIND_LATE">
        <source></source>
        <translation>其间的 %1 则标题迟到，符合警示规则：%2。</translation>
    </message>
    <message id="TERMINAL_BLIND_MISSING">
        <source></source>
        <translation>按 %2 的编号，尚缺 %1 条：%3。</translation>
    </message>
    <message id="TERMINAL_BLIND_NOTHING">
        <source></source>
        <translation>其间的标题尚未补到。</translation>
    </message>
    <message id="TERMINAL_BLIND_SOURCE">
        <source></source>
        <translation>%1 自 %2 至 %3 没有回应。</translation>
    </message>
    <message id="TERMINAL_BREAKING_NEWS">
        <source></source>
        <translation>即时新闻窗口(&amp;B)</translation>
    </message>
    <message id="TERMINAL_CANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="TERMINAL_CLOSE_BUTTON">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="TERMINAL_CLOSE_VIEW">
        <source></source>
        <translation>关闭窗口(&amp;C)</translation>
    </message>
    <message id="TERMINAL_DATED_AHEAD">
        <source></source>
        <translation>%1 的新闻时间在未来（%2）：来源或本机的时钟不准。</translation>
    </message>
    <message id="TERMINAL_DUPLICATE_VIEW">
        <source></source>
        <translation>复制窗口(&amp;D)</translation>
    </message>
    <message id="TERMINAL_EMPTY_DESK">
        <source></source>
        <translation>没有打开的窗口。按 Ctrl+N 新建。</translation>
    </message>
    <message id="TERMINAL_EXCHANGE_ANNOUNCEMENTS">
        <source></source>
        <translation>上市公司重大信息</translation>
    </message>
    <message id="TERMINAL_EXCHANGE_PUBLISHER">
        <source></source>
        <translation>台湾证券交易所</translation>
    </message>
    <message id="TERMINAL_FEED_LATE">
        <source></source>
        <translation>实时 – %1 条新闻延迟送达</translation>
    </message>
    <message id="TERMINAL_FEED_LIVE">
        <source></source>
        <translation>实时</translation>
    </message>
    <message id="TERMINAL_FEED_OFFLINE_SINCE">
        <source></source>
        <translation>离线（自 %1）</translation>
    </message>
    <message id="TERMINAL_FEED_ONLY_READ">
        <source></source>
        <translation>只读</translation>
    </message>
    <message id="TERMINAL_FEED_RECONNECTING">
        <source></source>
        <translation>重新连接中…</translation>
    </message>
    <message id="TERMINAL_FEED_SAMPLE">
        <source></source>
        <translation>示例新闻 – 内容均为虚构</translation>
    </message>
    <message id="TERMINAL_FLOAT_BUTTON">
        <source></source>
        <translation>浮动／停靠</translation>
    </message>
    <message id="TERMINAL_FLOAT_VIEW">
        <source></source>
        <translation>浮动／停靠(&amp;F)</translation>
    </message>
    <message id="TERMINAL_COMPACT_ROWS">
        <source></source>
        <translation>紧凑行距(&amp;R)</translation>
    </message>
    <message id="TERMINAL_FONT_LARGER">
        <source></source>
        <translation>放大字体(&amp;L)</translation>
    </message>
    <message id="TERMINAL_FONT_SMALLER">
        <source></source>
        <translation>缩小字体(&amp;S)</translation>
    </message>
    <message id="TERMINAL_GO_TO_SYMBOL">
        <source></source>
        <translation>输入代码(&amp;Y)…</translation>
    </message>
    <message id="TERMINAL_GUIDE">
        <source></source>
        <translation>使用手册(&amp;U)</translation>
    </message>
    <message id="TERMINAL_GUIDE_TITLE">
        <source></source>
        <translation>使用手册</translation>
    </message>
    <message id="TERMINAL_KEYS">
        <source></source>
        <translation>按键一览(&amp;K)</translation>
    </message>
    <message id="TERMINAL_KEYS_TITLE">
        <source></source>
        <translation>按键一览</translation>
    </message>
    <message id="TERMINAL_ABOUT">
        <source></source>
        <translation>关于 Wirepane(&amp;A)</translation>
    </message>
    <message id="TERMINAL_ABOUT_TEXT">
        <source></source>
        <translation>Wirepane %1
阅读证券市场新闻：实时来源与文件。</translation>
    </message>
    <message id="TERMINAL_FILLING_SAMPLE">
        <source></source>
        <translation>正在准备今天的示例新闻，内容均为虚构。</translation>
    </message>
    <message id="TERMINAL_FIRST_STEPS">
        <source></source>
        <translation>%1 阅读下一条新闻    %2 搜索    %3 导入新闻    %4 显示所有按键</translation>
    </message>
    <message id="TERMINAL_FIRST_STEPS_HIDE">
        <source></source>
        <translation>不再显示</translation>
    </message>
    <message id="TERMINAL_HEADLINE_COUNT">
        <source></source>
        <translation>%1 条新闻</translation>
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
        <translation>日志(&amp;D)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY_HELP">
        <source></source>
        <translation>日志记下每个视图在何时显示了哪些标题与正文，您打开、搜索、标记、打印及保存了什么，以及哪些警示已通知及看过；并记下来源、收到及上屏幕的时刻、您的用户名与本机名称。日志在文件 %1 中，保留到您删除该文件为止，程序不会从中移除任何内容。每条记录都与前一条封在一起，事后的改动会显现出来。</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY_KEEP">
        <source></source>
        <translation>保留日志(&amp;K)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_DIARY_WORDS">
        <source></source>
        <translation>记下搜索的字词(&amp;W)</translation>
    </message>
    <message id="TERMINAL_SOURCE_DELAYS_OF">
        <source></source>
        <translation>最近一小时 %1 条：半数以内、百分之九十九以内、最长</translation>
    </message>
    <message id="TERMINAL_SOURCE_TO_RECEIPT">
        <source></source>
        <translation>发布至收到：%1、%2、%3</translation>
    </message>
    <message id="TERMINAL_SOURCE_TO_STORE">
        <source></source>
        <translation>收到至存入：%1、%2、%3</translation>
    </message>
    <message id="TERMINAL_TINT_BLUE">
        <source></source>
        <translation>蓝</translation>
    </message>
    <message id="TERMINAL_TINT_CYAN">
        <source></source>
        <translation>青</translation>
    </message>
    <message id="TERMINAL_TINT_GREEN">
        <source></source>
        <translation>绿</translation>
    </message>
    <message id="TERMINAL_TINT_NONE">
        <source></source>
        <translation>无</translation>
    </message>
    <message id="TERMINAL_TINT_ORANGE">
        <source></source>
        <translation>橙</translation>
    </message>
    <message id="TERMINAL_TINT_RED">
        <source></source>
        <translation>红</translation>
    </message>
    <message id="TERMINAL_TINT_VIOLET">
        <source></source>
        <translation>紫</translation>
    </message>
    <message id="TERMINAL_UNREAD_OF">
        <source></source>
        <translation>%1 条未读</translation>
    </message>
    <message id="TERMINAL_HOURS_AGO">
        <source></source>
        <translation>%1 小时前</translation>
    </message>
    <message id="TERMINAL_IMPORT_ALL_KINDS">
        <source></source>
        <translation>新闻与表格</translation>
    </message>
    <message id="TERMINAL_IMPORT_ANY_FILE">
        <source></source>
        <translation>所有文件</translation>
    </message>
    <message id="TERMINAL_IMPORT_CANCELLED">
        <source></source>
        <translation>导入已取消。此前已导入的新闻仍会保留。</translation>
    </message>
    <message id="TERMINAL_IMPORT_COMPLETE">
        <source></source>
        <translation>导入完成。</translation>
    </message>
    <message id="TERMINAL_IMPORT_FAILED">
        <source></source>
        <translation>导入失败。</translation>
    </message>
    <message id="TERMINAL_IMPORT_LEFT_OUT">
        <source></source>
        <translation>还有 %1 行，可在控制台以 wirepane import 查看。</translation>
    </message>
    <message id="TERMINAL_IMPORT_NEWS">
        <source></source>
        <translation>导入新闻(&amp;I)…</translation>
    </message>
    <message id="TERMINAL_IMPORT_NOTHING_RECENT">
        <source></source>
        <translation>这些新闻都不在最近 255 天之内，须按当时的时点阅读。</translation>
    </message>
    <message id="TERMINAL_IMPORT_NOT_STARTED">
        <source></source>
        <translation>无法启动导入程序。</translation>
    </message>
    <message id="TERMINAL_IMPORT_PARTIAL">
        <source></source>
        <translation>导入完成，但有部分内容无法导入。</translation>
    </message>
    <message id="TERMINAL_IMPORT_READ_AS_OF">
        <source></source>
        <translation>阅读 %1 年 %2 月 %3 日的新闻(&amp;R)</translation>
    </message>
    <message id="TERMINAL_IMPORT_RUNNING">
        <source></source>
        <translation>正在导入新闻。若取消，已导入的新闻仍会保留。</translation>
    </message>
    <message id="TERMINAL_IMPORT_TITLE">
        <source></source>
        <translation>导入新闻</translation>
    </message>
    <message id="TERMINAL_INDEXING_STORE">
        <source></source>
        <translation>正在重建新闻的搜索索引，更新后只需进行一次。</translation>
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
        <translation>最新一条 %1 · %2</translation>
    </message>
    <message id="TERMINAL_LINK_GROUP">
        <source></source>
        <translation>组 &amp;%1</translation>
    </message>
    <message id="TERMINAL_LINK_HINT">
        <source></source>
        <translation>同组窗口跟随同一代码</translation>
    </message>
    <message id="TERMINAL_LINK_NONE">
        <source></source>
        <translation>不联动(&amp;N)</translation>
    </message>
    <message id="TERMINAL_MENU_ARRANGE">
        <source></source>
        <translation>排列(&amp;A)</translation>
    </message>
    <message id="TERMINAL_MENU_FILE">
        <source></source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message id="TERMINAL_MENU_HELP">
        <source></source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message id="TERMINAL_MENU_LANGUAGE">
        <source></source>
        <translation>语言(&amp;G)</translation>
    </message>
    <message id="TERMINAL_MENU_LINK">
        <source></source>
        <translation>联动组(&amp;K)</translation>
    </message>
    <message id="TERMINAL_MENU_NEWS">
        <source></source>
        <translation>新闻(&amp;N)</translation>
    </message>
    <message id="TERMINAL_MENU_SCHEME">
        <source></source>
        <translation>配色(&amp;C)</translation>
    </message>
    <message id="TERMINAL_MENU_VIEW">
        <source></source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message id="TERMINAL_MENU_VIEWS">
        <source></source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message id="TERMINAL_MINUTES_AGO">
        <source></source>
        <translation>%1 分钟前</translation>
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
        <translation>后一天(&amp;T)</translation>
    </message>
    <message id="TERMINAL_NEWS_LAYOUT">
        <source></source>
        <translation>更改布局(&amp;L)</translation>
    </message>
    <message id="TERMINAL_NEWS_NEXT_PAGE">
        <source></source>
        <translation>下一条(&amp;N)</translation>
    </message>
    <message id="TERMINAL_NEWS_MARK_READ">
        <source></source>
        <translation>标为已读(&amp;M)</translation>
    </message>
    <message id="TERMINAL_NEWS_MARK_UNREAD">
        <source></source>
        <translation>标为未读(&amp;U)</translation>
    </message>
    <message id="TERMINAL_NEWS_STAR">
        <source></source>
        <translation>加星标(&amp;A)</translation>
    </message>
    <message id="TERMINAL_NEWS_MARK_ALL_READ">
        <source></source>
        <translation>全部标为已读(&amp;K)</translation>
    </message>
    <message id="TERMINAL_NEWS_OPEN_IN_WINDOW">
        <source></source>
        <translation>在窗口中打开(&amp;W)</translation>
    </message>
    <message id="TERMINAL_NEWS_PREVIOUS_PAGE">
        <source></source>
        <translation>上一条(&amp;P)</translation>
    </message>
    <message id="TERMINAL_NEWS_SEARCH">
        <source></source>
        <translation>搜索(&amp;S)…</translation>
    </message>
    <message id="TERMINAL_NEWS_SERVICES">
        <source></source>
        <translation>新闻来源(&amp;R)…</translation>
    </message>
    <message id="TERMINAL_NEWS_SOURCES">
        <source></source>
        <translation>来源(&amp;O)…</translation>
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
        <translation>新建个股新闻窗口(&amp;M)</translation>
    </message>
    <message id="TERMINAL_NEW_VIEW">
        <source></source>
        <translation>新建窗口(&amp;N)</translation>
    </message>
    <message id="TERMINAL_NEXT_VIEW">
        <source></source>
        <translation>下一个窗口(&amp;X)</translation>
    </message>
    <message id="TERMINAL_NO_CHINESE_FONT">
        <source></source>
        <translation>未安装中文字体，中文会显示为方块。 No installed font has Chinese characters: they are shown as boxes. Install one, such as the package fonts-noto-cjk.</translation>
    </message>
    <message id="TERMINAL_NO_SOURCES">
        <source></source>
        <translation>没有开启的来源</translation>
    </message>
    <message id="TERMINAL_NO_SOURCES_ADD">
        <source></source>
        <translation>添加…</translation>
    </message>
    <message id="TERMINAL_PRESENT">
        <source></source>
        <translation>回到现在</translation>
    </message>
    <message id="TERMINAL_PREVIOUS_VIEW">
        <source></source>
        <translation>上一个窗口(&amp;P)</translation>
    </message>
    <message id="TERMINAL_PRINT_NEWS">
        <source></source>
        <translation>打印新闻(&amp;P)…</translation>
    </message>
    <message id="TERMINAL_PRINT_PREVIEW">
        <source></source>
        <translation>打印预览(&amp;V)…</translation>
    </message>
    <message id="TERMINAL_QUIT">
        <source></source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message id="TERMINAL_OWN_STORE">
        <source></source>
        <translation>读自己的新闻(&amp;O)</translation>
    </message>
    <message id="TERMINAL_SAMPLE_STORE">
        <source></source>
        <translation>读示范新闻(&amp;A)</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF">
        <source></source>
        <translation>指定时点阅读(&amp;R)…</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_EXPLANATION">
        <source></source>
        <translation>终端将以此时点为现在，显示当时的新闻；之后的新闻到时才出现。</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_NOW">
        <source></source>
        <translation>当前时间(&amp;N)</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_READ">
        <source></source>
        <translation>阅读(&amp;R)</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_TITLE">
        <source></source>
        <translation>指定时点阅读</translation>
    </message>
    <message id="TERMINAL_RENAME_PROMPT">
        <source></source>
        <translation>标题（空白：按窗口内容）</translation>
    </message>
    <message id="TERMINAL_RENAME_TITLE">
        <source></source>
        <translation>重命名窗口</translation>
    </message>
    <message id="TERMINAL_RENAME_VERB">
        <source></source>
        <translation>重命名</translation>
    </message>
    <message id="TERMINAL_RENAME_VIEW">
        <source></source>
        <translation>重命名(&amp;R)…</translation>
    </message>
    <message id="TERMINAL_RISING_GREEN">
        <source></source>
        <translation>绿色</translation>
    </message>
    <message id="TERMINAL_RISING_RED">
        <source></source>
        <translation>红色</translation>
    </message>
    <message id="TERMINAL_SAVE_NEWS">
        <source></source>
        <translation>另存新闻(&amp;S)…</translation>
    </message>
    <message id="TERMINAL_SCHEME_CONTRAST">
        <source></source>
        <translation>高对比度(&amp;H)</translation>
    </message>
    <message id="TERMINAL_SCHEME_DARK">
        <source></source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message id="TERMINAL_SCHEME_LIGHT">
        <source></source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message id="TERMINAL_SEARCH_BACKLOG">
        <source></source>
        <translation>搜索暂缺 %1 条标题：索引建立中</translation>
    </message>
    <message id="TERMINAL_SEARCH_RENEWAL">
        <source></source>
        <translation>搜索仍按旧规则：新索引已建立 %1%</translation>
    </message>
    <message id="TERMINAL_SECONDS_AGO">
        <source></source>
        <translation>%1 秒前</translation>
    </message>
    <message id="TERMINAL_SERVICES_COUNT">
        <source></source>
        <translation>新闻来源 %1/%2</translation>
    </message>
    <message id="TERMINAL_SETTINGS">
        <source></source>
        <translation>设置(&amp;E)…</translation>
    </message>
    <message id="TERMINAL_SETTINGS_BOTH_SEARCHES">
        <source></source>
        <translation>两者同时开启时，全部新闻与关键词组列表不会自动载入，也不接收实时新闻。若非仅用于搜索，请关闭其中之一。</translation>
    </message>
    <message id="TERMINAL_SETTINGS_FONT">
        <source></source>
        <translation>字体大小(&amp;F)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_GENERAL">
        <source></source>
        <translation>常规(&amp;G)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_LANGUAGE">
        <source></source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_NEWS">
        <source></source>
        <translation>新闻(&amp;N)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_NORMAL_SEARCH">
        <source></source>
        <translation>关键词组(&amp;K)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_NORMAL_SEARCH_HELP">
        <source></source>
        <translation>增加标签页，列出符合关键词组的当日新闻。</translation>
    </message>
    <message id="TERMINAL_SETTINGS_POINTS">
        <source></source>
        <translation> 磅</translation>
    </message>
    <message id="TERMINAL_SETTINGS_REOPEN">
        <source></source>
        <translation>更改后将重新打开您的窗口。</translation>
    </message>
    <message id="TERMINAL_SETTINGS_RISING">
        <source></source>
        <translation>上涨颜色(&amp;R)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_SAVE">
        <source></source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_SCHEME">
        <source></source>
        <translation>配色(&amp;C)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_TITLE">
        <source></source>
        <translation>设置</translation>
    </message>
    <message id="TERMINAL_SETTINGS_WARNING_SEARCH">
        <source></source>
        <translation>警示词(&amp;W)</translation>
    </message>
    <message id="TERMINAL_SETTINGS_WARNING_SEARCH_HELP">
        <source></source>
        <translation>增加标签页，列出含有警示词的新闻。</translation>
    </message>
    <message id="TERMINAL_SHOWN_DAY">
        <source></source>
        <translation>显示中：%1</translation>
    </message>
    <message id="TERMINAL_SHOW_TODAY">
        <source></source>
        <translation>显示今天</translation>
    </message>
    <message id="TERMINAL_SOURCES_ADD">
        <source></source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message id="TERMINAL_SOURCES_COUNT">
        <source></source>
        <translation>%1 个开启</translation>
    </message>
    <message id="TERMINAL_SOURCES_COUNT_FAULTY">
        <source></source>
        <translation>%1 个开启 · %2 个有问题</translation>
    </message>
    <message id="TERMINAL_SOURCES_DELAY">
        <source></source>
        <translation>延迟</translation>
    </message>
    <message id="TERMINAL_SOURCES_EXPORT">
        <source></source>
        <translation>导出(&amp;X)…</translation>
    </message>
    <message id="TERMINAL_SOURCES_EXPORT_TITLE">
        <source></source>
        <translation>导出来源列表</translation>
    </message>
    <message id="TERMINAL_SOURCES_IMPORT">
        <source></source>
        <translation>导入列表(&amp;I)…</translation>
    </message>
    <message id="TERMINAL_SOURCES_IMPORTED">
        <source></source>
        <translation>已添加 %1 个（暂停中），%2 个已在列表中，略过 %3 个。请逐一查看后再继续。</translation>
    </message>
    <message id="TERMINAL_SOURCES_IMPORT_TITLE">
        <source></source>
        <translation>导入来源列表</translation>
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
        <translation>开启</translation>
    </message>
    <message id="TERMINAL_SOURCES_PASTE">
        <source></source>
        <translation>粘贴地址：来源、网页或文件</translation>
    </message>
    <message id="TERMINAL_SOURCES_SILENT">
        <source></source>
        <translation>没有来源响应</translation>
    </message>
    <message id="TERMINAL_SOURCES_SOURCE">
        <source></source>
        <translation>来源</translation>
    </message>
    <message id="TERMINAL_SOURCES_STALE">
        <source></source>
        <translation>超过平常时间没有新消息</translation>
    </message>
    <message id="TERMINAL_SOURCES_STATE">
        <source></source>
        <translation>状态</translation>
    </message>
    <message id="TERMINAL_SOURCES_TITLE">
        <source></source>
        <translation>来源</translation>
    </message>
    <message id="TERMINAL_SOURCES_TODAY">
        <source></source>
        <translation>今日</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS">
        <source></source>
        <translation>访问(&amp;C)</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_BASIC">
        <source></source>
        <translation>用户:密码</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_BEARER">
        <source></source>
        <translation>令牌</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_HEADER">
        <source></source>
        <translation>自定义标头</translation>
    </message>
    <message id="TERMINAL_SOURCE_ACCESS_NONE">
        <source></source>
        <translation>无</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADAPTS">
        <source></source>
        <translation>自动调整</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADD">
        <source></source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADDRESS">
        <source></source>
        <translation>地址</translation>
    </message>
    <message id="TERMINAL_SOURCE_ADD_TITLE">
        <source></source>
        <translation>添加来源</translation>
    </message>
    <message id="TERMINAL_SOURCE_ANY_AGE">
        <source></source>
        <translation>不限</translation>
    </message>
    <message id="TERMINAL_SOURCE_AUTHORISATION">
        <source></source>
        <translation>登录方式</translation>
    </message>
    <message id="TERMINAL_SOURCE_AUTHORITY">
        <source></source>
        <translation>自有证书颁发机构</translation>
    </message>
    <message id="TERMINAL_SOURCE_BROWSE">
        <source></source>
        <translation>选择文件</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY">
        <source></source>
        <translation>分类</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY_ALWAYS">
        <source></source>
        <translation>始终：</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY_OTHERWISE">
        <source></source>
        <translation>没有分类时：</translation>
    </message>
    <message id="TERMINAL_SOURCE_CATEGORY_OWN">
        <source></source>
        <translation>按每条新闻</translation>
    </message>
    <message id="TERMINAL_SOURCE_CERTIFICATE">
        <source></source>
        <translation>客户端证书</translation>
    </message>
    <message id="TERMINAL_SOURCE_CERTIFICATE_KEY">
        <source></source>
        <translation>证书密钥</translation>
    </message>
    <message id="TERMINAL_SOURCE_CONNECTING">
        <source></source>
        <translation>连接中…</translation>
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
        <translation>编辑(&amp;E)…</translation>
    </message>
    <message id="TERMINAL_SOURCE_EDIT_TITLE">
        <source></source>
        <translation>编辑来源</translation>
    </message>
    <message id="TERMINAL_SOURCE_EVERY">
        <source></source>
        <translation>每 %1 秒</translation>
    </message>
    <message id="TERMINAL_SOURCE_FAILED">
        <source></source>
        <translation>失败（自 %1）：%2</translation>
    </message>
    <message id="TERMINAL_SOURCE_FIELD">
        <source></source>
        <translation>标头或参数名称</translation>
    </message>
    <message id="TERMINAL_SOURCE_GENERAL">
        <source></source>
        <translation>常规(&amp;G)</translation>
    </message>
    <message id="TERMINAL_SOURCE_GREATEST_AGE">
        <source></source>
        <translation>最旧新闻</translation>
    </message>
    <message id="TERMINAL_SOURCE_INTERVAL">
        <source></source>
        <translation>查询间隔</translation>
    </message>
    <message id="TERMINAL_SOURCE_IN_MINUTES">
        <source></source>
        <translation>%1 分钟后</translation>
    </message>
    <message id="TERMINAL_SOURCE_IN_SECONDS">
        <source></source>
        <translation>%1 秒后</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND">
        <source></source>
        <translation>类型</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND_AUTO">
        <source></source>
        <translation>自动识别</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND_EVENTS">
        <source></source>
        <translation>服务器推送事件</translation>
    </message>
    <message id="TERMINAL_SOURCE_KIND_TABLE">
        <source></source>
        <translation>映射表格</translation>
    </message>
    <message id="TERMINAL_SOURCE_LINKS">
        <source></source>
        <translation>此网页的来源</translation>
    </message>
    <message id="TERMINAL_SOURCE_MAPPING">
        <source></source>
        <translation>映射</translation>
    </message>
    <message id="TERMINAL_SOURCE_NOT_ASKED">
        <source></source>
        <translation>尚未查询</translation>
    </message>
    <message id="TERMINAL_SOURCE_NOT_READ">
        <source></source>
        <translation>目前没有终端在读取</translation>
    </message>
    <message id="TERMINAL_SOURCE_OWN_SERVICE">
        <source></source>
        <translation>专属服务，以来源命名</translation>
    </message>
    <message id="TERMINAL_SOURCE_PAUSE">
        <source></source>
        <translation>暂停(&amp;P)</translation>
    </message>
    <message id="TERMINAL_SOURCE_PAUSED">
        <source></source>
        <translation>已暂停</translation>
    </message>
    <message id="TERMINAL_SOURCE_PROXIES">
        <source></source>
        <translation>若系统设有代理服务器则会使用。经由代理服务器时只能检查名称：由代理服务器找出名称对应的主机。</translation>
    </message>
    <message id="TERMINAL_SOURCE_READY_MADE">
        <source></source>
        <translation>现成来源 · %1</translation>
    </message>
    <message id="TERMINAL_SOURCE_READ_TERMS">
        <source></source>
        <translation>未开启。请先阅读发布者的使用条款。</translation>
    </message>
    <message id="TERMINAL_SOURCE_REMOVE">
        <source></source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message id="TERMINAL_SOURCE_REMOVE_QUESTION">
        <source></source>
        <translation>要移除“%1”吗？已收到的新闻会保留。</translation>
    </message>
    <message id="TERMINAL_SOURCE_RESUME">
        <source></source>
        <translation>继续(&amp;R)</translation>
    </message>
    <message id="TERMINAL_SOURCE_SAVE">
        <source></source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message id="TERMINAL_SOURCE_SECONDS_SUFFIX">
        <source></source>
        <translation> 秒</translation>
    </message>
    <message id="TERMINAL_SOURCE_SECRET">
        <source></source>
        <translation>密钥</translation>
    </message>
    <message id="TERMINAL_SOURCE_SECRET_KEPT">
        <source></source>
        <translation>已保存；留空则不变</translation>
    </message>
    <message id="TERMINAL_SOURCE_SERVICE">
        <source></source>
        <translation>新闻服务</translation>
    </message>
    <message id="TERMINAL_SOURCE_STALE">
        <source></source>
        <translation>无新消息（自 %1）</translation>
    </message>
    <message id="TERMINAL_SOURCE_STREAM">
        <source></source>
        <translation>流</translation>
    </message>
    <message id="TERMINAL_SOURCE_TERMS_QUESTION">
        <source></source>
        <translation>“%1”由%2发布。开启后，本终端会持续向 %3 查询。请先阅读发布者的使用条款：%4</translation>
    </message>
    <message id="TERMINAL_SOURCE_TERMS_READ">
        <source></source>
        <translation>我已阅读，添加(&amp;A)</translation>
    </message>
    <message id="TERMINAL_SOURCE_TEST">
        <source></source>
        <translation>测试(&amp;T)</translation>
    </message>
    <message id="TERMINAL_SOURCE_TITLE">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="TERMINAL_SOURCE_UP">
        <source></source>
        <translation>上移 (Alt+Up)</translation>
    </message>
    <message id="TERMINAL_STATUS_CONNECT">
        <source></source>
        <translation>连接…</translation>
    </message>
    <message id="TERMINAL_STATUS_IMPORT">
        <source></source>
        <translation>导入…</translation>
    </message>
    <message id="TERMINAL_SYMBOL_BAR">
        <source></source>
        <translation>代码</translation>
    </message>
    <message id="TERMINAL_SYMBOL_PROMPT">
        <source></source>
        <translation>代码或名称</translation>
    </message>
    <message id="TERMINAL_SYMBOL_UNKNOWN">
        <source></source>
        <translation>无此代码</translation>
    </message>
    <message id="TERMINAL_TRIAL_ASKING">
        <source></source>
        <translation>查询中…</translation>
    </message>
    <message id="TERMINAL_TRIAL_HEADLINE">
        <source></source>
        <translation>标题</translation>
    </message>
    <message id="TERMINAL_TRIAL_ITEMS">
        <source></source>
        <translation>前几条新闻的显示方式：读取 %1 条，拒收 %2 条。</translation>
    </message>
    <message id="TERMINAL_TRIAL_NOT_ASKED">
        <source></source>
        <translation>按“测试”会向来源查询一次，并在此列出最新的新闻，与新闻列表中的样子相同。</translation>
    </message>
    <message id="TERMINAL_TRIAL_NOTHING">
        <source></source>
        <translation>有响应，但目前没有任何新闻。</translation>
    </message>
    <message id="TERMINAL_TRIAL_PAGE">
        <source></source>
        <translation>这是网页，其中列出 %1 个来源。</translation>
    </message>
    <message id="TERMINAL_TRIAL_REJECTED">
        <source></source>
        <translation>拒收 %1 条，第一条的原因：%2</translation>
    </message>
    <message id="TERMINAL_TRIAL_TIME">
        <source></source>
        <translation>时间</translation>
    </message>
    <message id="TERMINAL_TRIAL_TITLE">
        <source></source>
        <translation>前几条新闻的显示方式</translation>
    </message>
    <message id="TERMINAL_TRIAL_TOO_OLD">
        <source></source>
        <translation>有响应；其中 %1 条新闻都早于收取范围。</translation>
    </message>
    <message id="TERMINAL_TRIAL_TOPIC">
        <source></source>
        <translation>分类</translation>
    </message>
    <message id="TERMINAL_VIEW_FAILED">
        <source></source>
        <translation>有窗口无法恢复：%1</translation>
    </message>
    <message id="ERROR_STORE_OF_WIRE_ALONE">
        <source></source>
        <translation>本库跟随专线，只收专线来的新闻；请在专线上发布。</translation>
    </message>
    <message id="ERROR_STORE_NEWS_OF_ITS_OWN">
        <source></source>
        <translation>本库已有自己的新闻；专线需要一个没有新闻的库，或已在跟随它的库。</translation>
    </message>
    <message id="ERROR_STORE_COPY_DIFFERS">
        <source></source>
        <translation>库里的新闻 %1 与专线上的不同。</translation>
    </message>
    <message id="ERROR_WIRE_HOLE">
        <source></source>
        <translation>专线在第 %1 行之前有缺口：服务 %2 那边到第 %3 行，这边到第 %4 行。没有收下任何内容。</translation>
    </message>
    <message id="ERROR_WIRE_OTHER_EPOCH">
        <source></source>
        <translation>专线已重设：现在是纪元 %1，而本库跟随 %2。没有收下任何内容。</translation>
    </message>
    <message id="ERROR_WIRE_WENT_BACK">
        <source></source>
        <translation>专线倒退了：它止于第 %1 行，而本库已跟到第 %2 行。没有收下任何内容。</translation>
    </message>
    <message id="ERROR_WIRE_UNKNOWN_FORMAT">
        <source></source>
        <translation>专线以形式 %1 写成，本版程序不认得。</translation>
    </message>
    <message id="ERROR_WIRE_UNKNOWN_KIND">
        <source></source>
        <translation>它属于“%1”类，本版程序不认得。</translation>
    </message>
    <message id="ERROR_WIRE_ROW_DAMAGED">
        <source></source>
        <translation>它已损坏，无法读取。</translation>
    </message>
    <message id="ERROR_WIRE_ROW">
        <source></source>
        <translation>专线第 %1 行</translation>
    </message>
    <message id="ERROR_WIRE_POSITION_UNREADABLE">
        <source></source>
        <translation>无法读取本库跟随专线到何处：“%1”。</translation>
    </message>
    <message id="ERROR_WIRE_NO_BEAT">
        <source></source>
        <translation>专线的收稿点已有 %1 秒没有动静。</translation>
    </message>
    <message id="ERROR_WIRE_SERVER">
        <source></source>
        <translation>专线服务器回复：%1</translation>
    </message>
    <message id="ERROR_WIRE_NOT_MADE">
        <source></source>
        <translation>此数据库里还没有专线，请先在命令行建立。</translation>
    </message>
    <message id="ERROR_WIRE_MADE_ALREADY">
        <source></source>
        <translation>此数据库里已有专线。</translation>
    </message>
    <message id="ERROR_WIRE_DRIVER_MISSING">
        <source></source>
        <translation>没有安装与专线服务器连接的部分：%1</translation>
    </message>
    <message id="ERROR_WIRE_SERVICE_NAME">
        <source></source>
        <translation>“%1”不是专线的名称：可用字母、数字、“.”、“_”和“-”。</translation>
    </message>
    <message id="ERROR_WIRE_NO_QUOTES">
        <source></source>
        <translation>专线不传送报价。</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name></name>
    <message id="IDC_BASEVIEW-STRING_NO_DATA">
        <source></source>
        <translation>此商品沒有新聞。</translation>
    </message>
    <message id="IDS_DIALOG-STORY_NEXT_BUTTON">
        <source></source>
        <translation>下一則</translation>
    </message>
    <message id="IDS_DIALOG-STORY_PREV_BUTTON">
        <source></source>
        <translation>上一則</translation>
    </message>
    <message id="IDS_DIALOG-STORY_PRINT">
        <source></source>
        <translation>列印</translation>
    </message>
    <message id="IDS_DIALOG-STORY_SAVEAS">
        <source></source>
        <translation>另存</translation>
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
    <message id="IDS_NEWSCTRLVIEW_STRING_AFTERDAYS">
        <source></source>
        <translation>所選日期晚於今天。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CATEGORY">
        <source></source>
        <translation>分類</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CATEGORY_NEWS">
        <source></source>
        <translation>分類新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_CLEAR_SERVICE">
        <source></source>
        <translation>已開始新的新聞日。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_DETAILED_STORY">
        <source></source>
        <translation>詳細內容</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INSOMEDAYS">
        <source></source>
        <translation> 天內的日期。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_SEARCH">
        <source></source>
        <translation>請輸入搜尋關鍵字。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALID_DATE1">
        <source></source>
        <translation>這一天沒有新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS">
        <source></source>
        <translation>新聞</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_CLASS_NOT_FOUND">
        <source></source>
        <translation>此分類沒有新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NEWS_NOT_FOUND">
        <source></source>
        <translation>找不到符合條件的新聞。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_NO_NEWS_STORY">
        <source></source>
        <translation>本則新聞沒有內文。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_ONLYSELECT">
        <source></source>
        <translation>只能選擇最近 </translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINT_NEWS">
        <source></source>
        <translation>列印…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PS">
        <source></source>
        <translation>（本文完）</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER">
        <source></source>
        <translation>回補中…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER_HEADLINELIST">
        <source></source>
        <translation>回補新聞標題</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_RECOVER_STORY">
        <source></source>
        <translation>回補新聞內容</translation>
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
        <translation>另存新檔…</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SEARCH_NEWS">
        <source></source>
        <translation>新聞搜尋</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SELECT_NEWS_SERVICE">
        <source></source>
        <translation>新聞來源</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SHOW_CATEGORY">
        <source></source>
        <translation>顯示分類欄</translation>
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
    <message id="TERMINAL_APP_TITLE">
        <source></source>
        <translation>Wirepane</translation>
    </message>
    <message id="TERMINAL_AS_OF">
        <source></source>
        <translation>時點 %1</translation>
    </message>
    <message id="TERMINAL_FEED_CONNECTED">
        <source></source>
        <translation>已連線</translation>
    </message>
    <message id="TERMINAL_FEED_DISCONNECTED">
        <source></source>
        <translation>未連線</translation>
    </message>
    <message id="TERMINAL_FONT_LARGER">
        <source></source>
        <translation>放大字型(&amp;L)</translation>
    </message>
    <message id="TERMINAL_FONT_SMALLER">
        <source></source>
        <translation>縮小字型(&amp;S)</translation>
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
    <message id="TERMINAL_MENU_FILE">
        <source></source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message id="TERMINAL_MENU_LANGUAGE">
        <source></source>
        <translation>語言(&amp;G)</translation>
    </message>
    <message id="TERMINAL_MENU_SCHEME">
        <source></source>
        <translation>配色(&amp;C)</translation>
    </message>
    <message id="TERMINAL_MENU_VIEW">
        <source></source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message id="TERMINAL_QUIT">
        <source></source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF">
        <source></source>
        <translation>指定時點閱讀(&amp;R)…</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_EXPLANATION">
        <source></source>
        <translation>終端機將以此時點為現在，顯示當時的新聞。</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_NOW">
        <source></source>
        <translation>目前時間</translation>
    </message>
    <message id="TERMINAL_READ_AS_OF_TITLE">
        <source></source>
        <translation>指定時點閱讀</translation>
    </message>
    <message id="TERMINAL_SCHEME_DARK">
        <source></source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message id="TERMINAL_SCHEME_LIGHT">
        <source></source>
        <translation>淺色(&amp;L)</translation>
    </message>
    <message id="TERMINAL_SERVICES_COUNT">
        <source></source>
        <translation>新聞來源：%1</translation>
    </message>
</context>
</TS>

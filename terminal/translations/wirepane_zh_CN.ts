<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="IDC_BASEVIEW-STRING_NO_DATA">
        <source></source>
        <translation>此品种没有新闻。</translation>
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
        <translation>选择品种</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ADD_BUTTON">
        <source></source>
        <translation>加入(&amp;A) ▸</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ADD_KEYSET">
        <source></source>
        <translation>保存为新组(&amp;N)</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_ALL_NEWSTYPE">
        <source></source>
        <translation>全部</translation>
    </message>
    <message id="IDS_DIALOG-DEAL-SEARCH_AND_BUTTON">
        <source></source>
        <translation>全部关键词(&amp;K)</translation>
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
        <translation>从所有品种中选择</translation>
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
        <translation>品种</translation>
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
    <message id="IDS_NEWSCTRLVIEW_NAME_DATE">
        <source></source>
        <translation>日期</translation>
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
        <translation>商品</translation>
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
    <message id="IDS_NEWSCTRLVIEW_NOTICE_UNFILTERED">
        <source></source>
        <translation>尚未以关键词组筛选：立即筛选</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_AFTERDAYS">
        <source></source>
        <translation>所选日期晚于今天。</translation>
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
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_VALUE">
        <source></source>
        <translation>搜索文字不可含空格。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALIDATE_SEARCH">
        <source></source>
        <translation>请输入搜索关键词。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_INVALID_DATE1">
        <source></source>
        <translation>这一天没有新闻。</translation>
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
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINTER_GONE">
        <source></source>
        <translation>无法连接打印机</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_PRINT_FAILED">
        <source></source>
        <translation>新闻无法打印到 %1：%2</translation>
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
    <message id="IDS_NEWSCTRLVIEW_STRING_SEARCH_NEWS">
        <source></source>
        <translation>新闻搜索</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_SELECT_NEWS_SERVICE">
        <source></source>
        <translation>新闻来源</translation>
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
        <translation>此品种没有新闻。</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TIME">
        <source></source>
        <translation>时间</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_TITLE">
        <source></source>
        <translation>标题</translation>
    </message>
    <message id="IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PREVIEW">
        <source></source>
        <translation>等待打印预览，尚缺 %1 则</translation>
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
    <message id="IDS_QUOTE-LIST_CHANGE">
        <source></source>
        <translation>涨跌</translation>
    </message>
    <message id="IDS_QUOTE-LIST_CODE">
        <source></source>
        <translation>代号</translation>
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
        <translation>相关品种</translation>
    </message>
    <message id="IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE_NONE">
        <source></source>
        <translation>这则新闻没有相关品种。</translation>
    </message>
    <message id="IDS_SINGLETON-STRING_FONTNAME">
        <source></source>
        <translation>Noto Sans Mono CJK SC</translation>
    </message>
    <message id="TERMINAL_ACCEPT">
        <source></source>
        <translation>确定</translation>
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
    <message id="TERMINAL_FLOAT_BUTTON">
        <source></source>
        <translation>浮动／停靠</translation>
    </message>
    <message id="TERMINAL_FLOAT_VIEW">
        <source></source>
        <translation>浮动／停靠(&amp;F)</translation>
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
    <message id="TERMINAL_NO_CHINESE_FONT">
        <source></source>
        <translation>未安装中文字体，中文会显示为方块。 No installed font has Chinese characters: they are shown as boxes. Install one, such as the package fonts-noto-cjk.</translation>
    </message>
    <message id="TERMINAL_IMPORT_NOT_STARTED">
        <source></source>
        <translation>无法启动导入程序。</translation>
    </message>
    <message id="TERMINAL_IMPORT_PARTIAL">
        <source></source>
        <translation>导入完成，但有部分内容无法导入。</translation>
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
    <message id="TERMINAL_RENAME_VIEW">
        <source></source>
        <translation>重命名(&amp;R)…</translation>
    </message>
    <message id="TERMINAL_SAVE_NEWS">
        <source></source>
        <translation>另存新闻(&amp;S)…</translation>
    </message>
    <message id="TERMINAL_SCHEME_DARK">
        <source></source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message id="TERMINAL_SCHEME_LIGHT">
        <source></source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message id="TERMINAL_SERVICES_COUNT">
        <source></source>
        <translation>新闻来源：%1</translation>
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
    <message id="TERMINAL_VIEW_FAILED">
        <source></source>
        <translation>有窗口无法恢复：%1</translation>
    </message>
</context>
</TS>

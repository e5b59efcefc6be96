// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace wirepane {

// A list of announcements as the exchange publishes it, of invented companies.
inline QByteArray announcements() {
    return R"([
{"出表日期": "1150302", "發言日期": "1150302", "發言時間": "90003", "公司代號": "9001", "公司名稱": "旻蘅化工",
 "主旨 ": "召開法人說明會\r\n說明", "符合條款": "第12款", "事實發生日": "1150305", "說明": "1.召開日期:115/03/05\r\n2.地點:臺北"},
{"出表日期": "1150302", "發言日期": "1150302", "發言時間": "135032", "公司代號": "9002", "公司名稱": "禧湖科技",
 "主旨 ": "公告本公司更換會計師", "符合條款": "第51款", "事實發生日": "1150302", "說明": "1.事實發生日:115/03/02\r\n2.原因:內部調整"}
])";
}

}  // namespace wirepane

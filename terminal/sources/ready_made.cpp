// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/ready_made.h"

#include "host/contract/fixed_services.h"
#include "terminal/translations/terminal_text.h"

using namespace Qt::StringLiterals;

namespace wirepane {

std::vector<ReadyMadeSource> readyMadeSources() {
    NetworkSource announcements;
    announcements.title = terminalText(TextId::ExchangeAnnouncements);
    announcements.address = QUrl(u"https://openapi.twse.com.tw/v1/opendata/t187ap04_L"_s);
    announcements.kind = NetworkKind::Table;
    announcements.mapping = u"exchange_announcements"_s;
    announcements.service = 16;
    announcements.market = 16;
    announcements.isPaused = false;
    return {
        {announcements, terminalText(TextId::ExchangePublisher), QUrl(u"https://openapi.twse.com.tw/"_s)}};
}

}  // namespace wirepane

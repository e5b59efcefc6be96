// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/gone_headlines.h"

#include <QDateTime>
#include <QStringList>

#include <functional>

namespace wirepane {

using namespace Qt::StringLiterals;

// Writes down what it is told.
class Listener : public NewsReceiver, public GoneHeadlineReceiver {
public:
    void headlineReplaced(const CHeadline* headline, const QString&, const QString&) override {
        replaced += u"%1/%2 %3"_s.arg(headline->service).arg(headline->sequence).arg(headline->title);
    }
    void headlineGone(const HeadlineKey& key) override {
        const QString time = QDateTime::fromSecsSinceEpoch(key.time).toString(u"HH:mm"_s);
        heard += u"gone %1/%2 %3"_s.arg(key.service).arg(key.sequence).arg(time);
    }
    void RecvNewHeadLine(const CHeadline* headline, const QString& categoryId, const QString& code) override {
        heard += u"headline %1/%2 %3 [%4] %5"_s.arg(headline->service)
                     .arg(headline->sequence)
                     .arg(headline->title, categoryId, code);
    }
    void RespHeadLine(const std::vector<CHeadlineTable>& entries) override {
        heard += u"%1 headlines"_s.arg(entries.size());
    }
    void StoryUpdateNotify(const CHeadlineTable* entry) override {
        heard += u"changed story %1"_s.arg(entry->sequence);
    }
    void vRecvNewMarketStatus(const CMarketStatus* status) override {
        heard += u"day %1 of %2"_s.arg(status->date).arg(status->service);
    }
    void RespStory(const CHeadlineTable& entry) override {
        heard += u"story %1"_s.arg(entry.sequence);
        if (onStory)
            onStory(entry);
    }
    void vDoSymbolUpdate(const std::vector<CSymbolUpdateInfo>& changes) override {
        heard += u"symbol %1"_s.arg(changes.front().code);
    }
    void vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo* info) override { hear(u"date"_s, *info); }
    void vRecvCatHeadlineTableRecovery(const CHeadlineTableInfo* info) override {
        hear(u"category"_s, *info);
    }
    void vRecvSymHeadlineTableRecovery(const CHeadlineTableInfo* info) override { hear(u"symbol"_s, *info); }
    void RespSearchHeadLineTable(const CSearch& condition, unsigned char service) override {
        heard += QStringLiteral("search %1 %2").arg(condition.keywords.front()).arg(service);
    }
    QStringList heard;
    QStringList replaced;  // told of, but not pushed
    std::function<void(const CHeadlineTable&)> onStory;

private:
    void hear(const QString& table, const CHeadlineTableInfo& info) {
        heard += u"%1 table %2 %3 %4"_s.arg(table).arg(info.service).arg(info.key).arg(info.status);
    }
};

}  // namespace wirepane

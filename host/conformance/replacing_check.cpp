// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/conformance/replacing_check.h"

#include "host/conformance/findings.h"
#include "host/conformance/hearing.h"
#include "host/contract/gone_headlines.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString nameOf(const HeadlineKey& key) {
    return u"service %1, time %2, number %3"_s.arg(key.service).arg(key.time).arg(key.sequence);
}

bool haveSameNumberOnADay(const HeadlineKey& a, const HeadlineKey& b) {
    const auto dayOf = [](const HeadlineKey& key) { return QDateTime::fromSecsSinceEpoch(key.time).date(); };
    return a.service == b.service && a.sequence == b.sequence && dayOf(a) == dayOf(b);
}

bool hasHeadline(BKQuoteInterface& backEnd, const HeadlineKey& key) {
    std::vector<CHeadline> found;
    const CHeadlineTable entry{key.time, key.sequence, key.service, 0, 0};
    return backEnd.BKQNEWS_iGetHeadline(key.service, found, {entry}) > 0;
}

// The keys of the current day of every service that have a headline.
std::vector<HeadlineKey> keysAtHand(BKQuoteInterface& backEnd) {
    std::vector<unsigned char> services;
    backEnd.BKQNEWS_bGetAllNewsService(services);
    std::vector<HeadlineKey> keys;
    for (const unsigned char service : services) {
        std::vector<CHeadlineTable> table;
        backEnd.BKQNEWS_iGetHeadlineTable(service, table, static_cast<int>(TableKind::ByDate),
                                          backEnd.BKQNEWS_cszGetCurrDateByService(service));
        std::vector<CHeadline> headlines;
        backEnd.BKQNEWS_iGetHeadline(service, headlines, table);
        for (const CHeadline& headline : headlines)
            keys.push_back(keyOf(headline));
    }
    return keys;
}

class Listener : public NewsReceiver, public GoneHeadlineReceiver {
public:
    Listener(BKQuoteInterface& heard, Findings& noted) : backEnd(heard), findings(noted) {
        backEnd.attach(this);
    }
    ~Listener() override { backEnd.detach(this); }

    void headlineGone(const HeadlineKey& key) override {
        checkMoment(u"A gone key, "_s + nameOf(key), false, findings);
        findings.expect(!hasHeadline(backEnd, key), nameOf(key) + u": is told as gone and has a headline."_s);
        findings.expect(!isGone(key), nameOf(key) + u": is told as gone twice."_s);
        gone.push_back(key);
    }
    void RecvNewHeadLine(const CHeadline* headline, const QString&, const QString&) override {
        if (headline == nullptr)
            return;
        const bool isLate = std::any_of(gone.begin(), gone.end(), [&](const HeadlineKey& key) {
            return haveSameNumberOnADay(key, keyOf(*headline));
        });
        findings.expect(!isLate, nameOf(keyOf(*headline)) +
                                     u": its former key is told as gone before the headline is told."_s);
    }
    void headlineReplaced(const CHeadline* headline, const QString&, const QString&) override {
        RecvNewHeadLine(headline, {}, {});
    }
    bool isGone(const HeadlineKey& key) const {
        return std::find(gone.begin(), gone.end(), key) != gone.end();
    }

private:
    BKQuoteInterface& backEnd;
    Findings& findings;
    std::vector<HeadlineKey> gone;
};

}  // namespace

std::vector<QString> brokenDutiesOfReplacing(BKQuoteInterface& backEnd, const std::function<void()>& replace,
                                             std::chrono::milliseconds patience) {
    Findings findings;
    const std::vector<HeadlineKey> before = keysAtHand(backEnd);
    Listener listener(backEnd, findings);
    replace();
    std::vector<HeadlineKey> lost;
    std::copy_if(before.begin(), before.end(), std::back_inserter(lost),
                 [&](const HeadlineKey& key) { return !hasHeadline(backEnd, key); });
    findings.expect(!lost.empty(), u"No key of a current day has lost its headline: nothing was checked."_s);
    const auto isTold = [&](const HeadlineKey& key) { return listener.isGone(key); };
    waitUntil([&] { return std::all_of(lost.begin(), lost.end(), isTold); }, patience);
    for (const HeadlineKey& key : lost)
        findings.expect(isTold(key), nameOf(key) + u": has no headline any more, and nobody is told."_s);
    return findings.takeAll();
}

}  // namespace wirepane

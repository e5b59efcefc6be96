// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/conformance/request_check.h"

#include "host/conformance/hearing.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Hears what the back end tells, and notes what comes at a wrong time or on a wrong thread.
class Listener : public NewsReceiver {
public:
    Listener(BKQuoteInterface& heard, Findings& noted) : backEnd(heard), findings(noted) {
        backEnd.attach(this);
    }
    ~Listener() override { backEnd.detach(this); }

    // Sends a request and waits for its answer; false: it was not sent.
    template <class Send>
    bool await(const QString& request, std::chrono::milliseconds patience, Send send) {
        awaited = request;
        answers = 0;
        sending = true;
        const bool sent = send();
        sending = false;
        findings.expect(!sent || waitUntil([this] { return answers > 0; }, patience),
                        request + u": true, and no answer in time."_s);
        return sent;
    }

    void RespStory(const CHeadlineTable& entry) override { hear(keyOf(entry) == story); }
    void RespSearchHeadLineTable(const CSearch& condition, unsigned char service) override {
        hear(condition == search && service == askedService);
    }
    void vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo* info) override {
        hear(info != nullptr && info->service == askedService && info->key == key);
    }

    unsigned char askedService = 0;
    QString key;
    HeadlineKey story;
    CSearch search;

private:
    void hear(bool isTheAnswer) {
        checkMoment(awaited, sending, findings);
        if (isTheAnswer)
            ++answers;
    }

    BKQuoteInterface& backEnd;
    Findings& findings;
    QString awaited;
    int answers = 0;
    bool sending = false;
};

// Hears which headlines and stories can be had now.
class MissListener : public NewsReceiver {
public:
    explicit MissListener(BKQuoteInterface& heard) : backEnd(heard) { backEnd.attach(this); }
    ~MissListener() override { backEnd.detach(this); }

    void RespStory(const CHeadlineTable& entry) override { take(stories, entry); }
    void RespHeadLine(const std::vector<CHeadlineTable>& entries) override {
        for (const CHeadlineTable& entry : entries)
            take(headlines, entry);
    }

    // Missed, and not told of yet.
    std::vector<HeadlineKey> stories;
    std::vector<HeadlineKey> headlines;

private:
    static void take(std::vector<HeadlineKey>& missed, const CHeadlineTable& entry) {
        std::erase(missed, keyOf(entry));
    }

    BKQuoteInterface& backEnd;
};

// What is looked up and is not at hand is told of without being asked for again.
void checkMisses(BKQuoteInterface& backEnd, unsigned char service, const std::vector<CHeadlineTable>& entries,
                 std::chrono::milliseconds patience, Findings& findings) {
    MissListener listener(backEnd);
    for (const CHeadlineTable& entry : entries) {
        if (entry.service != service)
            continue;
        CStory story;
        std::vector<CHeadline> headline;
        if (!backEnd.BKQNEWS_bGetStory(story, entry))
            listener.stories.push_back(keyOf(entry));
        if (backEnd.BKQNEWS_iGetHeadline(service, headline, {entry}) == 0)
            listener.headlines.push_back(keyOf(entry));
    }
    waitUntil([&] { return listener.stories.empty() && listener.headlines.empty(); }, patience);
    const auto expectAllTold = [&](const std::vector<HeadlineKey>& missed, const QString& operation,
                                   const QString& answer) {
        if (missed.empty())
            return;
        findings.expect(
            false,
            u"%1, service %2, number %3: not at hand, and no %4 tells when it is (%5 such)."_s.arg(operation)
                .arg(service)
                .arg(missed.front().sequence)
                .arg(answer)
                .arg(missed.size()));
    };
    expectAllTold(listener.stories, u"BKQNEWS_bGetStory"_s, u"RespStory"_s);
    expectAllTold(listener.headlines, u"BKQNEWS_iGetHeadline"_s, u"RespHeadLine"_s);
}

// What users type that a query language might take for its own.
const std::vector<QString> hostileKeywords{u"\"'(*)"_s, u"a AND NOT b"_s, u"%_\\"_s, QString(QChar(0xdc00)),
                                           QString(10000, u'x')};

}  // namespace

void checkRequests(BKQuoteInterface& backEnd, unsigned char service,
                   const std::vector<CHeadlineTable>& entries, std::chrono::milliseconds patience,
                   Findings& findings) {
    checkMisses(backEnd, service, entries, patience, findings);
    Listener listener(backEnd, findings);
    listener.askedService = service;
    listener.key = backEnd.BKQNEWS_cszGetCurrDateByService(service);
    listener.await(u"BKNEWS_bReRequestHeadlineTable, service %1"_s.arg(service), patience, [&] {
        return backEnd.BKNEWS_bReRequestHeadlineTable(service, static_cast<int>(TableKind::ByDate),
                                                      listener.key);
    });
    CStory atHand;
    for (const CHeadlineTable& entry : entries) {
        if (!backEnd.BKQNEWS_bGetStory(atHand, entry))
            continue;
        listener.story = keyOf(entry);
        listener.await(u"BKQNews_bReRequestHeadlineStory, service %1"_s.arg(service), patience,
                       [&] { return backEnd.BKQNews_bReRequestHeadlineStory(entry); });
        break;
    }
    constexpr int searchList = static_cast<int>(TableKind::Search);
    listener.search.method = 1;
    listener.search.keywords = hostileKeywords;
    const QString search = u"BKQNEWS_bSearchNews, service %1"_s.arg(service);
    if (!listener.await(search, patience,
                        [&] { return backEnd.BKQNEWS_bSearchNews(service, searchList, listener.search); }))
        return;
    std::vector<CHeadlineTable> found;
    backEnd.BKQNEWS_iGetHeadlineTable(service, found, searchList, u"SEARCH"_s);
    findings.expect(found.empty(), search + u": finds news that nobody wrote."_s);
}

}  // namespace wirepane

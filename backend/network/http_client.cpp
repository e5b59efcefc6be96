// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/http_fetch.h"
#include "backend/network/http_run.h"

#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QSet>

#include <algorithm>
#include <deque>
#include <map>

using namespace Qt::StringLiterals;

namespace wirepane {

class HttpClient::Queue : public QObject {
public:
    explicit Queue(const HttpLimits& bounds) : limits(bounds) {}
    ~Queue() override { jobs.clear(); }  // before the managers that they use

    void add(const HttpRequest& request, const Answered& answered) {
        auto job = std::make_unique<Job>();
        Job* const added = job.get();
        job->answered = answered;
        job->run = std::make_unique<HttpRun>(
            request, limits,
            [this](const HttpRequest& of, const QNetworkProxy& proxy) -> QNetworkAccessManager& {
                return manager(of, proxy);
            },
            [this, added](bool isDone) { paused(*added, isDone); });
        jobs.push_back(std::move(job));
        goOnSoon();
    }

private:
    struct Job {
        std::unique_ptr<HttpRun> run;
        Answered answered;
        QString host;  // that it is asking; empty: it waits
    };

    // Kept connections are those of one manager: what is verified in another way has its own.
    QNetworkAccessManager& manager(const HttpRequest& request, const QNetworkProxy& proxy) {
        const QString key = QStringList{request.authority, request.certificate, request.certificateKey,
                                        proxy.hostName() + u':' + QString::number(proxy.port())}
                                .join(u'\n');
        auto& found = managers[key];
        if (!found) {
            found = std::make_unique<QNetworkAccessManager>();
            found->setProxy(proxy);
        }
        return *found;
    }

    void goOnSoon() { QMetaObject::invokeMethod(this, &Queue::goOn, Qt::QueuedConnection); }

    // The oldest first, but for those whose host is being asked.
    void goOn() {
        for (std::size_t i = 0; i < jobs.size() && hosts.size() < limits.atOnce; ++i) {
            Job& job = *jobs[i];
            if (!job.host.isEmpty() || hosts.contains(job.run->host()))
                continue;
            job.host = job.run->host();
            hosts.insert(job.host);
            job.run->goOn();
        }
    }

    // The run is in the middle of a call: it goes from the event loop.
    void paused(Job& job, bool isDone) {
        if (!isDone) {
            release(job);
            return;
        }
        QMetaObject::invokeMethod(
            this, [this, &job] { finish(job); }, Qt::QueuedConnection);
    }

    void release(Job& job) {
        hosts.remove(job.host);
        job.host.clear();
        goOnSoon();
    }

    void finish(Job& job) {
        release(job);
        const auto found =
            std::find_if(jobs.begin(), jobs.end(), [&](const auto& one) { return one.get() == &job; });
        const std::unique_ptr<Job> done = std::move(*found);
        jobs.erase(found);
        done->answered(done->run->takeAnswer());
    }

    HttpLimits limits;
    std::map<QString, std::unique_ptr<QNetworkAccessManager>> managers;
    std::deque<std::unique_ptr<Job>> jobs;
    QSet<QString> hosts;  // that are being asked
};

HttpClient::HttpClient(const HttpLimits& limits) : queue(std::make_unique<Queue>(limits)) {}
HttpClient::~HttpClient() = default;

void HttpClient::ask(const HttpRequest& request, const Answered& answered) {
    queue->add(request, answered);
}

}  // namespace wirepane

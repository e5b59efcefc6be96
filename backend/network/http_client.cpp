// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/http_fetch.h"
#include "backend/network/http_run.h"

#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QPointer>
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
        append([this](const HttpRequest& of,
                      const QNetworkProxy& proxy) -> QNetworkAccessManager& { return manager(of, proxy); },
               request, answered);
        goOnSoon();
    }

    // A manager has few connections to a host: a stream would take one for good.
    void follow(int number, const HttpRequest& request, const HttpStream& stream, const Answered& answered) {
        auto own = std::make_unique<QNetworkAccessManager>();
        Job& job = append(
            [manager = own.get()](const HttpRequest&, const QNetworkProxy& proxy) -> QNetworkAccessManager& {
                manager->setProxy(proxy);
                return *manager;
            },
            request, answered);
        job.own = std::move(own);
        job.number = number;
        job.run->follow(stream);
        goOnSoon();
    }

    void letGo(int number) {
        const auto found = std::find_if(jobs.begin(), jobs.end(),
                                        [number](const auto& job) { return job->number == number; });
        if (found == jobs.end())
            return;
        release(**found);
        jobs.erase(found);
    }

private:
    struct Job {
        std::unique_ptr<QNetworkAccessManager> own;  // of a stream; outlives the run
        std::unique_ptr<HttpRun> run;
        Answered answered;
        QString host;         // that it is asking; empty: it waits, or stands
        int number = 0;       // of a stream
        bool stands = false;  // it does
    };

    Job& append(const HttpRun::Managers& from, const HttpRequest& request, const Answered& answered) {
        auto job = std::make_unique<Job>();
        Job* const added = job.get();
        job->answered = answered;
        job->run = std::make_unique<HttpRun>(request, limits, from,
                                             [this, added](HttpRun::Pause pause) { paused(*added, pause); });
        jobs.push_back(std::move(job));
        return *added;
    }

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
            if (!job.host.isEmpty() || job.stands || hosts.contains(job.run->host()))
                continue;
            job.host = job.run->host();
            hosts.insert(job.host);
            job.run->goOn();
        }
    }

    // The run is in the middle of a call: it goes from the event loop.
    void paused(Job& job, HttpRun::Pause pause) {
        job.stands = pause == HttpRun::Pause::Standing;
        if (pause != HttpRun::Pause::Done) {
            release(job);
            return;
        }
        // It may be let go before.
        QMetaObject::invokeMethod(
            this,
            [this, &job, run = QPointer(job.run.get())] {
                if (run)
                    finish(job);
            },
            Qt::QueuedConnection);
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

void HttpClient::follow(int number, const HttpRequest& request, const HttpStream& stream,
                        const Answered& answered) {
    queue->follow(number, request, stream, answered);
}

void HttpClient::letGo(int number) {
    queue->letGo(number);
}

}  // namespace wirepane
